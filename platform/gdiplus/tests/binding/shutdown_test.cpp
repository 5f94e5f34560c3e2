#include <dlfcn.h>
#include <gdiplus.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <future>
#include <thread>

using namespace Gdiplus;

namespace {

/// Chinese text in a font without Chinese: fallback fonts are sought and held.
void DrawChinese() {
    Bitmap bitmap(80, 40);
    Graphics graphics(&bitmap);
    const FontFamily family(L"Arial");
    const Font font(&family, 20.0f, FontStyleRegular, UnitPixel);
    const SolidBrush brush(Color(0xFF000000));
    graphics.DrawString(L"\x5730\x56FE", -1, &font, PointF(2.0f, 2.0f), &brush);
}

ULONG_PTR Start() {
    const GdiplusStartupInput input;
    ULONG_PTR token = 0;
    GdiplusStartup(&token, &input, nullptr);
    return token;
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

TEST(Startup, WantsAVersionAndATokenToTell) {
    GdiplusStartupInput input;
    EXPECT_EQ(input.GdiplusVersion, 1u);
    EXPECT_EQ(GdiplusStartup(nullptr, &input, nullptr), InvalidParameter);
    ULONG_PTR token = 5;
    EXPECT_EQ(GdiplusStartup(&token, nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(token, 0u);
    input.GdiplusVersion = 0;
    EXPECT_EQ(GdiplusStartup(&token, &input, nullptr), UnsupportedGdiplusVersion);
    const GdiplusStartupInput quiet(nullptr, TRUE, FALSE);
    EXPECT_EQ(quiet.SuppressBackgroundThread, TRUE);
}

TEST(Shutdown, LeavesTheProgramAliveAfterChineseText) {
    // A thread still at work would be met at some ends only.
    for (int run = 0; run < 10; ++run) {
        EXPECT_EXIT(
            {
                const ULONG_PTR token = Start();
                DrawChinese();
                GdiplusShutdown(token);
                std::exit(0);
            },
            ::testing::ExitedWithCode(0), "^$");
    }
}

TEST(Shutdown, LeavesTheProgramAliveWhileOtherThreadsDraw) {
    EXPECT_EXIT(
        {
            const ULONG_PTR token = Start();
            std::promise<void> drawn;
            std::promise<void> stop;
            std::thread thread([&] {
                DrawChinese();
                drawn.set_value();
                stop.get_future().wait();
            });
            drawn.get_future().wait();
            DrawChinese();
            GdiplusShutdown(token);
            stop.set_value();
            thread.join();
            std::exit(0);
        },
        ::testing::ExitedWithCode(0), "^$");
}

TEST(Shutdown, LeavesTheProgramAliveWhileSomeoneHoldsAFont) {
    EXPECT_EXIT(
        {
            const ULONG_PTR token = Start();
            DrawChinese();
            HoldAFont();
            GdiplusShutdown(token);
            std::exit(0);
        },
        ::testing::ExitedWithCode(0), "^$");
}

TEST(Shutdown, MayBeFollowedByAnotherStart) {
    EXPECT_EXIT(
        {
            GdiplusShutdown(Start());
            const ULONG_PTR token = Start();
            DrawChinese();
            Bitmap bitmap(1, 1);
            const Status status = bitmap.GetLastStatus();
            GdiplusShutdown(token);
            std::exit(status == Ok ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "^$");
}

}  // namespace
