#pragma once

#include <gdiplus.h>

#include <optional>
#include <string>

#include "map_surround/title.h"
#include "page/paper.h"

namespace host {

/// How the frames around elements look; what has no colour is not drawn.
struct FrameStyle {
    std::optional<Gdiplus::Color> border = Gdiplus::Color(0xFF3C4650);
    std::optional<Gdiplus::Color> shadow = Gdiplus::Color(0xFFD2D6DA);
    std::optional<Gdiplus::Color> background = Gdiplus::Color(0xFFFFFFFF);
};

struct TitleDesign {
    std::wstring text;  ///< no title when it is empty
    std::wstring family = L"Arial";
    FontProcess style = FontProcessBold;
    std::optional<double> points;  ///< else a size that suits the sheet
};

struct PictureDesign {
    std::wstring path;  ///< no picture when it is empty
};

/// What an automatic page is to show.
struct PageDesign {
    PaperSize paper;
    FrameStyle frames;
    TitleDesign title;
    PictureDesign picture;
};

}  // namespace host
