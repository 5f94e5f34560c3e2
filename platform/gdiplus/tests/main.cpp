#include <gdiplus.h>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // A child of its own, started afresh, for each test of a program's end.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
        return 1;
    }
    const int result = RUN_ALL_TESTS();
    Gdiplus::GdiplusShutdown(token);
    return result;
}
