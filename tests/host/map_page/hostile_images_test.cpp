#include <gdiplus.h>
#include <gtest/gtest.h>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <stdexcept>
#include <string>

#include "hostile_files/damage.h"
#include "hostile_files/png_checksums.h"
#include "map_page/run_map_page.h"
#include "map_page/seed_rasters.h"
#include "map_surround/picture.h"
#include "page/made_raster.h"
#include "system/separate_process.h"

namespace {

using host_tests::ContentsOf;
using host_tests::WriteFile;

constexpr unsigned kSecondsForAnImage = 60;

/// How a process ends that draws a picture.
enum class PictureEnding : char { Drawn, Refused, SurfaceLost, Died };

/// Opens an image as a picture and draws it, turned, onto a small surface, which must
/// draw afterwards too.
PictureEnding DrawPicture(const std::wstring& path) {
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    Gdiplus::Bitmap bitmap(120, 90);
    Gdiplus::Graphics graphics(&bitmap);
    CDrawPicture picture;
    picture.Open(path.c_str());
    picture.SetAngle(20.0f);
    picture.ResetAspectRatio();
    picture.Draw(&graphics, CPoint(60, 45), 0.5);
    const bool drawn = graphics.GetLastStatus() == Gdiplus::Ok;

    Gdiplus::SolidBrush brush(Gdiplus::Color(0xFF123456));
    graphics.FillRectangle(&brush, 3, 4, 5, 6);
    Gdiplus::Color pixel;
    bitmap.GetPixel(5, 6, &pixel);
    if (pixel.GetValue() != 0xFF123456) {
        return PictureEnding::SurfaceLost;
    }
    return drawn ? PictureEnding::Drawn : PictureEnding::Refused;
}

PictureEnding DrawPictureInAProcess(const std::wstring& path, std::string& why) {
    const auto draw = [&path](const host::Progress&) {
        std::signal(SIGSEGV, SIG_DFL);
        // Decoders talk.
        if (std::freopen("/dev/null", "w", stderr) == nullptr) {
            throw std::runtime_error("nothing to be quiet with");
        }
        return std::string(1, static_cast<char>(DrawPicture(path)));
    };
    try {
        const std::string ending =
            host::InSeparateProcess("drawing", draw, {}, {kSecondsForAnImage});
        return static_cast<PictureEnding>(ending.at(0));
    } catch (const std::runtime_error& error) {
        why = error.what();
        return PictureEnding::Died;
    }
}

/// Images in every format that a picture is read from.
class HostileImages : public ::testing::Test {
protected:
    HostileImages() {
        images.AddScene("truecolour.png", "-of PNG");
        images.AddClasses("palette.png", "-of PNG");
        images.AddElevation("sixteen_bits.png", "-of PNG -ot UInt16");
        images.AddScene("baseline.jpg", "-of JPEG");
        images.AddScene("progressive.jpg", "-of JPEG -co PROGRESSIVE=YES");
        images.AddElevation("grey.jpg", "-of JPEG -ot Byte");
        images.AddClasses("plain.gif", "-of GIF");
        images.AddClasses("interlaced.gif", "-of GIF -co INTERLACING=YES");
        images.AddScene("lzw.tif", "-co COMPRESS=LZW -co TILED=YES");
        images.AddScene("planes.tif", "-co COMPRESS=PACKBITS -co INTERLEAVE=BAND");
        images.AddScene("jpeg.tif", "-co COMPRESS=JPEG -co PHOTOMETRIC=YCBCR");
        images.AddClasses("palette.tif", "-co COMPRESS=DEFLATE");
        images.AddScene("truecolour.bmp", "-of BMP");
        images.AddClasses("palette.bmp", "-of BMP");
    }

    /// The n-th damaged image; the same each time.
    std::string Damaged(std::size_t n) {
        const std::string& name = images.Names()[n % images.Names().size()];
        std::mt19937 random(static_cast<unsigned>(n));
        std::string bytes = hostile_files::Damage(ContentsOf(images.Path(name)), random);
        if (name.find(".png") != std::string::npos && random() % 4 != 0) {
            bytes = hostile_files::WithPngChecksums(std::move(bytes));
        }
        std::string path = images.Path("damaged_" + name);
        WriteFile(path, bytes);
        return path;
    }

    host_tests::SeedRasters images;
};

std::wstring Wide(const std::string& ascii) { return {ascii.begin(), ascii.end()}; }

std::size_t Asked(const char* variable, std::size_t otherwise) {
    const char* const asked = std::getenv(variable);
    return asked == nullptr ? otherwise : std::strtoul(asked, nullptr, 10);
}

TEST_F(HostileImages, AreDrawnAsTheyAreWithoutDamage) {
    for (const std::string& name : images.Names()) {
        std::string why;
        EXPECT_EQ(DrawPictureInAProcess(Wide(images.Path(name)), why),
                  PictureEnding::Drawn)
            << name << ": " << why;
    }
}

// What a decoder dies of is its own; that no program that embeds the picture element in a
// process of its own comes to harm is map_page's part.
TEST_F(HostileImages, EndWithAPictureOrAStatus) {
    std::map<PictureEnding, int> endings;
    // A few with the other tests, more when asked.
    const std::size_t count = Asked("HOSTILE_IMAGES", 140);
    const std::size_t first = Asked("HOSTILE_IMAGES_FIRST", 0);
    ScratchFolder out;
    WriteScene(out.Path("scene.tif"), 40, 30);
    for (std::size_t i = first; i < first + count; ++i) {
        const std::string path = Damaged(i);
        std::string why;
        const PictureEnding ending = DrawPictureInAProcess(Wide(path), why);
        ++endings[ending];
        EXPECT_NE(ending, PictureEnding::SurfaceLost) << "number " << i << ", " << path;
        if (ending == PictureEnding::Died) {
            std::printf("died: number %zu, %s: %s\n", i, path.c_str(), why.c_str());
        }
        if (ending == PictureEnding::Died || i % 20 == 0) {
            WriteFile(out.Path("page.png"), "an older page");
            const host_tests::Result page = host_tests::RunMapPage(
                out, {"scene.tif", "-o", "page.png", "--dpi", "40", "--picture", path});
            if (page.status != 0) {
                EXPECT_EQ(page.status, 1) << path;
                EXPECT_EQ(page.err.find('\n'), page.err.size() - 1) << page.err;
                EXPECT_EQ(page.err.rfind("map_page: ", 0), 0u) << page.err;
                EXPECT_EQ(ContentsOf(out.Path("page.png")), "an older page") << path;
            }
        }
        std::remove(path.c_str());
    }
    std::printf("%zu damaged images: %d drawn, %d refused, %d processes died\n", count,
                endings[PictureEnding::Drawn], endings[PictureEnding::Refused],
                endings[PictureEnding::Died]);
}

}  // namespace
