#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace host {

/// Which values of a band are drawn black and white; the rest lie evenly between. They
/// are worked out of the whole raster, never of the part that is drawn, so that a value
/// has one shade at every extent, size and resolution.
struct Stretch {
    enum class Kind {
        Automatic,  ///< what suits the raster: see RasterStyle
        None,       ///< 0 and 255
        MinMax,     ///< the least and the greatest value
        Percent,    ///< what `low` and `high` percent of the pixels do not exceed
        Deviations  ///< so many standard deviations from the mean, no further than MinMax
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

/// What a user decides about how a raster is shown; by itself
/// - bytes that are red, green and blue are drawn as they are, for they are finished,
/// - three bands of anything else are stretched from 2 to 98 percent each,
/// - one band is stretched from its least to its greatest value, which the legend names.
///
/// Classes keep their colours.
struct RasterStyle {
    Stretch stretch;

    /// Numbers from 1, as GDAL counts: three that are red, green and blue, or one; none
    /// for those that the raster's colours say. A raster of one band takes no choice.
    std::vector<int> bands;

    /// The value of pixels that are not drawn, instead of the file's.
    std::optional<double> noData;
    bool ignoresNoData = false;  ///< draws those as well that the file counts as no-data

    /// "3,2,1"; empty for none.
    std::string BandsText() const;
    /// "-9999", "nan", "none" when it is ignored; empty for the file's.
    std::string NoDataText() const;

    /// Read what BandsText and NoDataText write. False, and nothing changed, for a text
    /// that is none.
    bool ParseBands(std::string_view text);
    bool ParseNoData(std::string_view text);

    /// What the text of a stretch, of bands or of a no-data value must be, as the end of
    /// a sentence that begins with its name; empty where it is that.
    static std::string WhyNoStretch(std::string_view text);
    static std::string WhyNoBands(std::string_view text);
    static std::string WhyNoNoData(std::string_view text);
};

/// Styles are the same when their texts are.
bool operator<(const RasterStyle& a, const RasterStyle& b);

}  // namespace host
