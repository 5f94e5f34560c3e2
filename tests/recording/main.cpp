#include <gdiplus.h>
#include <gtest/gtest.h>

#include "recording/recording.h"

namespace {

/// Every test ends with no native object of the library's alive.
class LeakCheck : public ::testing::EmptyTestEventListener {
    void OnTestEnd(const ::testing::TestInfo&) override {
        for (const std::string& object : recording::LiveObjects()) {
            ADD_FAILURE() << "still alive after the test: " << object;
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    ::testing::UnitTest::GetInstance()->listeners().Append(new LeakCheck);
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
        return 1;
    }
    const int result = RUN_ALL_TESTS();
    Gdiplus::GdiplusShutdown(token);
    return result;
}
