// Draws every element of the library in every style, from sources in memory: one picture
// a family, for people to look at.

#include <cstdio>
#include <cstring>
#include <string>

#include "gallery.h"

namespace {

constexpr gallery::Family kFamilies[] = {
    {L"scale_bars", gallery::DrawScaleBars},
    {L"legends", gallery::DrawLegends},
    {L"titles", gallery::DrawTitles},
    {L"north_arrows", gallery::DrawNorthArrows},
};

int DrawAll(const std::wstring& folder) {
    int failures = 0;
    for (const gallery::Family& family : kFamilies) {
        if (!family.draw().Save(folder + L"/" + family.name + L".png")) {
            ++failures;
        }
    }
    return failures == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::strcmp(argv[1], "--help") == 0) {
        std::puts(
            "gallery [FOLDER]\nDraws a picture of each element family into a folder "
            "that exists, by default this one.");
        return 0;
    }
    if (argc > 2) {
        std::fputs("gallery: at most one folder; see gallery --help\n", stderr);
        return 2;
    }
    const std::string folder = argc == 2 ? argv[1] : ".";

    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
        std::fputs("gallery: GDI+ does not start\n", stderr);
        return 1;
    }
    const int result = DrawAll(std::wstring(folder.begin(), folder.end()));
    Gdiplus::GdiplusShutdown(token);
    return result;
}
