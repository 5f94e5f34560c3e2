#pragma once

// Legends in columns: rows of 13, swatches of 7 and samples of 40, gaps of 12.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <deque>
#include <string>
#include <vector>

#include "legend/fake_sources.h"
#include "legend/scripted_ink.h"
#include "map_surround/legend.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace legend_columns {

using fakes::Raster;
using namespace recording;

constexpr int kGap = 12;
constexpr int kTitle = 13 + 2 * kGap;

/// Every character is 10 wide, in Arial; half as wide in any other family.
inline ink::Size ColumnInk(const std::string& text, const std::string& family, float) {
    const auto characters = static_cast<int>(std::count_if(
        text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
    return text == "Band_1" ? ink::Size{40, 13}
                            : ink::Size{(family == "Arial" ? 10 : 5) * characters, 13};
}

/// Sources by letters: a name and bands (r), a ramp (g), nothing (u), so many classes.
class Sources {
public:
    explicit Sources(const std::string& letters) {
        for (const char letter : letters) {
            m_rasters.emplace_back(L"name", letter == 'r'   ? DisplayRGB
                                            : letter == 'g' ? DisplayGray
                                            : letter == 'u' ? fakes::kUnknown
                                                            : DisplayClassified);
            const int classes = letter >= '0' && letter <= '9' ? letter - '0' : 0;
            m_rasters.back().table.items.assign(static_cast<std::size_t>(classes),
                                                {L"class", 1, 2, 3});
        }
    }
    std::vector<CGISDataSource*> All() {
        std::vector<CGISDataSource*> all;
        for (Raster& raster : m_rasters) {
            all.push_back(&raster);
        }
        return all;
    }
    Raster& operator[](std::size_t i) { return m_rasters[i]; }

private:
    std::deque<Raster> m_rasters;
};

inline int WidthOf(const CMapLegend& legend) {
    return static_cast<int>(
        std::lround(static_cast<float>(legend.GetSize()) * legend.GetAspectRatio()));
}

/// What is written below the title, from the legend's top left corner.
inline std::vector<Written> TextsBelowTitle(CMapLegend& legend) {
    Surface surface;
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, ColumnInk);
    const CPoint middle((WidthOf(legend) + 1) / 2, (legend.GetSize() + 1) / 2);
    legend.Draw(surface.Graphics(), middle, 1.0);
    std::vector<Written> texts = WrittenIn(recording.Drawing());
    texts.erase(texts.begin());
    return texts;
}

/// The rows of each column, by their texts' first letters: names, bands, highs and lows,
/// classes.
inline std::string RowsOf(CMapLegend& legend) {
    std::string rows;
    float y = 0.0f;
    for (const Written& text : TextsBelowTitle(legend)) {
        if (text.text[0] != 'l' && text.y <= y + 0.5f) {
            rows += '|';
            EXPECT_NEAR(text.y, kTitle, 1) << rows;
        }
        y = text.y;
        rows += text.text[0];
    }
    return rows;
}

struct Legend : CMapLegend {
    Legend() {
        SetTitleValue(L"T");
        SetTitle(L"Arial");
        SetSourceCaption(L"");
        SetBandCaption(L"b");
        SetHighCaption(L"h");
        SetLowCaption(L"l");
    }
};

}  // namespace legend_columns
