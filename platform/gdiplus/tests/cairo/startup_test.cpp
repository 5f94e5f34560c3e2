#include <gdiplus.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <thread>

using namespace Gdiplus;

namespace {

ULONG_PTR StartOnce() {
    const GdiplusStartupInput input;
    ULONG_PTR token = 0;
    GdiplusStartup(&token, &input, nullptr);
    return token;
}

Status Draw() {
    Bitmap bitmap(80, 40);
    Graphics graphics(&bitmap);
    const Font font(L"Arial", 20.0f);
    const SolidBrush brush(Color(0xFF000000));
    return graphics.DrawString(L"North \x5730\x56FE", -1, &font, PointF(), &brush);
}

/// A token that is not the last ends nothing, nor does one that was given before.
TEST(GdiplusIsRunning, UntilItsLastTokenIsGiven) {
    const ULONG_PTR more = StartOnce();
    GdiplusShutdown(more);
    GdiplusShutdown(more);
    GdiplusShutdown(0);
    EXPECT_EQ(Draw(), Ok);
}

TEST(GdiplusIsRunning, AndAfterItNothingCanBeMade) {
    EXPECT_EXIT(
        {
            Draw();
            // The tests' own start has the first token.
            DllExports::GdiplusShutdown(1);
            Bitmap bitmap(4, 4);
            const Pen pen(Color(0xFF000000));
            const FontFamily family(L"Arial");
            const Image image(L"none.png");
            const bool refused = bitmap.GetLastStatus() == GdiplusNotInitialized &&
                                 pen.GetLastStatus() == GdiplusNotInitialized &&
                                 family.GetLastStatus() == GdiplusNotInitialized &&
                                 image.GetLastStatus() == GdiplusNotInitialized;
            const ULONG_PTR token = StartOnce();
            const bool again = Draw() == Ok;
            DllExports::GdiplusShutdown(token);
            std::exit(refused && again ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "^$");
}

TEST(GdiplusIsRunning, InThreadsThatOutliveIt) {
    EXPECT_EXIT(
        {
            std::thread thread([] {
                Draw();
                DllExports::GdiplusShutdown(1);
                const ULONG_PTR token = StartOnce();
                Draw();
                DllExports::GdiplusShutdown(token);
            });
            Draw();
            thread.join();
            std::exit(0);
        },
        ::testing::ExitedWithCode(0), "^$");
}

}  // namespace
