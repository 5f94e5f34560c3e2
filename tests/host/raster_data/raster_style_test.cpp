#include "raster_data/raster_style.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using host::ParseStretch;
using host::RasterStyle;

TEST(StretchText, IsWrittenAsItIsRead) {
    for (const char* text : {"auto", "none", "minmax", "percent 2 98", "percent 0 100",
                             "percent 0.5 99.9", "stddev 2", "stddev 0.25"}) {
        const auto stretch = ParseStretch(text);
        ASSERT_TRUE(stretch) << text;
        EXPECT_EQ(stretch->Text(), text);
    }
    EXPECT_EQ(host::Stretch().Text(), "auto");
    EXPECT_EQ(ParseStretch("percent 1 90")->low, 1.0);
    EXPECT_EQ(ParseStretch("percent 1 90")->high, 90.0);
    EXPECT_EQ(ParseStretch("stddev 3")->deviations, 3.0);
}

TEST(StretchText, OfNoStretchIsRefused) {
    for (const char* text : {"",
                             "Auto",
                             "min max",
                             "percent",
                             "percent 2",
                             "percent 98 2",
                             "percent 2 2",
                             "percent -1 98",
                             "percent 2 101",
                             "percent 2  98",
                             "percent 2 98 ",
                             "percent nan 98",
                             "percent 2,98",
                             "stddev",
                             "stddev 0",
                             "stddev -1",
                             "stddev x",
                             "stddev 1 2",
                             "stddev 1e999",
                             " none"}) {
        EXPECT_FALSE(ParseStretch(text)) << text;
    }
}

TEST(BandsText, IsThreeNumbersOneOrNone) {
    for (const char* text : {"", "3,2,1", "7", "1,1,1", "65536"}) {
        RasterStyle style;
        EXPECT_TRUE(style.ParseBands(text)) << text;
        EXPECT_EQ(style.BandsText(), text);
    }
    for (const char* text : {"1,2", "1,2,3,4", "0", "-1", "1.5", "1,,2", "1, 2, 3", "a",
                             "65537", "1e400", "3,2,1,"}) {
        RasterStyle style;
        style.bands = {4};
        EXPECT_FALSE(style.ParseBands(text)) << text;
        EXPECT_EQ(style.BandsText(), "4");
    }
}

TEST(NoDataText, IsAValueNoneOrNothing) {
    for (const char* text :
         {"", "none", "0", "-9999", "255", "-3.4028234663852886e+38"}) {
        RasterStyle style;
        EXPECT_TRUE(style.ParseNoData(text)) << text;
        EXPECT_EQ(style.NoDataText(), text);
    }
    RasterStyle style;
    EXPECT_TRUE(style.ParseNoData("nan"));
    EXPECT_TRUE(std::isnan(style.noData.value()));
    EXPECT_EQ(style.NoDataText(), "nan");
    for (const char* text : {"-", "no", "1e999", "1 2", "0x10", "inf"}) {
        EXPECT_FALSE(style.ParseNoData(text)) << text;
        EXPECT_EQ(style.NoDataText(), "nan");
    }
}

TEST(RasterStyles, AreOrderedByWhatTheySay) {
    RasterStyle plain;
    RasterStyle other;
    EXPECT_FALSE(plain < other);
    for (const auto change :
         {+[](RasterStyle& s) { s.bands = {2}; }, +[](RasterStyle& s) { s.noData = 0.0; },
          +[](RasterStyle& s) { s.ignoresNoData = true; },
          +[](RasterStyle& s) { s.stretch = *ParseStretch("none"); }}) {
        other = RasterStyle();
        change(other);
        EXPECT_NE(plain < other, other < plain);
    }
}

}  // namespace
