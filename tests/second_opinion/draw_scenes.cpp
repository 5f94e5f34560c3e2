// Draws the scenes that second_opinion.py writes, one a line, and marks where each ends.

#include <gdiplus.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

#include "map_surround/map_surround.h"

namespace {

/// The next word, a number of any notation that strtod reads.
double Number(std::istream& scene) {
    std::string word;
    scene >> word;
    return std::strtod(word.c_str(), nullptr);
}

int Whole(std::istream& scene) { return static_cast<int>(Number(scene)); }

Gdiplus::Color Color(std::istream& scene) {
    return Gdiplus::Color(static_cast<Gdiplus::ARGB>(Number(scene)));
}

void DrawBar(CScaleBarBase& bar, std::istream& scene, Gdiplus::Graphics& graphics) {
    bar.SetSize(Whole(scene));
    bar.SetMainDivCount(Whole(scene));
    bar.SetSubDivCount(Whole(scene));
    bar.SetUnitPos(static_cast<ScaleBarPostion>(Whole(scene)));
    bar.SetPaper2DataScale(Number(scene));
    bar.SetPaper2ScreenScale(Number(scene));
    bar.SetScreen2PaperByOneScale(Number(scene));
    bar.SetFrontColor(Color(scene));
    std::string units;
    scene >> units;
    bar.SetUnitsName(std::wstring(units.begin(), units.end()));
    bar.ResetAspectRatio();
    std::printf("aspect %.9g\n", bar.GetAspectRatio());
    const int x = Whole(scene);
    const int y = Whole(scene);
    bar.Draw(&graphics, CPoint(x, y), Number(scene));
}

void DrawFrame(std::istream& scene, Gdiplus::Graphics& graphics) {
    CFrameBase frame;
    frame.DrawBorder = Whole(scene) != 0;
    frame.DrawFill = Whole(scene) != 0;
    frame.DrawShadow = Whole(scene) != 0;
    frame.DashedBorder = Whole(scene) != 0;
    frame.BorderWidth = static_cast<float>(Number(scene));
    frame.BorderColor = Color(scene);
    frame.FillColor = Color(scene);
    frame.ShadowColor = Color(scene);
    frame.BorderGapX = Whole(scene);
    frame.BorderGapY = Whole(scene);
    frame.FillGapX = Whole(scene);
    frame.FillGapY = Whole(scene);
    frame.ShadowRatioX = static_cast<float>(Number(scene));
    frame.ShadowRatioY = static_cast<float>(Number(scene));
    const int left = Whole(scene);
    const int top = Whole(scene);
    const int right = Whole(scene);
    frame.DrawFrame(&graphics, CRect(left, top, right, Whole(scene)));
    std::printf("width %.9g\n", frame.BorderWidth);
}

}  // namespace

int main() {
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    {
        Gdiplus::Bitmap bitmap(64, 64);
        Gdiplus::Graphics graphics(&bitmap);
        for (std::string line; std::getline(std::cin, line);) {
            std::istringstream scene(line);
            std::string kind;
            scene >> kind;
            if (kind == "frame") {
                DrawFrame(scene, graphics);
            } else if (kind == "stepped") {
                CSteppedScaleLine bar;
                DrawBar(bar, scene, graphics);
            } else {
                CScaleLine bar;
                DrawBar(bar, scene, graphics);
            }
            std::printf("end\n");
        }
    }
    Gdiplus::GdiplusShutdown(token);
}
