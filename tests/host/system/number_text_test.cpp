#include "system/number_text.h"

#include <gtest/gtest.h>

namespace {

TEST(NumberText, IsTheShortestThatReadsBack) {
    EXPECT_EQ(host::NumberText(12.0), "12");
    EXPECT_EQ(host::NumberText(-0.25), "-0.25");
    EXPECT_EQ(host::NumberText(0.1), "0.1");
    EXPECT_EQ(host::NumberText(0.1f), "0.1");
    EXPECT_EQ(host::NumberText(double{0.1f}), "0.10000000149011612");
    for (const double value : {1.0 / 3.0, 1e300, 5e-324, -1.7976931348623157e308}) {
        double read = 0.0;
        EXPECT_TRUE(host::ParseNumber(host::NumberText(value), read));
        EXPECT_EQ(read, value);
    }
}

TEST(NumberText, ReadsWholeTextsOfFiniteNumbersOnly) {
    double value = 7.0;
    for (const char* text :
         {"", " 1", "1 ", "1,5", "0x10", "1e999", "inf", "nan", "+1", "1.5m"}) {
        EXPECT_FALSE(host::ParseNumber(text, value)) << text;
        EXPECT_EQ(value, 7.0) << text;
    }
    EXPECT_TRUE(host::ParseNumber("-12.5e1", value));
    EXPECT_EQ(value, -125.0);
}

}  // namespace
