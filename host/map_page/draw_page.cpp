#include "map_page/draw_page.h"

#include <optional>
#include <set>
#include <sstream>
#include <vector>

#include "map_page/error.h"
#include "map_page/safe_drawing.h"
#include "map_page/write_page.h"
#include "page/document/map_on_page.h"
#include "page/document/opened_page.h"
#include "page/document/page_text.h"
#include "page/document/picture_file.h"
#include "page/document/raster_store.h"
#include "system/fonts.h"
#include "system/one_line.h"

namespace map_page {
namespace {

/// The picture element takes any file; so it is opened once before.
void CheckPicture(const std::string& path) {
    const std::string why = path.empty() ? "" : host::CheckImageFile(path);
    if (!why.empty()) {
        throw Error(why);
    }
}

void CheckFont(const std::string& option, const std::string& family) {
    if (!host::IsFontFamilyKnown(family)) {
        throw Error(option, "no font family \"" + family + "\" is installed");
    }
}

/// The page of the page file, or the automatic one around the rasters.
host::OpenedPage Open(const Options& options) {
    if (!options.pageFile.empty()) {
        const std::optional<host::AllowedSources> allowed = AllowedBy(options);
        return host::OpenPageFile(options.pageFile, allowed ? &*allowed : nullptr,
                                  options.changes);
    }
    CheckFont("--title-font", options.titleFamily);
    CheckFont("--legend-font", options.legendFamily);
    CheckPicture(options.picture);
    return host::LayOutRasters(options.rasters, options.design);
}

std::string LineOf(const std::string& name, const host::OutputFile& file,
                   const std::string& told) {
    return host::OneLine(name) + ": " + told + ", " + std::to_string(file.Size()) +
           " bytes";
}

/// No output may be one of the inputs.
void CheckInputsStay(const Options& options, const host::Page& page,
                     const host::RasterStore& rasters) {
    std::vector<std::string> named = options.rasters;
    named.insert(named.end(), options.changes.rasters.begin(),
                 options.changes.rasters.end());
    named.insert(named.end(), {options.pageFile, options.picture, options.series});
    for (const std::string& output : {options.output, options.save}) {
        host::Naming(output,
                     [&] { host::CheckReplacesNoInput(output, page, rasters, named); });
    }
}

/// Warns of each thing once.
class ToldRemarks {
public:
    explicit ToldRemarks(const Quiet& quiet) : m_quiet(quiet) {}

    void Tell(const std::vector<std::string>& remarks) {
        for (const std::string& remark : remarks) {
            if (m_told.insert(remark).second) {
                m_quiet.Warn(remark);
            }
        }
    }
    std::size_t Count() const { return m_told.size(); }

private:
    const Quiet& m_quiet;
    std::set<std::string> m_told;
};

}  // namespace

OutputFiles::OutputFiles(const Options& options) {
    if (!options.output.empty()) {
        host::Naming(options.output, [&] { output.emplace(options.output); });
    }
    if (!options.save.empty()) {
        host::Naming(options.save, [&] { saved.emplace(options.save); });
    }
}

std::string DrawPage(const Options& options, const OutputFiles& files,
                     const Quiet& quiet) {
    CheckInputsStay(options, host::Page(1.0, 1.0), host::RasterStore());
    const host::OpenedPage opened = Open(options);
    CheckInputsStay(options, opened.page, *opened.rasters);
    ToldRemarks remarks(quiet);
    remarks.Tell(opened.remarks);
    std::string told;
    if (files.output) {
        told = WriteInto(options, opened.page, *files.output, quiet) + "\n";
        // A map without data is known when it has been drawn.
        remarks.Tell(host::RemarksOfMaps(opened.page));
    }
    if (files.saved) {
        files.saved->Write(host::PageFileBytes(opened.page, options.save));
        told += std::to_string(opened.page.Items().size()) + " elements\n";
    }
    for (const auto* const file : {&files.output, &files.saved}) {
        if (*file && !(*file)->Remark().empty()) {
            remarks.Tell({(*file)->Remark()});
        }
    }
    if (options.isStrict && remarks.Count() > 0) {
        throw Error(options.output.empty() ? options.save : options.output,
                    "is not written, for --strict allows no warnings");
    }
    return told;
}

std::string Finish(const Options& options, OutputFiles& files, const std::string& told) {
    std::istringstream lines(told);
    std::string line;
    std::string summary;
    if (files.output) {
        std::getline(lines, line);
        summary = LineOf(options.output, *files.output, line);
    }
    if (files.saved) {
        std::getline(lines, line);
        summary +=
            (summary.empty() ? "" : "\n") + LineOf(options.save, *files.saved, line);
        host::Naming(options.save, [&] { files.saved->Commit(); });
    }
    if (files.output) {
        host::Naming(options.output, [&] { files.output->Commit(); });
    }
    return summary;
}

void CheckSeries(const Options& options, const std::vector<std::string>& columns) {
    const std::optional<host::AllowedSources> allowed = AllowedBy(options);
    const host::Page page = host::Naming(options.pageFile, [&] {
        return host::LoadPage(options.pageFile, allowed ? &*allowed : nullptr);
    });
    for (const std::string& column : columns) {
        if (!host::HasText(page, column)) {
            throw Error(options.series,
                        "the column \"" + column + "\" is no element with a text in " +
                            options.pageFile + ", and not in the output's name");
        }
    }
}

}  // namespace map_page
