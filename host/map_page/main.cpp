#include <cpl_error.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "map_page/draw_page.h"
#include "map_page/error.h"
#include "map_page/options.h"
#include "map_page/progress_line.h"
#include "map_page/quiet.h"
#include "map_page/safe_drawing.h"
#include "map_page/series.h"
#include "system/errors.h"
#include "system/gdiplus_session.h"
#include "system/output_file.h"
#include "system/separate_process.h"
#include "system/standard_streams.h"

namespace {

constexpr int kDrawn = 0;
constexpr int kNotDrawn = 1;
constexpr int kWrongUsage = 2;

int Fail(int status, const std::exception& error) {
    map_page::ProgressLine::Erase(STDERR_FILENO);
    std::fprintf(stderr, "map_page: %s\n", host::LineFor(error).c_str());
    return status;
}

/// All reading and drawing of rasters and pictures happens in the separate process; this
/// one only prints messages and names the output.
std::string DrawSeparately(const map_page::Options& options, const std::string& place) {
    map_page::OutputFiles files(options);
    const auto draw = [&](const host::Progress&) {
        const map_page::Quiet quiet(place);
        CPLSetErrorHandler(CPLQuietErrorHandler);
        const host::GdiplusSession session;
        map_page::Confine(options);
        return map_page::DrawPage(options, files, quiet);
    };
    return map_page::Finish(options, files,
                            host::InSeparateProcess("drawing", draw, {}, options.limits));
}

std::string DrawOne(const map_page::Options& options, const std::string& place) {
    return host::Naming(options.output.empty() ? options.save : options.output,
                        [&] { return DrawSeparately(options, place); });
}

/// A page file may name pictures, and those are read.
void CheckColumns(const map_page::Options& options,
                  const std::vector<std::string>& columns) {
    const auto check = [&](const host::Progress&) {
        const map_page::Quiet quiet;
        const host::GdiplusSession session;
        map_page::Confine(options);
        map_page::CheckSeries(options, columns);
        return std::string();
    };
    host::InSeparateProcess("drawing", check, {}, options.limits);
}

std::string Draw(const map_page::Options& options) {
    return options.series.empty() ? DrawOne(options, "")
                                  : map_page::DrawSeries(
                                        options,
                                        [&](const std::vector<std::string>& columns) {
                                            CheckColumns(options, columns);
                                        },
                                        DrawOne);
}

void Run(int argc, const char* const* argv) {
    const std::variant<map_page::Options, std::string> call =
        map_page::ReadCommandLine(argc, argv);
    if (const auto* const text = std::get_if<std::string>(&call)) {
        host::WriteToStandardOutput(*text);
        return;
    }
    host::RemoveUnfinishedOutputOnSignals();
    host::WriteToStandardOutput(Draw(std::get<map_page::Options>(call)) + "\n");
}

}  // namespace

int main(int argc, char** argv) {
    host::OpenClosedStandardStreams();
    try {
        Run(argc, argv);
        return kDrawn;
    } catch (const map_page::UsageError& error) {
        return Fail(kWrongUsage, error);
    } catch (const std::exception& error) {
        return Fail(kNotDrawn, error);
    }
}
