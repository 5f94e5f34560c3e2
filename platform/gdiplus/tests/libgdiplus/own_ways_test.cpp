#include <dlfcn.h>
#include <gdiplus.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

#include "binding/flat_spy.h"
#include "binding/indexed_bmp.h"

using namespace Gdiplus;

namespace {

TEST(Palettes, ThatCannotBeReadStayAsTheyAre) {
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() /
        ("gdiplus_palette_" + std::to_string(std::random_device()()) + ".bmp");
    WriteIndexedBmp(file, 8, 3, 2);
    const flat_spy::Palette rows[] = {{Ok, 0, Ok, 1},
                                      {GenericError, 0, Ok, 0},
                                      {Ok, 4 * 256, Ok, 0},
                                      {Ok, 0, OutOfMemory, 0}};
    for (const flat_spy::Palette& row : rows) {
        flat_spy::Clear();
        flat_spy::Palettes() = row;
        flat_spy::Palettes().sets = 0;
        const Image image(file.wstring().c_str());
        EXPECT_EQ(flat_spy::Palettes().sets, row.sets);
        EXPECT_EQ(image.GetLastStatus(), Ok);
    }
    flat_spy::Clear();
    std::filesystem::remove(file);
}

TEST(FontFamily, OfAnUnknownNameIsASubstitute) {
    const FontFamily family(L"No Such Family");
    EXPECT_EQ(family.GetLastStatus(), Ok);
    WCHAR name[LF_FACESIZE];
    EXPECT_EQ(family.GetFamilyName(name), Ok);
    EXPECT_STRNE(name, L"No Such Family");
}

template <typename Function>
Function Fontconfig(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_DEFAULT, name));
}

/// Finds a font as a toolkit does, and keeps it.
void HoldAFont() {
    void* pattern = Fontconfig<void* (*)(const char*)>("FcNameParse")("Arial");
    Fontconfig<int (*)(void*, void*, int)>("FcConfigSubstitute")(nullptr, pattern, 0);
    Fontconfig<void (*)(void*)>("FcDefaultSubstitute")(pattern);
    int result = 0;
    Fontconfig<void* (*)(void*, void*, int, void*, int*)>("FcFontSort")(
        nullptr, pattern, 0, nullptr, &result);
}

/// Why the binding's shutdown is its own.
TEST(Shutdown, OfLibgdiplusItselfEndsTheProgramWhileSomeoneHoldsAFont) {
    EXPECT_EXIT(
        {
            const GdiplusStartupInput input;
            ULONG_PTR token = 0;
            GdiplusStartup(&token, &input, nullptr);
            HoldAFont();
            DllExports::GdiplusShutdown(token);
            std::exit(0);
        },
        ::testing::KilledBySignal(SIGABRT), "FcCacheFini");
}

}  // namespace
