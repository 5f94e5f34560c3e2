#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace host {

/// The values of a band drawn black and white, with the rest evenly in between. They are
/// worked out from the whole raster, never from the part that is drawn, so that a value
/// has one shade at every extent, size and resolution.
struct Stretch {
    enum class Kind {
        Automatic,  ///< what suits the raster: see RasterStyle
        None,       ///< 0 and 255
        MinMax,     ///< the least and the greatest value
        Percent,    ///< what `low` and `high` percent of the pixels do not exceed
        Deviations  ///< this many standard deviations from the mean, within MinMax
    };

    Kind kind = Kind::Automatic;
    double low = 2.0;         ///< of Percent: from 0, below `high`
    double high = 98.0;       ///< of Percent: up to 100
    double deviations = 2.0;  ///< of Deviations: above 0

    /// "percent 2 98", as ParseStretch reads it.
    std::string Text() const;
};

/// Reads auto, none, minmax, percent LOW HIGH, or stddev COUNT.
/// @return nothing when the text is none of these
std::optional<Stretch> ParseStretch(std::string_view text);

/// What a user decides about how a raster is shown. By default
/// - bytes that are red, green and blue are drawn as they are,
/// - three bands of anything else are each stretched from 2 to 98 percent,
/// - one band is stretched from its least to its greatest value, which the legend names.
///
/// Classes keep their colours.
struct RasterStyle {
    Stretch stretch;

    /// Numbered from 1, as in GDAL: three for red, green and blue, or one; empty to go by
    /// the raster's colours. A raster of one band allows no choice.
    std::vector<int> bands;

    /// The value of pixels that are not drawn, instead of the file's.
    std::optional<double> noData;
    bool ignoresNoData = false;  ///< also draws what the file counts as no-data

    /// "3,2,1"; empty for the default.
    std::string BandsText() const;
    /// "-9999", "nan", or "none" when it is ignored; empty for the file's.
    std::string NoDataText() const;

    /// Read what BandsText and NoDataText write; false, changing nothing, for any other
    /// text.
    bool ParseBands(std::string_view text);
    bool ParseNoData(std::string_view text);

    /// What the text of a stretch, of bands or of a no-data value must be, to complete a
    /// sentence that begins with its name; empty when it is valid.
    static std::string WhyNoStretch(std::string_view text);
    static std::string WhyNoBands(std::string_view text);
    static std::string WhyNoNoData(std::string_view text);
};

/// Styles are the same when their texts are.
bool operator<(const RasterStyle& a, const RasterStyle& b);

}  // namespace host
