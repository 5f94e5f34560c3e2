#include "page/words/colour_words.h"

#include <algorithm>
#include <cmath>

#include "page/words/phrase.h"

namespace host {
namespace {

/// A colour as people perceive it.
struct Perceived {
    double hue;        ///< degrees: 0 red, 120 green, 240 blue
    double chroma;     ///< 0 grey to 1
    double lightness;  ///< 0 black to 1 white
};

Perceived PerceivedAs(const Gdiplus::Color& colour) {
    const double red = colour.GetR() / 255.0;
    const double green = colour.GetG() / 255.0;
    const double blue = colour.GetB() / 255.0;
    const double most = std::max({red, green, blue});
    const double least = std::min({red, green, blue});
    const double chroma = most - least;
    double sixths = 0.0;
    if (chroma > 0.0) {
        sixths = most == red     ? (green - blue) / chroma
                 : most == green ? (blue - red) / chroma + 2.0
                                 : (red - green) / chroma + 4.0;
    }
    return {std::fmod(sixths * 60.0 + 360.0, 360.0), chroma, (most + least) / 2.0};
}

/// Hues from the previous one up to this one.
struct HueRange {
    double end;
    const wchar_t* SpokenWords::*word;
    const wchar_t* SpokenWords::*darkWord = nullptr;   ///< where it has a word of its own
    const wchar_t* SpokenWords::*lightWord = nullptr;  ///< likewise
};

constexpr HueRange kHues[] = {
    {15.0, &SpokenWords::red, nullptr, &SpokenWords::pink},
    {43.0, &SpokenWords::orange, &SpokenWords::brown},
    {70.0, &SpokenWords::yellow},
    {165.0, &SpokenWords::green},
    {190.0, &SpokenWords::turquoise},
    {255.0, &SpokenWords::blue},
    {310.0, &SpokenWords::purple},
    {345.0, &SpokenWords::pink, &SpokenWords::purple, &SpokenWords::pink},
    {360.0, &SpokenWords::red, nullptr, &SpokenWords::pink},
};

std::wstring Shade(const wchar_t* word, double lightness, double dark, double light,
                   const SpokenWords& words) {
    return lightness < dark    ? Filled(words.dark, {word})
           : lightness > light ? Filled(words.light, {word})
                               : word;
}

std::wstring GreyWords(double lightness, const SpokenWords& words) {
    constexpr double kBlack = 0.1;
    constexpr double kWhite = 0.95;
    if (lightness < kBlack || lightness > kWhite) {
        return lightness < kBlack ? words.black : words.white;
    }
    return Shade(words.grey, lightness, 0.35, 0.7, words);
}

}  // namespace

std::wstring ColourWords(Gdiplus::ARGB colour, const SpokenWords& words) {
    constexpr double kColourless = 0.1;
    constexpr double kDark = 0.35;  // pure green and blue are at a half
    constexpr double kLight = 0.72;
    constexpr double kBlackish = 0.06;
    const Perceived seen = PerceivedAs(Gdiplus::Color(colour));
    if (seen.chroma < kColourless || seen.lightness < kBlackish) {
        return GreyWords(seen.lightness, words);
    }
    const HueRange& range =
        *std::find_if(std::begin(kHues), std::end(kHues) - 1,
                      [&seen](const HueRange& one) { return seen.hue < one.end; });
    // Sienna is as light as a full red, yet brown: a dull orange.
    const bool isDull =
        seen.chroma < 0.45 && seen.lightness < 0.6 && range.word == &SpokenWords::orange;
    if (range.darkWord != nullptr && (seen.lightness < 0.45 || isDull)) {
        return words.*range.darkWord;
    }
    if (range.lightWord != nullptr && seen.lightness > kLight) {
        return words.*range.lightWord;
    }
    return Shade(words.*range.word, seen.lightness, kDark, kLight, words);
}

}  // namespace host
