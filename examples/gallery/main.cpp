// Draws every element of the library in every style from sources in memory, for people to
// look at.

#include <cstdio>
#include <filesystem>
#include <map>
#include <string>

#include "annotated/annotated.h"
#include "drawing.h"
#include "gallery.h"
#include "map_surround/kit/gdiplus_session.h"

namespace {

using namespace gallery;

constexpr Family kFamilies[] = {
    {L"contact_sheet", DrawContactSheet},
    {L"scale_bars", DrawScaleBars},
    {L"legends", DrawLegends},
    {L"titles", DrawTitles},
    {L"north_arrows", DrawNorthArrows},
    {L"pictures", DrawPictures},
};

bool DrawSheets(const std::wstring& folder) {
    bool all = true;
    for (const Family& family : kFamilies) {
        all &= family.draw().Save(folder + family.name + L".png");
    }
    return all;
}

bool DrawElements(const std::wstring& folder) {
    bool all = true;
    for (const Element& element : Elements()) {
        Gdiplus::Bitmap bitmap(kElementWidth, kElementHeight);
        {
            Gdiplus::Graphics graphics(&bitmap);
            graphics.Clear(Gdiplus::Color(0xFFFFFFFF));
            Smooth(&graphics);
            element.draw(&graphics, CPoint(kElementWidth / 2, kElementHeight / 2));
        }
        all &= SavePng(bitmap, folder + element.name + L".png");
    }
    return all;
}

bool DrawAnnotated(const std::wstring& folder) {
    bool all = true;
    for (const auto& family : {annotated::TitlePictureAndFrame, annotated::Legends,
                               annotated::NorthArrows, annotated::ScaleBars}) {
        for (const annotated::Picture& picture : family()) {
            all &= picture.draw().Save(folder + picture.name + L".png");
        }
    }
    return all;
}

using Draw = bool (*)(const std::wstring& folder);
const std::map<std::string, Draw> kWhat = {{"--sheets", DrawSheets},
                                           {"--elements", DrawElements},
                                           {"--annotated", DrawAnnotated}};

constexpr char kHelp[] =
    "gallery [--sheets|--elements|--annotated] [FOLDER]\n"
    "Draws into a folder, by default this one:\n"
    "  --sheets     one picture a family, and one with all of them (the default)\n"
    "  --elements   one picture for each element and style\n"
    "  --annotated  elements drawn large, with the names of their lengths\n";

}  // namespace

int main(int argc, char** argv) {
    Draw draw = DrawSheets;
    std::string folder = ".";
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--help") {
            std::fputs(kHelp, stdout);
            return 0;
        }
        if (kWhat.count(argument) != 0) {
            draw = kWhat.at(argument);
        } else if (i == argc - 1) {
            folder = argument;
        } else {
            std::fprintf(stderr, "gallery: %s: not understood\n%s", argv[i], kHelp);
            return 2;
        }
    }
    std::error_code failed;
    std::filesystem::create_directories(folder, failed);

    const map_surround::kit::GdiplusSession session;
    const bool all = draw(std::filesystem::path(folder).wstring() + L"/");
    std::printf("drawn into %s\n", folder.c_str());
    return all ? 0 : 1;
}
