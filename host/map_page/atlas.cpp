#include "map_page/atlas.h"

#include <cpl_error.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <exception>
#include <new>
#include <optional>
#include <set>
#include <stdexcept>

#include "map_page/draw_page.h"
#include "map_page/error.h"
#include "map_page/progress_line.h"
#include "map_page/quiet.h"
#include "map_page/safe_drawing.h"
#include "map_page/series.h"
#include "map_page/told_remarks.h"
#include "page/document/page_text.h"
#include "page/layout/map_on_page.h"
#include "page/output/page_output.h"
#include "page/output/pdf/pdf_file.h"
#include "page/texts.h"
#include "page/words/page_words.h"
#include "system/errors.h"
#include "system/gdiplus_session.h"
#include "system/one_line.h"
#include "system/output_file.h"
#include "system/separate_process.h"

namespace map_page {
namespace {

using Clock = std::chrono::steady_clock;

/// What the drawing process returns instead of the number of pages.
constexpr const char* kOutOfMemory = "out of memory";

/// What is known of the rows when drawing starts, or restarts after a row ended the
/// process.
struct Known {
    std::set<std::size_t> fatal;  ///< rows that ended the process
    std::size_t told = 0;         ///< rows before this one have been reported
};

/// The page file's own words, which apply to the whole file.
host::PageAbout AboutOf(const Options& options) {
    const std::optional<host::AllowedSources> allowed = AllowedBy(options);
    host::Page page = host::LoadPage(options.pageFile, allowed ? &*allowed : nullptr);
    host::Change(page, options.changes);
    SayOfPage(options, page);
    return host::WordsOf(page).about;
}

void AddRow(const Options& options, const SeriesPage& row, const Quiet* quiet,
            const host::Progress& progress, host::PdfFile& file) {
    const host::OpenedPage opened = OpenToDraw(options);
    ToldRemarks remarks(quiet);
    remarks.Tell(opened.remarks);
    host::Naming("--dpi", [&] { host::CheckPageSize(opened.page, options.dpi); });
    file.Add(opened.page, progress, row.name);
    try {
        host::CheckWritten(opened.page);
        remarks.Tell(host::RemarksOfMaps(opened.page));
        if (options.isStrict && remarks.Count() > 0) {
            throw Error("is not drawn: --strict allows no warnings");
        }
    } catch (...) {
        file.DropLast();
        throw;
    }
}

/// In the drawing process: draws the rows, reporting to `progress` the index of each in
/// the list, plus how much of it is done.
std::string DrawRows(const Options& options, const SeriesList& list, const Known& known,
                     const host::OutputFile& draft, const host::OutputFile& output,
                     const host::Progress& progress) {
    CPLSetErrorHandler(CPLQuietErrorHandler);
    const host::GdiplusSession session;
    Confine(options);
    const host::PageAbout about = AboutOf(options);
    host::PdfFile file(draft.Descriptor(), {options.dpi, options.print});
    std::size_t drawn = 0;
    for (std::size_t i = 0; i < list.pages.size(); ++i) {
        if (known.fatal.count(i) > 0) {
            continue;
        }
        const SeriesPage& row = list.pages[i];
        const auto begun = static_cast<double>(i);
        progress(begun);
        Options own = options;
        own.changes = host::Merged(options.changes, row.changes);
        const std::string place = PlaceOf(options, row.line);
        const bool isTold = i < known.told;
        try {
            if (!row.error.empty()) {
                throw Error(row.error);
            }
            const Quiet quiet(place);
            AddRow(
                own, row, isTold ? nullptr : &quiet,
                [&](double part) { return progress(begun + 0.99 * part); }, file);
            ++drawn;
        } catch (const std::bad_alloc&) {
            return kOutOfMemory;
        } catch (const std::exception& error) {
            if (!file.IsGood()) {
                throw Error(options.output, host::LineFor(error));
            }
            if (!isTold) {
                Tell(place + ": " + host::LineFor(error));
            }
        }
    }
    if (drawn > 0) {
        host::Naming(options.output, [&] {
            file.Finish(about, [&output](const std::vector<std::uint8_t>& bytes) {
                output.Write(bytes);
            });
        });
    }
    return std::to_string(drawn);
}

/// Watches the drawing process.
class Watched {
public:
    Watched(const Options& options, std::size_t all) : m_options(options), m_all(all) {}

    /// @param part as DrawRows reports it
    /// @return whether the row may continue
    bool See(double part) {
        const auto row = static_cast<std::size_t>(part);
        if (row != m_row) {
            m_row = row;
            m_begin = Clock::now();
        }
        ShowPages(row, m_all);
        const unsigned limit = m_options.limits.seconds;
        m_isLate = limit > 0 && Clock::now() - m_begin > std::chrono::seconds(limit);
        return !m_isLate;
    }

    std::size_t Row() const { return m_row; }

    /// Why the process ended, if by itself or by its time limit.
    std::string Reason(const std::exception& error) const {
        return m_isLate ? "drawing took longer than its limit of " +
                              std::to_string(m_options.limits.seconds) + " s"
                        : host::LineFor(error);
    }

private:
    const Options& m_options;
    std::size_t m_all;
    std::size_t m_row = 0;
    Clock::time_point m_begin = Clock::now();
    bool m_isLate = false;
};

/// Draws what can be drawn, restarting without each row that ends the process.
/// @return how many pages are in the output
std::size_t Draw(const Options& options, const SeriesList& list,
                 std::optional<host::OutputFile>& output) {
    host::WorkLimits limits = options.limits;
    limits.seconds = 0;  // they are meant for each page
    for (Known known;;) {
        output.emplace(options.output);
        const host::OutputFile draft(options.output);
        Watched watched(options, list.pages.size());
        std::string why;
        try {
            const std::string told = host::InSeparateProcess(
                "drawing",
                [&](const host::Progress& progress) {
                    return DrawRows(options, list, known, draft, *output, progress);
                },
                [&watched](double part) { return watched.See(part); }, limits);
            if (told != kOutOfMemory) {
                return std::stoul(told);
            }
            why = watched.Reason(std::bad_alloc());
        } catch (const host::WorkFailed&) {
            throw;
        } catch (const std::runtime_error& error) {
            why = watched.Reason(error);
        }
        Tell(PlaceOf(options, list.pages[watched.Row()].line) + ": " + why);
        known.fatal.insert(watched.Row());
        known.told = std::max(known.told, watched.Row() + 1);
    }
}

}  // namespace

std::string DrawAtlas(const Options& options, const SeriesList& list) {
    const std::size_t all = list.pages.size();
    const std::string name = host::OneLine(options.series) + ": ";
    if (IsDrawn(options.output)) {
        return name + SumOf(0, all, 0);
    }
    std::optional<host::OutputFile> output;
    const std::size_t drawn = host::Naming(options.output, [&] {
        const std::size_t pages = all == 0 ? 0 : Draw(options, list, output);
        if (pages > 0) {
            output->Commit();
        }
        return pages;
    });
    ProgressLine::Erase(STDERR_FILENO);
    if (drawn < all) {
        throw Error(options.series, SumOf(drawn, 0, all - drawn));
    }
    return name + SumOf(drawn, 0, 0);
}

}  // namespace map_page
