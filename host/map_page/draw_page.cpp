#include "map_page/draw_page.h"

#include <unistd.h>

#include <iterator>
#include <optional>
#include <sstream>
#include <vector>

#include "map_page/error.h"
#include "map_page/safe_drawing.h"
#include "map_page/told_remarks.h"
#include "map_page/write_page.h"
#include "page/document/opened_page.h"
#include "page/document/page_text.h"
#include "page/document/picture_file.h"
#include "page/document/raster_store.h"
#include "page/layout/map_on_page.h"
#include "page/output/world_file.h"
#include "system/fonts.h"
#include "system/one_line.h"

namespace map_page {
namespace {

/// The picture element accepts any file, so it is opened here first.
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

/// Their names, empty when not asked for.
host::WorldFiles BesideOutput(const Options& options) {
    return options.hasWorldFile ? host::WorldFilesOf(options.output) : host::WorldFiles();
}

/// No output may be one of the inputs.
void CheckInputsStay(const Options& options, const host::Page& page,
                     const host::RasterStore& rasters) {
    std::vector<std::string> named = options.rasters;
    named.insert(named.end(), options.changes.rasters.begin(),
                 options.changes.rasters.end());
    named.insert(named.end(), {options.pageFile, options.picture, options.series});
    const host::WorldFiles beside = BesideOutput(options);
    for (const std::string& output :
         {options.output, options.save, beside.world, beside.system}) {
        host::Naming(output,
                     [&] { host::CheckReplacesNoInput(output, page, rasters, named); });
    }
}

/// Throws where the page's pixels have no coordinates.
std::string WriteWorldFiles(const Options& options, const host::Page& page,
                            const OutputFiles& files) {
    std::string why;
    const std::optional<host::Georeference> georeference =
        host::GeoreferenceOf(page, options.dpi, why);
    if (!georeference) {
        throw Error("--world-file", why);
    }
    const auto write = [](const host::OutputFile& file, const std::string& text) {
        file.Write({text.begin(), text.end()});
    };
    write(*files.world, host::WorldText(*georeference));
    write(*files.system, host::SystemText(*georeference));
    return "world file\ncoordinate system\n";
}

/// Readers take any world file that lies beside an image.
std::vector<std::string> RemarksOfWorldFile(const Options& options) {
    if (options.hasWorldFile || !options.format) {
        return {};
    }
    const std::string world = host::WorldFilesOf(options.output).world;
    return !world.empty() && access(world.c_str(), F_OK) == 0
               ? std::vector<std::string>{world +
                                          " is not of this page; --world-file renews it"}
               : std::vector<std::string>();
}

}  // namespace

OutputFiles::OutputFiles(const Options& options) {
    if (!options.output.empty()) {
        host::Naming(options.output, [&] { output.emplace(options.output); });
    }
    if (!options.save.empty()) {
        host::Naming(options.save, [&] { saved.emplace(options.save); });
    }
    if (options.hasWorldFile) {
        const host::WorldFiles beside = BesideOutput(options);
        host::Naming(beside.world, [&] { world.emplace(beside.world); });
        host::Naming(beside.system, [&] { system.emplace(beside.system); });
    }
}

void SayOfPage(const Options& options, host::Page& page) {
    for (std::string host::PageAbout::*const text :
         {&host::PageAbout::title, &host::PageAbout::author, &host::PageAbout::subject,
          &host::PageAbout::keywords}) {
        const std::string& given = options.about.*text;
        page.About().*text = given.empty() ? page.About().*text : given;
    }
}

host::OpenedPage OpenToDraw(const Options& options) {
    CheckInputsStay(options, host::Page(1.0, 1.0), host::RasterStore());
    host::OpenedPage opened = Open(options);
    CheckInputsStay(options, opened.page, *opened.rasters);
    SayOfPage(options, opened.page);
    return opened;
}

std::string DrawPage(const Options& options, const OutputFiles& files,
                     const Quiet& quiet) {
    const host::OpenedPage opened = OpenToDraw(options);
    ToldRemarks remarks(&quiet);
    remarks.Tell(opened.remarks);
    remarks.Tell(RemarksOfWorldFile(options));
    std::string told;
    const std::string ofWorld =
        files.world ? WriteWorldFiles(options, opened.page, files) : "";
    if (files.output) {
        told = WriteInto(options, opened.page, *files.output, quiet) + "\n";
        // Only drawing shows whether a map has data.
        remarks.Tell(host::RemarksOfMaps(opened.page));
    }
    if (files.saved) {
        files.saved->Write(host::PageFileBytes(opened.page, options.save));
        told += std::to_string(opened.page.Items().size()) + " elements\n";
    }
    told += ofWorld;
    for (const auto* const file :
         {&files.output, &files.saved, &files.world, &files.system}) {
        if (*file && !(*file)->Remark().empty()) {
            remarks.Tell({(*file)->Remark()});
        }
    }
    if (options.isStrict && remarks.Count() > 0) {
        throw Error(options.output.empty() ? options.save : options.output,
                    "is not written: --strict allows no warnings");
    }
    return told;
}

std::string Finish(const Options& options, OutputFiles& files, const std::string& told) {
    const host::WorldFiles beside = BesideOutput(options);
    struct Named {
        const std::string& name;
        std::optional<host::OutputFile>& file;
    };
    const Named all[] = {{options.output, files.output},
                         {options.save, files.saved},
                         {beside.world, files.world},
                         {beside.system, files.system}};
    std::istringstream lines(told);
    std::string summary;
    for (const Named& one : all) {
        std::string line;
        if (one.file && std::getline(lines, line)) {
            summary += (summary.empty() ? "" : "\n") + LineOf(one.name, *one.file, line);
        }
    }
    // The output last: once it is there, everything that belongs to it is too.
    for (auto one = std::rbegin(all); one != std::rend(all); ++one) {
        if (one->file) {
            host::Naming(one->name, [&] { one->file->Commit(); });
        }
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
            throw Error(options.series, "the column \"" + column +
                                            "\" is not an element with a text in " +
                                            options.pageFile +
                                            ", and not in the output's name");
        }
    }
}

}  // namespace map_page
