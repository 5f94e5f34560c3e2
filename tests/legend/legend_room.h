#pragma once

// Legends with so much room, and what they write.

#include <algorithm>
#include <string>
#include <vector>

#include "legend/scripted_ink.h"
#include "map_surround/legend.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace legend_room {

// Where wide characters are UTF-16, nothing has to replace the half of one.
inline const std::string kHalf = sizeof(wchar_t) == 2 ? "\xED\xA0\xBD" : "\uFFFD";

/// Rows of 13 and samples 40 wide; half a character is 5 wide, and any other 10.
inline ink::Size RoomInk(const std::string& text, const std::string&, float) {
    auto width = 10 * std::count_if(text.begin(), text.end(),
                                    [](char c) { return (c & 0xC0) != 0x80; });
    for (std::size_t at = 0; (at = text.find(kHalf, at)) != text.npos; ++at) {
        width -= 5;
    }
    return text == "Band_1" ? ink::Size{40, 13} : ink::Size{static_cast<int>(width), 13};
}

inline std::vector<std::string> TextsOf(CMapLegend& legend, double scale) {
    recording::Surface surface;
    recording::Recording recording(recording::Mode::RecordOnly);
    ink::Script(recording, RoomInk);
    legend.Draw(surface.Graphics(), CPoint(0, 0), scale);
    std::vector<std::string> texts;
    for (const recording::Written& written : recording::WrittenIn(recording.Drawing())) {
        texts.push_back(written.text);
    }
    return texts;
}

}  // namespace legend_room
