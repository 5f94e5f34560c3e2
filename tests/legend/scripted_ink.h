#pragma once

#include <gdiplus.h>

#include <cstdlib>
#include <functional>

#include <map>
#include <string>

#include "recording/lines.h"
#include "recording/recording.h"

/// The ink of texts as the tests want it, so that layouts are the same on every machine.
namespace ink {

struct Size {
    int width;
    int height;
};

/// What a text in a family and an em size measures.
using Rule =
    std::function<Size(const std::string& text, const std::string& family, float emSize)>;

/// Answers all measuring by a rule. Ink starts right of and below the origin, and that
/// must not count; an empty path has none.
inline void Script(recording::Recording& recording, const Rule& rule) {
    recording.ScriptBounds([rule](const std::string& content) {
        if (content.empty()) {
            return Gdiplus::Rect(0, 0, 0, 0);
        }
        const std::size_t emAt = content.rfind(' ') + 1;
        const std::size_t familyAt = content.rfind("\" \"") + 3;
        const Size size = rule(content.substr(1, familyAt - 4),
                               content.substr(familyAt, emAt - familyAt - 2),
                               std::strtof(content.c_str() + emAt, nullptr));
        return Gdiplus::Rect(2, 5, size.width, size.height);
    });
}

/// Measures a legend, or whatever else has an aspect ratio, by a rule.
template <typename Element>
void Measure(Element& element, const Rule& rule) {
    recording::Recording recording(recording::Mode::RecordOnly);
    Script(recording, rule);
    element.ResetAspectRatio();
}

/// The sizes of a few texts in whatever font; any other text has no ink.
inline Rule Of(std::map<std::string, Size> sizes) {
    return [sizes](const std::string& text, const std::string&, float) {
        const auto found = sizes.find(text);
        return found == sizes.end() ? Size{0, 0} : found->second;
    };
}

/// A rule in which text, family and em size all matter.
inline Size Typical(const std::string& text, const std::string& family, float emSize) {
    if (text.empty()) {
        return {0, 0};
    }
    const int em = static_cast<int>(emSize);
    const int letters = static_cast<int>(text.size());
    const int wide = static_cast<int>(family.size());
    return {letters * em / 2 + wide, em * 4 / 5 + wide % 3};
}

}  // namespace ink
