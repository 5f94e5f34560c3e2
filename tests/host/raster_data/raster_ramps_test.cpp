// Palettes that are ramps rather than classes.

#include <gdal_priv.h>
#include <gdal_rat.h>
#include <gtest/gtest.h>

#include <cstddef>

#include "raster_data/make_raster.h"

namespace {

using raster_test::Raster;

void Nothing(GDALColorTable&, Raster&) {}

template <short Step>
void Zigzag(GDALColorTable& palette, Raster&) {
    for (short value = 0; value < 256; ++value) {
        const GDALColorEntry entry{7, static_cast<short>(value % 2 * Step),
                                   static_cast<short>(200 - value % 2 * Step), 255};
        palette.SetColorEntry(value, &entry);
    }
}

const struct {
    const char* what;
    int first;
    int last;
    void (*change)(GDALColorTable& palette, Raster& raster);
    std::size_t colours;  ///< of the ramp
} kCases[] = {
    {"a ramp", 100, 163, Nothing, 64},
    {"of all bytes", 0, 255, Nothing, 256},
    {"of just enough values", 100, 131, Nothing, 32},
    {"of too few", 100, 130, Nothing, 0},
    {"steps as large as can be", 100, 163, Zigzag<48>, 64},
    {"too large a step", 100, 163, Zigzag<49>, 0},
    {"with a name", 100, 163,
     [](GDALColorTable&, Raster& raster) {
         const auto describe = raster.describe;
         raster.describe = [describe](GDALRasterBand& band) {
             describe(band);
             std::vector<std::string> names(164);
             names[120] = "meadow";
             std::vector<char*> list;
             for (std::string& name : names) {
                 list.push_back(name.data());
             }
             list.push_back(nullptr);
             band.SetCategoryNames(list.data());
         };
     },
     0},
    {"with an attribute table", 100, 163,
     [](GDALColorTable&, Raster& raster) {
         const auto describe = raster.describe;
         raster.describe = [describe](GDALRasterBand& band) {
             describe(band);
             GDALDefaultRasterAttributeTable table;
             table.CreateColumn("Value", GFT_Integer, GFU_MinMax);
             table.CreateColumn("Class_Name", GFT_String, GFU_Name);
             table.SetValue(0, 0, 110);
             table.SetValue(0, 1, "meadow");
             band.SetDefaultRAT(&table);
         };
     },
     0},
    {"with a value that is transparent", 100, 163,
     [](GDALColorTable&, Raster& raster) { raster.noData = 130.0; }, 0},
    {"but for values beyond it", 101, 163,
     [](GDALColorTable&, Raster& raster) { raster.noData = 100.0; }, 63},
};

TEST(RasterRamps, ArePalettesWithoutNamesThatChangeLittleByLittle) {
    for (const auto& row : kCases) {
        SCOPED_TRACE(row.what);
        const std::vector<double> values = raster_test::Ramp(row.first, row.last);
        Raster raster{static_cast<int>(values.size()), {values}};
        GDALColorTable palette;
        for (short value = 0; value < 256; ++value) {
            const GDALColorEntry entry{value, static_cast<short>(255 - value), 7, 255};
            palette.SetColorEntry(value, &entry);
        }
        raster.describe = [&palette](GDALRasterBand& band) {
            band.SetColorTable(&palette);
        };
        row.change(palette, raster);
        // Whatever the stretch, which is of greys.
        const auto opened =
            raster_test::WriteAndOpen(raster, raster_test::Stretched("percent 20 80"));
        EXPECT_EQ(opened->GetDisplayType(), DisplayClassified);
        const std::vector<host::ClassColour> colours = opened->RampColours();
        ASSERT_EQ(colours.size(), row.colours);
        // Those that the map has, and the values at its ends.
        const std::vector<unsigned int> drawn =
            raster_test::Pixels(opened->Render(raster.width, 1));
        for (std::size_t i = 0; i < colours.size(); ++i) {
            EXPECT_EQ(0xFF000000U | unsigned{colours[i].red} << 16U |
                          unsigned{colours[i].green} << 8U | unsigned{colours[i].blue},
                      drawn[i]);
        }
        EXPECT_EQ(raster_test::RangeOf(*opened),
                  std::pair(row.first + 0.0, row.last + 0.0));
    }
}

TEST(RasterRamps, OfRastersWithoutAPaletteAreNone) {
    const Raster raster{64, {raster_test::Ramp(0, 63)}};
    EXPECT_TRUE(raster_test::WriteAndOpen(raster)->RampColours().empty());
}

}  // namespace
