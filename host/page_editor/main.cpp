#include <cpl_error.h>

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QPixmap>
#include <QTimer>
#include <cstdio>
#include <exception>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "map_surround/version.h"
#include "page_editor/editing/file_jobs.h"
#include "page_editor/window/editor_window.h"
#include "raster_data/gdal_session.h"
#include "system/errors.h"
#include "system/gdiplus_session.h"
#include "system/helper_process.h"
#include "system/output_file.h"
#include "system/standard_streams.h"

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

struct Options {
    std::vector<std::string> files;
    std::string screenshot;
    std::vector<std::size_t> select;
};

/// @return nothing for --help and --version, which it prints
std::optional<Options> ReadCommandLine(int argc, char** argv) {
    Options options;
    CLI::App app("Lays out the page around a map by hand.", "page_editor");
    app.add_option("FILE", options.files,
                   "A page file (.json), or rasters to lay out a page around");
    app.add_option("--screenshot", options.screenshot,
                   "Save an image of the window into this file and exit");
    app.add_option("--select", options.select,
                   "Select the elements with these numbers, from 0");
    app.set_version_flag("--version", MAP_SURROUND_VERSION_STRING);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& success) {
        std::ostringstream said;
        app.exit(success, said, said);
        host::WriteToStandardOutput(said.str());
        return std::nullopt;
    }
    return options;
}

void Fail(const std::string& why) {
    std::fprintf(stderr, "page_editor: %s\n", why.c_str());
}

bool Open(page_editor::EditorWindow& window, const Options& options) {
    QStringList files;
    for (const std::string& file : options.files) {
        files.append(QString::fromStdString(file));
    }
    const bool isForAPerson = options.screenshot.empty();
    if (!files.isEmpty() && !window.Files().OpenFiles(files, isForAPerson)) {
        Fail(window.LastFailure().toStdString());
        return isForAPerson;  // the window shows it too
    }
    page_editor::Indices selection;
    for (const std::size_t item : options.select) {
        if (item >= window.Document().Count()) {
            Fail("--select: there is no element " + std::to_string(item));
            return false;
        }
        selection.push_back(item);
    }
    window.Document().Select(selection);
    return true;
}

int TakeScreenshot(page_editor::EditorWindow& window, const std::string& path) {
    QApplication::processEvents();
    if (!window.grab().save(QString::fromStdString(path))) {
        Fail(path + ": cannot be written");
        return kFailed;
    }
    return 0;
}

int Run(int argc, char** argv) {
    const std::optional<Options> options = ReadCommandLine(argc, argv);
    if (!options) {
        return 0;
    }
    CPLSetErrorHandler(CPLQuietErrorHandler);
    host::StartGdal();  // for the helper process too
    host::StartHelper(page_editor::FileJobs());
    const QApplication application(argc, argv);
    host::RemoveUnfinishedOutputOnSignals();
    const host::GdiplusSession session;
    page_editor::EditorWindow window;
    window.show();
    if (!Open(window, *options)) {
        return kFailed;
    }
    if (!options->screenshot.empty()) {
        return TakeScreenshot(window, options->screenshot);
    }
    page_editor::OfferLostWork(window, page_editor::Recovery::Folder());
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    host::OpenClosedStandardStreams();
    try {
        return Run(argc, argv);
    } catch (const CLI::ParseError& error) {
        Fail(host::LineFor(error));
        return kWrongUsage;
    } catch (const std::exception& error) {
        Fail(host::LineFor(error));
        return kFailed;
    }
}
