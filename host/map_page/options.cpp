#include "map_page/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "map_page/error.h"
#include "map_page/given.h"
#include "map_page/help.h"
#include "map_page/map_options.h"
#include "map_page/series_list.h"
#include "map_page/style_options.h"
#include "map_page/template_options.h"
#include "map_page/values.h"
#include "map_surround/version.h"
#include "page/document/opened_page.h"
#include "page/document/schema.h"
#include "page/output/world_file.h"
#include "system/confinement.h"

namespace map_page {
namespace {

constexpr const char* kSeeHelp = "see map_page --help";
std::string EndingsOfImages() {
    return host::EndingsOfThose(
        [](const host::OutputFormatFacts& facts) { return !facts.isForPrint; });
}

std::string EndingsForPrint() {
    return host::EndingsOfThose(
        [](const host::OutputFormatFacts& facts) { return facts.isForPrint; });
}

void DeclareTitle(CLI::App& app, Given& given, host::TitleDesign& title) {
    AddOption(app, "Title", "--title", given.title, "TEXT", "Title above the map");
    AddOption(app, "Title", "--title-font", given.titleFont, "NAME",
              "Font family (Arial)");
    AddOption(app, "Title", "--title-size", title.points, "POINTS",
              "Type size (what suits the page)")
        ->check(NumberIn(1.0, 1000.0));
    AddChoice(app, "Title", "--title-style", title.style, "STYLE", FontStyles(),
              "Font style (bold)");
}

void DeclareLegend(CLI::App& app, Given& given) {
    AddOption(app, "Legend", "--legend-title", given.legendTitle, "TEXT",
              "First line (the language's word for a legend)");
    AddOption(app, "Legend", "--legend-font", given.legendFont, "NAME",
              "Font family of the first line and the file names (Arial)");
    app.add_flag("--no-legend", given.noLegend, "Leave the legend out")->group("Legend");
}

void DeclareSafety(CLI::App& app, Options& options) {
    AddOption(app, "Safety", "--allow-outside", options.allowedFolders, "PATH",
              "Let a page file have this file, or those below this folder, read, too")
        ->check(CLI::ExistingPath)
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    app.add_flag("--allow-remote", options.allowRemote,
                 "Let it use services and files on the network")
        ->group("Safety");
    app.add_flag("--allow-all", options.allowAll,
                 "Let it use whatever GDAL opens, as on the command line")
        ->group("Safety");
    AddOption(app, "Safety", "--limit-memory", options.limits.megabytes, "MB",
              "Memory that a page may use (no limit)")
        ->check(CLI::Range(1U, 1'048'576U, "1 to 1048576"));
    AddOption(app, "Safety", "--limit-time", options.limits.seconds, "SECONDS",
              "Time that a page may take (no limit)")
        ->check(CLI::Range(1U, 1'000'000U, "1 to 1000000"));
}

/// The document properties of the output.
void DeclareAbout(CLI::App& app, Options& options) {
    const struct {
        const char* name;
        std::string* text;
        const char* about;
    } rows[] = {
        {"--document-title", &options.about.title,
         "Title in the properties of .pdf files (the page's)"},
        {"--author", &options.about.author, "Author, likewise"},
        {"--subject", &options.about.subject, "Subject, likewise"},
        {"--keywords", &options.about.keywords, "Keywords for searching, likewise"},
    };
    for (const auto& row : rows) {
        AddOption(app, "Properties", row.name, *row.text, "TEXT", row.about);
    }
    AddChoice(app, "Properties", "--pdf-standard", options.print.standard, "NAME",
              Words<host::PdfStandard>{{"ua-1", host::PdfStandard::Ua1},
                                       {"a-2u", host::PdfStandard::A2u}},
              "Standard that a .pdf follows: PDF/UA-1, or PDF/A-2u as\nwell (ua-1)");
}

/// The list of a series, and how it is drawn.
void DeclareSeries(CLI::App& app, Options& options) {
    constexpr const char* kGroup = "Series of a page file";
    CLI::Option* const series =
        AddOption(app, kGroup, "--series", options.series, "FILE",
                  "List of pages, .csv: one page per row; --output has\n{column}s, or "
                  "is one .pdf for all");
    AddOption(app, kGroup, "--jobs", options.jobs, "COUNT", "Pages drawn at a time (1)")
        ->check(CLI::Range(1, 256, "1 to 256"))
        ->needs(series);
}

void DeclarePage(CLI::App& app, Given& given, Options& options) {
    AddOption(app, "Page", "--language", given.language, "CODE",
              "Language of legend and scale bar (the locale's, else en;\nof a page file "
              "its own)")
        ->check(CLI::IsMember(ChoicesOfBars<std::int32_t>("language")));
    AddOption(app, "Page", "--size", given.size, "SIZE",
              host::PaperNames() + ", or millimetres as WIDTHxHEIGHT (A4)");
    app.add_flag("--portrait", given.portrait, "Portrait orientation")->group("Page");
    AddChoice(
        app, "Page", "--layout", options.design.layout, "NAME", LayoutDesigns(),
        "Of the automatic page. classic: title on top, the rest beside or below\nthe "
        "map, wherever that leaves the larger map; side: all beside it; bottom:\nall "
        "below it (classic)");
    AddOption(app, "Page", "--dpi", options.dpi, "NUMBER",
              "Resolution, in pixels per inch (150)")
        ->check(NumberIn(10.0, 2400.0));

    AddOption(app, "Frames", "--border", given.border, "COLOR",
              "Border of the frames (on)");
    AddOption(app, "Frames", "--shadow", given.shadow, "COLOR",
              "Shadow of the frames (on)");
    AddOption(app, "Frames", "--background", given.background, "COLOR",
              "Background of the frames (on)");
}

std::string Version() {
    return "map_page " MAP_SURROUND_VERSION_STRING
           "\nThe process that draws a page file: " +
           host::ConfinementHere();
}

void Declare(CLI::App& app, Given& given, Options& options) {
    constexpr const char* kGeneral = "Options";
    app.set_version_flag("--version", Version, "Print the version and exit");
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.add_flag_callback(
        "--schema",
        [&given] {
            given.schema = true;
            throw CLI::Success();
        },
        "Print the JSON Schema of page files and exit");
    app.footer(HelpFooter());

    app.add_option("RASTER", given.rasters,
                   "Any raster that GDAL opens, the first on top; a page file, "
                   ".json,\nmay come before them")
        ->required()
        ->type_name("");
    AddOption(app, kGeneral, "-o,--output", options.output, "FILE",
              "File to write: " + EndingsOfImages() + ", or\n" + EndingsForPrint() +
                  ", in which texts and shapes are not pixels");
    AddOption(app, kGeneral, "--save", options.save, "FILE",
              "Page file to write, .json; needs no --output");
    AddChoice(app, kGeneral, "--map-images", options.print.mapImages, "KIND",
              Words<host::MapImages>{{"lossless", host::MapImages::Lossless},
                                     {"jpeg", host::MapImages::Jpeg}},
              "How maps are stored in " + EndingsForPrint() + " (lossless)");
    app.add_flag("--world-file", options.hasWorldFile,
                 "Also write the coordinates of the image's pixels: page.pgw for\n"
                 "page.png, .jgw for .jpg, and the coordinate system, page.png.aux.xml");
    app.add_flag("--strict", options.isStrict,
                 "Make every warning a failure: write nothing, exit with status 1");

    DeclareSeries(app, options);
    DeclareTitle(app, given, options.design.title);
    AddOption(app, "Picture", "--picture", given.picture, "FILE",
              "Image beside the map, such as a logo: PNG, JPEG, BMP, TIFF or GIF");
    DeclareStyle(app, given.style);
    DeclareLegend(app, given);
    DeclareMap(app, options);
    DeclareScaleBar(app, options);
    DeclareNorthArrow(app, options);
    DeclareSafety(app, options);
    DeclareAbout(app, options);
    DeclarePage(app, given, options);
}

bool IsOfPageFile(const Given& given) { return host::IsPageFile(given.rasters.front()); }

/// Those that are only for a page file.
constexpr const char* kOnlyWithPageFile[] = {"--series", "--allow-outside",
                                             "--allow-remote", "--allow-all"};

void CheckCall(const CLI::App& app, const Given& given, const Options& options) {
    if (options.output.empty() && options.save.empty()) {
        throw UsageError("--output or --save is required", kSeeHelp);
    }
    if (!options.save.empty() && !host::IsPageFile(options.save)) {
        throw UsageError(options.save, "does not end in .json");
    }
    if (!IsOfPageFile(given)) {
        for (const char* const name : kOnlyWithPageFile) {
            if (app.get_option(name)->count() > 0) {
                throw UsageError(name, "needs a page file");
            }
        }
        return;
    }
    CheckGoesWithPageFile(app, given);
}

host::OutputFormat FormatOf(const std::string& output) {
    try {
        return host::OutputFormatOf(output);
    } catch (const std::runtime_error& error) {
        throw UsageError(output, error.what());
    }
}

void CheckWorldFile(const std::string& output) {
    if (output.empty() || host::WorldFilesOf(output).world.empty()) {
        throw UsageError(
            "--world-file",
            "needs an output in " +
                host::EndingsOfThose([](const host::OutputFormatFacts& facts) {
                    return facts.worldFile[0] != '\0';
                }));
    }
}

/// Fills in what depends on more than the command line.
void Complete(const CLI::App& app, const Given& given, Options& options) {
    options.rasters = given.rasters;
    if (IsOfPageFile(given)) {
        options.pageFile = given.rasters.front();
        options.rasters.erase(options.rasters.begin());
    }
    if (!options.output.empty()) {
        options.format = FormatOf(options.output);
    }
    if (app.get_option("--pdf-standard")->count() > 0 &&
        options.format != host::OutputFormat::Pdf) {
        throw UsageError("--pdf-standard", "needs an output in .pdf");
    }
    if (options.print.mapImages == host::MapImages::Jpeg &&
        !(options.format && host::IsForPrint(*options.format))) {
        throw UsageError("--map-images", "needs an output in " + EndingsForPrint());
    }
    if (options.jobs > 1 && IsAtlas(options.output)) {
        throw UsageError("--jobs", "needs an output for each page");
    }
    if (options.hasWorldFile) {
        CheckWorldFile(options.output);
    }

    host::PageDesign& design = options.design;
    for (const auto& [option, text] :
         {std::pair("--document-title", &options.about.title),
          std::pair("--author", &options.about.author),
          std::pair("--subject", &options.about.subject),
          std::pair("--keywords", &options.about.keywords)}) {
        ReadText(option, *text);  // throws for invalid text
    }
    design.paper = ReadPaper("--size", given.size, given.portrait);

    options.titleFamily = given.titleFont;
    design.title.text = ReadText("--title", given.title);
    design.title.family = ReadText("--title-font", given.titleFont);

    options.picture = given.picture;
    design.picture.path = ReadText("--picture", given.picture);

    options.legendFamily = given.legendFont;
    design.legend.shown = !given.noLegend;
    if (app.get_option("--legend-title")->count() > 0) {
        design.legend.title = ReadText("--legend-title", given.legendTitle);
    }
    design.language = given.language.empty() ? &host::LanguageOfLocale()
                                             : host::FindLanguage(given.language);
    design.legend.family = ReadText("--legend-font", given.legendFont);
    options.design.map.style = ReadStyle(given.style);

    const host::FrameStyle byDefault;
    design.frames.border = ReadColor("--border", given.border, byDefault.border);
    design.frames.shadow = ReadColor("--shadow", given.shadow, byDefault.shadow);
    design.frames.background =
        ReadColor("--background", given.background, byDefault.background);
    if (IsOfPageFile(given)) {
        options.changes = TemplateChanges(app, given, options);
    }
}

}  // namespace

std::variant<Options, std::string> ReadCommandLine(int argc, const char* const* argv) {
    CLI::App app(HelpDescription(), "map_page");
    Given given;
    Options options;
    Declare(app, given, options);
    try {
        std::vector<std::string> arguments = Arguments(argc, argv);
        std::reverse(arguments.begin(), arguments.end());  // as CLI11 takes them
        app.parse(std::move(arguments));
    } catch (const CLI::Success& asked) {
        std::ostringstream said;
        app.exit(asked, said, said);
        return given.schema ? host::PageSchema() : said.str();
    } catch (const CLI::ParseError& error) {
        throw UsageError(error.what(), kSeeHelp);
    }
    CheckCall(app, given, options);
    Complete(app, given, options);
    return options;
}

}  // namespace map_page
