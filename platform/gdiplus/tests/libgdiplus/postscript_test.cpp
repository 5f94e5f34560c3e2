#include "gdiplus/postscript.h"

#include <gdiplus.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "portable/image_files.h"

using namespace Gdiplus;

namespace {

class PostScript : public ImageFiles {
protected:
    std::string Contents() const {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    const std::string file = (folder / "page.ps").string();
};

TEST_F(PostScript, KeepsShapesAndTextsWhereTheyAre) {
    {
        PostScriptGraphics graphics(file.c_str(), 600, 400);
        EXPECT_EQ(graphics.GetLastStatus(), Ok);
        const SolidBrush red(Color(0xFFFF0000));
        EXPECT_EQ(graphics.FillRectangle(&red, 100, 50, 30, 20), Ok);
        const FontFamily family(L"Arial");
        const Font font(&family, 24.0f, FontStyleRegular, UnitPixel);
        EXPECT_EQ(graphics.DrawString(L"North", -1, &font, PointF(200, 300), &red), Ok);
    }
    const std::string page = Contents();
    EXPECT_NE(page.find("%%BoundingBox:"), std::string::npos);
    EXPECT_NE(page.find("1 0 0 rg\n100 50 m 130 50 l 130 70 l 100 70 l h"),
              std::string::npos);
    EXPECT_NE(page.find("/f-0-0"), std::string::npos) << "the font";
    EXPECT_NE(page.find("24 0 0 -24 "), std::string::npos) << "the size of the text";
}

TEST_F(PostScript, WithoutAFileDrawsNothing) {
    PostScriptGraphics graphics(nullptr, 600, 400);
    EXPECT_EQ(graphics.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(graphics.NativeObject(), nullptr);
    EXPECT_EQ(graphics.Clear(Color(0xFFFFFFFF)), InvalidParameter);
}

}  // namespace
