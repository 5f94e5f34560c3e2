#include "raster_data/raster_style.h"

#include <cmath>
#include <cstddef>
#include <limits>

#include "system/number_text.h"

namespace host {
namespace {

// GDAL's own limit.
constexpr int kHighestBand = 65536;

/// The pieces between separators; between two in a row there is an empty one.
std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    for (;;) {
        const std::size_t end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return pieces;
        }
        text.remove_prefix(end + 1);
    }
}

}  // namespace

std::string Stretch::Text() const {
    switch (kind) {
        case Kind::None:
            return "none";
        case Kind::MinMax:
            return "minmax";
        case Kind::Percent:
            return "percent " + NumberText(low) + " " + NumberText(high);
        case Kind::Deviations:
            return "stddev " + NumberText(deviations);
        case Kind::Automatic:
            break;
    }
    return "auto";
}

std::optional<Stretch> ParseStretch(std::string_view text) {
    const std::vector<std::string_view> words = Split(text, ' ');
    Stretch stretch;
    if (words.size() == 3 && words[0] == "percent") {
        stretch.kind = Stretch::Kind::Percent;
        const bool isRange = ParseNumber(words[1], stretch.low) &&
                             ParseNumber(words[2], stretch.high) && stretch.low >= 0.0 &&
                             stretch.low < stretch.high && stretch.high <= 100.0;
        return isRange ? std::optional(stretch) : std::nullopt;
    }
    if (words.size() == 2 && words[0] == "stddev") {
        stretch.kind = Stretch::Kind::Deviations;
        const bool isCount =
            ParseNumber(words[1], stretch.deviations) && stretch.deviations > 0.0;
        return isCount ? std::optional(stretch) : std::nullopt;
    }
    for (const Stretch::Kind kind :
         {Stretch::Kind::Automatic, Stretch::Kind::None, Stretch::Kind::MinMax}) {
        stretch.kind = kind;
        if (text == stretch.Text()) {
            return stretch;
        }
    }
    return std::nullopt;
}

std::string RasterStyle::BandsText() const {
    std::string text;
    for (const int band : bands) {
        text += (text.empty() ? "" : ",") + std::to_string(band);
    }
    return text;
}

std::string RasterStyle::NoDataText() const {
    if (ignoresNoData) {
        return "none";
    }
    return noData ? NumberText(*noData) : std::string();
}

bool RasterStyle::ParseBands(std::string_view text) {
    std::vector<int> read;
    for (const std::string_view piece :
         text.empty() ? std::vector<std::string_view>() : Split(text, ',')) {
        double number = 0.0;
        if (!ParseNumber(piece, number) || number != std::floor(number) || number < 1 ||
            number > kHighestBand) {
            return false;
        }
        read.push_back(static_cast<int>(number));
    }
    if (read.size() > 3 || read.size() == 2) {
        return false;
    }
    bands = std::move(read);
    return true;
}

bool RasterStyle::ParseNoData(std::string_view text) {
    double value = std::numeric_limits<double>::quiet_NaN();
    if (!text.empty() && text != "none" && text != "nan" && !ParseNumber(text, value)) {
        return false;
    }
    ignoresNoData = text == "none";
    noData = text.empty() || ignoresNoData ? std::nullopt : std::optional(value);
    return true;
}

std::string RasterStyle::WhyNoStretch(std::string_view text) {
    return ParseStretch(text) ? ""
                              : "must be auto, none, minmax, percent LOW HIGH (from 0 to "
                                "100) or stddev COUNT (above 0)";
}

std::string RasterStyle::WhyNoBands(std::string_view text) {
    return RasterStyle().ParseBands(text)
               ? ""
               : "must be the number of a band, or three with commas between, such as "
                 "3,2,1";
}

std::string RasterStyle::WhyNoNoData(std::string_view text) {
    return RasterStyle().ParseNoData(text) ? "" : "must be a number, nan, or none";
}

bool operator<(const RasterStyle& a, const RasterStyle& b) {
    const auto texts = [](const RasterStyle& style) {
        return std::make_tuple(style.stretch.Text(), style.bands, style.NoDataText());
    };
    return texts(a) < texts(b);
}

}  // namespace host
