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
#include "map_page/map_options.h"
#include "map_page/series_list.h"
#include "map_page/style_options.h"
#include "map_page/template_options.h"
#include "map_page/values.h"
#include "map_surround/version.h"
#include "page/colour_text.h"
#include "page/document/opened_page.h"
#include "page/document/schema.h"
#include "page/output/world_file.h"
#include "system/confinement.h"

namespace map_page {
namespace {

constexpr const char* kSeeHelp = "see map_page --help";
constexpr const char* kDescription =
    "Draws rasters as a map on a page with a title, a legend, a scale bar, a north arrow "
    "and a picture, into an image file; or draws a page file.";

constexpr const char* kFooter = R"(
The rasters lie on each other as in a list of layers: the first is on top and sets the
coordinate system. The map spans all of them. A raster that has another coordinate system
or no georeference is left off the map, with a warning.

A first name that ends in .json is a page file: drawn as it says, but for what options say
otherwise, and with the rasters that follow it in place of its own. --save writes one, of
the page that would be drawn, to be changed by hand; docs/page_file.md tells what it says.

A page file may be another's. So it, and the list of a series, may have plain files read
that lie below their folders, and nothing is written but the output; what follows from
that, and what --allow-outside, --allow-remote and --allow-all change, is there as well.

A series draws one page for each row of a list of comma-separated values. Its first row
names the columns: rasters (files with ; between), extent (left bottom right top), names of
options, such as scale and title-size, and names of elements, such as title, whose text the
row has. Any column may be part of the output's name. An empty cell leaves what the page file says.
A PDF file without a column in its name has all pages, and a bookmark each.
Outputs that are there are not drawn again. docs/series.md tells the rest.

A raster is stretched by all of its values, so that one value has one shade on every page
and in the legend, whose range is the range drawn. Classes keep their colours.

COLOR is on (the default colour), off, #RRGGBB, #RRGGBBAA or one of
{colours}.

Whatever on a page a reader would stumble over is told in a line of its own: an element
that leaves its frame or the sheet, lies over another one or over the edge of a map, or is
written in less than 5 points. --strict takes that, and every other warning, for a failure.

Exit status: 0 when the page was drawn, 1 when it could not be, 2 for a wrong call.

Examples:
  map_page scene.tif -o page.png --title "Olinda" --picture logo.png
  map_page west.tif east.tif -o page.jpg --size A3 --dpi 300 --shadow off
  map_page scene.tif --title "Olinda" --save page.json
  map_page page.json -o page.png
  map_page page.json -o a3.pdf --size A3 --scale 1:25000 --title "Recife"
  map_page page.json --series sheets.csv -o 'sheets/{name}.png' --jobs 4)";

/// Lists the colour names, several per line.
std::string Footer() {
    constexpr std::size_t kNamesInALine = 12;
    constexpr std::string_view kPlace = "{colours}";
    std::string names;
    std::size_t count = 0;
    for (const std::string& name : host::ColourNames()) {
        names += (count++ % kNamesInALine == 0 ? "\n" : " ") + name;
    }
    std::string footer = kFooter;
    return footer.replace(footer.find(kPlace), kPlace.size(), names.substr(1));
}

std::string EndingsOfImages() {
    return host::EndingsOfThose(
        [](const host::OutputFormatFacts& facts) { return !facts.isForPrint; });
}

std::string EndingsForPrint() {
    return host::EndingsOfThose(
        [](const host::OutputFormatFacts& facts) { return facts.isForPrint; });
}

void DeclareTitle(CLI::App& app, Given& given, host::TitleDesign& title) {
    app.add_option("--title", given.title, "Title above the map")
        ->type_name("TEXT")
        ->group("Title");
    app.add_option("--title-font", given.titleFont, "Font family (Arial)")
        ->type_name("NAME")
        ->group("Title");
    app.add_option("--title-size", title.points, "Type size (what suits the page)")
        ->check(NumberIn(1.0, 1000.0))
        ->type_name("POINTS")
        ->group("Title");
    AddChoice(app, "--title-style", title.style, FontStyles(), "How it is set (bold)")
        ->type_name("STYLE")
        ->group("Title");
}

void DeclareLegend(CLI::App& app, Given& given) {
    app.add_option("--legend-title", given.legendTitle,
                   "First line (the language's word for a legend)")
        ->type_name("TEXT")
        ->group("Legend");
    app.add_option("--legend-font", given.legendFont,
                   "Font family of the first line and the file names (Arial)")
        ->type_name("NAME")
        ->group("Legend");
    app.add_flag("--no-legend", given.noLegend, "Leave the legend out")->group("Legend");
}

void DeclareSafety(CLI::App& app, Options& options) {
    app.add_option(
           "--allow-outside", options.allowedFolders,
           "A page file may have this file, or those below this folder, read, too")
        ->check(CLI::ExistingPath)
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->type_name("PATH")
        ->group("Safety");
    app.add_flag("--allow-remote", options.allowRemote,
                 "It may name services, and files on the network")
        ->group("Safety");
    app.add_flag("--allow-all", options.allowAll,
                 "It may name whatever GDAL opens, as if on the command line")
        ->group("Safety");
    app.add_option("--limit-memory", options.limits.megabytes,
                   "Memory that a page may take (all there is)")
        ->check(CLI::Range(1U, 1'048'576U, "1 to 1048576"))
        ->type_name("MB")
        ->group("Safety");
    app.add_option("--limit-time", options.limits.seconds,
                   "Time that a page may take (as long as it takes)")
        ->check(CLI::Range(1U, 1'000'000U, "1 to 1000000"))
        ->type_name("SECONDS")
        ->group("Safety");
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
        {"--author", &options.about.author, "Who made the page, likewise"},
        {"--subject", &options.about.subject, "What it is about, likewise"},
        {"--keywords", &options.about.keywords, "To find it by, likewise"},
    };
    for (const auto& row : rows) {
        app.add_option(row.name, *row.text, row.about)
            ->type_name("TEXT")
            ->group("Properties");
    }
    AddChoice(app, "--pdf-standard", options.print.standard,
              Words<host::PdfStandard>{{"ua-1", host::PdfStandard::Ua1},
                                       {"a-2u", host::PdfStandard::A2u}},
              "Whose rules a .pdf keeps: PDF/UA-1, or PDF/A-2u as\nwell (ua-1)")
        ->type_name("NAME")
        ->group("Properties");
}

std::string Version() {
    return "map_page " MAP_SURROUND_VERSION_STRING
           "\nThe process that draws a page file: " +
           host::ConfinementHere();
}

void Declare(CLI::App& app, Given& given, Options& options) {
    app.set_version_flag("--version", Version, "Print the version and exit");
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.add_flag_callback(
        "--schema",
        [&given] {
            given.schema = true;
            throw CLI::Success();
        },
        "Print the JSON Schema of page files and exit");
    app.footer(Footer());

    app.add_option("RASTER", given.rasters,
                   "Any raster that GDAL opens, the first on top; a page file, "
                   ".json,\nmay come before them")
        ->required()
        ->type_name("");
    app.add_option("-o,--output", options.output,
                   "File to write: " + EndingsOfImages() + ", or\n" + EndingsForPrint() +
                       ", whose texts and shapes are no pixels")
        ->type_name("FILE");
    app.add_option("--save", options.save, "Page file to write, .json; needs no --output")
        ->type_name("FILE");

    AddChoice(app, "--map-images", options.print.mapImages,
              Words<host::MapImages>{{"lossless", host::MapImages::Lossless},
                                     {"jpeg", host::MapImages::Jpeg}},
              "How maps are kept in " + EndingsForPrint() + " (lossless)")
        ->type_name("KIND");
    app.add_flag("--world-file", options.hasWorldFile,
                 "Also write where the picture's pixels lie on the map: page.pgw of\n"
                 "page.png, .jgw of .jpg, and the coordinate system, page.png.aux.xml");

    app.add_flag("--strict", options.isStrict,
                 "Take every warning for a failure: write nothing, end with status 1");

    CLI::Option* const series =
        app.add_option("--series", options.series,
                       "List of pages, .csv: one page a row; --output has\n{column}s, or "
                       "is one .pdf for all")
            ->type_name("FILE")
            ->group("Series of a page file");
    app.add_option("--jobs", options.jobs, "Pages drawn at a time (1)")
        ->check(CLI::Range(1, 256, "1 to 256"))
        ->needs(series)
        ->type_name("COUNT")
        ->group("Series of a page file");

    DeclareTitle(app, given, options.design.title);
    app.add_option("--picture", given.picture,
                   "Image beside the map, such as a logo: PNG, JPEG, BMP, TIFF or GIF")
        ->type_name("FILE")
        ->group("Picture");
    DeclareStyle(app, given.style);
    DeclareLegend(app, given);
    DeclareMap(app, options);
    DeclareScaleBar(app, options);
    DeclareNorthArrow(app, options);
    DeclareSafety(app, options);
    DeclareAbout(app, options);

    app.add_option("--language", given.language,
                   "Of the words of legend and scale bar (the locale's, else en;\nof a "
                   "page file its own)")
        ->check(CLI::IsMember(ChoicesOfBars<std::int32_t>("language")))
        ->type_name("CODE")
        ->group("Page");
    app.add_option("--size", given.size,
                   host::PaperNames() + ", or millimetres as WIDTHxHEIGHT (A4)")
        ->type_name("SIZE")
        ->group("Page");
    app.add_flag("--portrait", given.portrait, "Stand the page upright")->group("Page");
    AddChoice(
        app, "--layout", options.design.layout, LayoutDesigns(),
        "Of the automatic page. classic: title on top, the rest beside or below\nthe "
        "map, wherever that leaves the larger map; side: all beside it; bottom:\nall "
        "below it (classic)")
        ->type_name("NAME")
        ->group("Page");
    app.add_option("--dpi", options.dpi, "Resolution, in pixels an inch (150)")
        ->check(NumberIn(10.0, 2400.0))
        ->type_name("NUMBER")
        ->group("Page");

    app.add_option("--border", given.border, "Border of the frames (on)")
        ->type_name("COLOR")
        ->group("Frames");
    app.add_option("--shadow", given.shadow, "Shadow of the frames (on)")
        ->type_name("COLOR")
        ->group("Frames");
    app.add_option("--background", given.background, "Background of the frames (on)")
        ->type_name("COLOR")
        ->group("Frames");
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
                throw UsageError(name, "goes with a page file only");
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
            "goes with an output in " +
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
        throw UsageError("--pdf-standard", "goes with an output in .pdf");
    }
    if (options.print.mapImages == host::MapImages::Jpeg &&
        !(options.format && host::IsForPrint(*options.format))) {
        throw UsageError("--map-images", "goes with an output in " + EndingsForPrint());
    }
    if (options.jobs > 1 && IsAtlas(options.output)) {
        throw UsageError("--jobs", "goes with an output for each page");
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
    CLI::App app(kDescription, "map_page");
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
