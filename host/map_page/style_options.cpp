#include "map_page/style_options.h"

#include <CLI/CLI.hpp>
#include <string_view>

#include "map_page/error.h"
#include "map_page/values.h"
#include "system/number_text.h"

namespace map_page {
namespace {

void Check(const char* option, const std::optional<std::string>& text,
           std::string (*whyNot)(std::string_view)) {
    const std::string why = text ? whyNot(*text) : std::string();
    if (!why.empty()) {
        throw UsageError(option, why);
    }
}

}  // namespace

void DeclareStyle(CLI::App& app, GivenStyle& given) {
    AddOption(app, "Map", "--stretch", given.stretch, "HOW",
              "Which values are black and white: none (0 and 255), minmax,\npercent "
              "LOW HIGH, stddev COUNT, or auto: none for bytes that\nare red, green "
              "and blue, percent 2 98 for three other bands,\nminmax for one (auto)");
    AddOption(app, "Map", "--bands", given.bands, "NUMBERS",
              "Numbers of the bands shown: RED,GREEN,BLUE, or one as grey\n(those that "
              "the raster marks as such)");
    AddOption(app, "Map", "--nodata", given.noData, "VALUE",
              "Value of pixels that are not drawn, or none (the raster's own)");
}

host::RasterStyle ReadStyle(const GivenStyle& given) {
    using host::RasterStyle;
    Check("--stretch", given.stretch, RasterStyle::WhyNoStretch);
    Check("--bands", given.bands, RasterStyle::WhyNoBands);
    Check("--nodata", given.noData, RasterStyle::WhyNoNoData);
    RasterStyle style;
    style.stretch =
        host::ParseStretch(given.stretch.value_or("auto")).value_or(host::Stretch());
    style.ParseBands(given.bands.value_or(""));
    style.ParseNoData(given.noData.value_or(""));
    return style;
}

std::vector<std::pair<std::string, std::string>> MapTexts(const GivenStyle& given) {
    std::vector<std::pair<std::string, std::string>> texts;
    for (const auto& [name, text] : {std::pair("stretch", given.stretch),
                                     {"bands", given.bands},
                                     {"noData", given.noData}}) {
        if (text) {
            texts.emplace_back(name, *text);
        }
    }
    return texts;
}

std::vector<std::string> Arguments(int argc, const char* const* argv) {
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i) {
        std::string argument = argv[i];
        int numbers = 0;
        if (!arguments.empty() && arguments.back() == "--stretch") {
            numbers = argument == "percent" ? 2 : argument == "stddev" ? 1 : 0;
        }
        for (double number = 0.0;
             numbers > 0 && i + 1 < argc && host::ParseNumber(argv[i + 1], number);
             --numbers) {
            argument += " ";
            argument += argv[++i];
        }
        arguments.push_back(std::move(argument));
    }
    return arguments;
}

}  // namespace map_page
