#include "map_page/series.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <exception>
#include <iterator>
#include <map>
#include <optional>
#include <system_error>
#include <vector>

#include "map_page/atlas.h"
#include "map_page/error.h"
#include "map_page/progress_line.h"
#include "map_page/safe_drawing.h"
#include "map_page/series_list.h"
#include "system/child_process.h"
#include "system/errors.h"
#include "system/one_line.h"

namespace map_page {
namespace {

/// The processes that are drawing pages, and the results of those that ended.
class Workers {
public:
    Workers(const Options& options, std::size_t all, const DrawOne& draw)
        : m_options(options), m_all(all), m_draw(draw) {}

    std::string Sum() const { return SumOf(m_drawn, m_skipped, m_failed); }
    bool AnyFailed() const { return m_failed > 0; }

    void Take(const SeriesPage& page) {
        if (!page.error.empty()) {
            Fail(page.line, page.error);
        } else if (IsDrawn(page.output)) {
            ++m_skipped;
        } else {
            while (m_running.size() >= static_cast<std::size_t>(m_options.jobs)) {
                WaitForOne();
            }
            Begin(page);
        }
    }

    void WaitForAll() {
        while (!m_running.empty()) {
            WaitForOne();
        }
        ProgressLine::Erase(STDERR_FILENO);
    }

private:
    void Fail(std::size_t line, const std::string& why) {
        ++m_failed;
        Tell(PlaceOf(m_options, line) + ": " + why);
        ShowProgress();
    }

    void Begin(const SeriesPage& page) {
        const pid_t process = host::StartChild([&] { return Draw(page); });
        if (process < 0) {
            Fail(page.line, std::generic_category().message(errno));
            return;
        }
        m_running.emplace(process, page.line);
    }

    /// In the page's process.
    int Draw(const SeriesPage& page) const {
        Options options = m_options;
        options.output = page.output;
        options.changes = host::Merged(m_options.changes, page.changes);
        const std::string place = PlaceOf(m_options, page.line);
        try {
            m_draw(options, place);
            return 0;
        } catch (const std::exception& error) {
            Tell(place + ": " + host::LineFor(error));
            return 1;
        }
    }

    void WaitForOne() {
        int status = 0;
        const pid_t process = wait(&status);
        const auto found = m_running.find(process);
        if (found == m_running.end()) {
            return;
        }
        const std::size_t line = found->second;
        m_running.erase(found);
        if (WIFSIGNALED(status)) {
            Fail(line, std::string("drawing ended: ") + strsignal(WTERMSIG(status)));
            return;
        }
        ++(WEXITSTATUS(status) == 0 ? m_drawn : m_failed);
        ShowProgress();
    }

    void ShowProgress() const { ShowPages(m_drawn + m_skipped + m_failed, m_all); }

    const Options& m_options;
    std::size_t m_all;
    const DrawOne& m_draw;
    std::map<pid_t, std::size_t> m_running;  // and their lines
    std::size_t m_drawn = 0;
    std::size_t m_skipped = 0;
    std::size_t m_failed = 0;
};

/// The columns that are useless unless the page has an element with that name.
std::vector<std::string> ColumnsWithoutUse(const SeriesList& list) {
    std::vector<std::string> columns;
    std::copy_if(list.textColumns.begin(), list.textColumns.end(),
                 std::back_inserter(columns), [&list](const std::string& column) {
                     return std::find(list.nameColumns.begin(), list.nameColumns.end(),
                                      column) == list.nameColumns.end();
                 });
    return columns;
}

/// A missing folder is not the fault of any row.
void CheckFolder(const std::string& output) {
    const std::size_t slash = output.rfind('/');
    const std::string folder =
        slash == std::string::npos ? "." : output.substr(0, slash + 1);
    if (folder.find('{') == std::string::npos && access(folder.c_str(), F_OK) != 0) {
        throw Error(folder, std::generic_category().message(errno));
    }
}

}  // namespace

bool IsDrawn(const std::string& output) {
    struct stat status = {};
    return stat(output.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_size > 0;
}

void Tell(const std::string& what) {
    ProgressLine::Erase(STDERR_FILENO);
    dprintf(STDERR_FILENO, "map_page: %s\n", host::OneLine(what).c_str());
}

void ShowPages(std::size_t done, std::size_t all) {
    if (isatty(STDERR_FILENO) != 0) {
        dprintf(STDERR_FILENO, "\rmap_page: %zu of %zu pages\033[K", done, all);
    }
}

std::string PlaceOf(const Options& options, std::size_t line) {
    return options.series + ": line " + std::to_string(line);
}

std::string SumOf(std::size_t drawn, std::size_t skipped, std::size_t failed) {
    return std::to_string(drawn) + " drawn, " + std::to_string(skipped) +
           " already there, " + std::to_string(failed) + " failed";
}

std::string DrawSeries(const Options& options, const CheckColumns& checkColumns,
                       const DrawOne& draw) {
    CheckFolder(options.output);
    const std::optional<host::AllowedSources> allowed = AllowedBy(options);
    const SeriesList list =
        ReadSeries(options.series, options.output, allowed ? &*allowed : nullptr);
    checkColumns(ColumnsWithoutUse(list));
    if (IsAtlas(options.output)) {
        return DrawAtlas(options, list);
    }
    Workers workers(options, list.pages.size(), draw);
    for (const SeriesPage& page : list.pages) {
        workers.Take(page);
    }
    workers.WaitForAll();
    if (workers.AnyFailed()) {
        throw Error(options.series, workers.Sum());
    }
    return host::OneLine(options.series) + ": " + workers.Sum();
}

}  // namespace map_page
