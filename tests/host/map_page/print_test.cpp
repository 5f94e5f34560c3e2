#include <gdiplus.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "map_page/run_map_page.h"
#include "page/made_raster.h"
#include "pdf/pdf_check.h"
#include "scratch_folder.h"

namespace {

using host_tests::Arguments;
using host_tests::ContentsOf;
using host_tests::Result;
using host_tests::RunMapPage;
using host_tests::Said;

bool Holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

/// What stands behind a label, to the end of its line.
std::string After(const std::string& text, const std::string& label) {
    const std::size_t at = text.find("\n" + label);
    if (at == std::string::npos) {
        return "no " + label;
    }
    const std::size_t from = text.find_first_not_of(' ', at + 1 + label.size());
    return text.substr(from, text.find('\n', from) - from);
}

/// The mean of each colour over squares of pixels, in which the edges of shapes and
/// letters lie alike however they are smoothed.
std::vector<double> Squares(const std::string& path) {
    constexpr UINT kCell = 20;
    Gdiplus::Bitmap bitmap(std::wstring(path.begin(), path.end()).c_str());
    EXPECT_GT(bitmap.GetWidth(), 500u);
    std::vector<double> means;
    for (UINT top = 0; top + kCell <= bitmap.GetHeight(); top += kCell) {
        for (UINT left = 0; left + kCell <= bitmap.GetWidth(); left += kCell) {
            std::array<double, 3> sum{};
            for (UINT i = 0; i < kCell * kCell; ++i) {
                Gdiplus::Color color;
                bitmap.GetPixel(static_cast<INT>(left + i % kCell),
                                static_cast<INT>(top + i / kCell), &color);
                sum[0] += color.GetR();
                sum[1] += color.GetG();
                sum[2] += color.GetB();
            }
            for (const double one : sum) {
                means.push_back(one / (kCell * kCell));
            }
        }
    }
    return means;
}

class Print : public ::testing::Test {
protected:
    Print() {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
        WriteScene(folder.Path("scene.tif"), 300, 300);
    }
    ~Print() override { Gdiplus::GdiplusShutdown(m_token); }

    Result Draw(const std::string& output, const Arguments& more = {},
                const std::string& title = "Harbour 影像") {
        Arguments arguments = {"scene.tif", "-o", output, "--title", title};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunMapPage(folder, arguments);
    }

    /// The page as pixels at 100 dpi, 1169 x 827.
    std::string Rendered(const std::string& file) {
        if (file == "page.svg") {
            Said("rsvg-convert -d 100 -p 100 -o " + folder.Path("rendered.png") + " " +
                 folder.Path(file));
            return folder.Path("rendered.png");
        }
        Said(
            "gs -q -dBATCH -dNOPAUSE -sDEVICE=png16m -r100 -dTextAlphaBits=4 "
            "-dGraphicsAlphaBits=4 -sOutputFile=" +
            folder.Path("rendered.png") + " " + folder.Path(file));
        return folder.Path("rendered.png");
    }

    ScratchFolder folder;

private:
    ULONG_PTR m_token = 0;
};

TEST_F(Print, HasTheTrueSizeAtEveryResolution) {
    // 297 mm are 841.890 points, 420 mm 1190.551, 210 mm 595.276, 148 mm 419.528; told
    // with six digits.
    const struct {
        Arguments options;
        const char* size;
        const char* summary;
    } rows[] = {
        {{"--dpi", "72"}, "841.89 x 595.276 pts (A4)", "842 x 595 points"},
        {{"--dpi", "300"}, "841.89 x 595.276 pts (A4)", "842 x 595 points"},
        {{"--dpi", "600", "--size", "A3"},
         "1190.55 x 841.89 pts (A3)",
         "1191 x 842 points"},
        {{"--dpi", "600", "--portrait", "--size", "A5"},
         "419.528 x 595.276 pts",
         "420 x 595 points"},
    };
    for (const auto& row : rows) {
        const Result result = Draw("page.pdf", row.options);
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_TRUE(Holds(result.out, row.summary)) << result.out;
        const std::string info = Said("pdfinfo " + folder.Path("page.pdf"));
        EXPECT_EQ(After(info, "Page size:"), row.size);
        EXPECT_EQ(After(info, "Pages:"), "1");
    }
}

TEST_F(Print, KeepsTextsAsTextInEmbeddedFonts) {
    ASSERT_EQ(Draw("page.pdf").status, 0);
    const std::string text = Said("pdftotext " + folder.Path("page.pdf") + " -");
    for (const char* part : {"Harbour 影像", "scene.tif", "Legend"}) {
        EXPECT_TRUE(Holds(text, part)) << part << " in\n" << text;
    }
    // Letters that change their shapes are still those that were written, and so are
    // characters that no font has.
    for (const char* title : {"خريطة الميناء", "office ﬁ", "ཀཁ 🗺"}) {
        ASSERT_EQ(Draw("title.pdf", {}, title).status, 0);
        EXPECT_TRUE(Holds(Said("pdftotext " + folder.Path("title.pdf") + " -"), title))
            << title;
    }
    const std::string fonts = Said("pdffonts " + folder.Path("page.pdf"));
    EXPECT_TRUE(Holds(fonts, "LiberationSans")) << fonts;
    EXPECT_FALSE(Holds(fonts, " no  ")) << "not embedded:\n" << fonts;
}

TEST_F(Print, HasTheMapAsOneImageOfTheResolution) {
    MadeRaster holes;
    holes.transform = {500000.0, 450.0, 0.0, 9000000.0, 0.0, -450.0};
    holes.hole = true;
    WriteRaster(folder.Path("holes.tif"), holes);
    const struct {
        const char* raster;
        const char* kind;
        const char* encoding;
        bool hasMask;
    } rows[] = {
        {"scene.tif", "lossless", " image  no ", false},
        {"scene.tif", "jpeg", " jpeg   no ", false},
        {"holes.tif", "lossless", " image  no ", true},
        {"holes.tif", "jpeg", " jpeg   no ", true},
    };
    for (const auto& row : rows) {
        ASSERT_EQ(RunMapPage(folder, {row.raster, "-o", "page.pdf", "--dpi", "200",
                                      "--map-images", row.kind})
                      .status,
                  0);
        const std::string images = Said("pdfimages -list " + folder.Path("page.pdf"));
        EXPECT_TRUE(Holds(images, " 200   200 ")) << images;
        EXPECT_TRUE(Holds(images, row.encoding)) << images;
        EXPECT_EQ(Holds(images, " smask "), row.hasMask) << images;
        EXPECT_EQ(std::count(images.begin(), images.end(), '\n'), row.hasMask ? 4 : 3)
            << images;
    }
}

TEST_F(Print, LooksLikeThePicture) {
    ASSERT_EQ(Draw("page.png", {"--dpi", "100"}).status, 0);
    const std::vector<double> picture = Squares(folder.Path("page.png"));
    const std::pair<const char*, const char*> rows[] = {
        {"page.pdf", "lossless"}, {"page.ps", "lossless"}, {"page.svg", "lossless"},
        {"page.pdf", "jpeg"},     {"page.ps", "jpeg"},     {"page.svg", "jpeg"}};
    for (const auto& [file, images] : rows) {
        ASSERT_EQ(Draw(file, {"--dpi", "100", "--map-images", images}).status, 0);
        const std::vector<double> print = Squares(Rendered(file));
        ASSERT_EQ(print.size(), picture.size()) << file;
        double sum = 0.0;
        for (std::size_t i = 0; i < print.size(); ++i) {
            const double difference = std::abs(print[i] - picture[i]);
            EXPECT_LT(difference, 60.0) << file << images << ", square " << i / 3;
            sum += difference;
        }
        EXPECT_LT(sum / static_cast<double>(print.size()),
                  images == std::string("jpeg") ? 1.3 : 1.2)
            << file << images;
    }
}

TEST_F(Print, GivesTheSamePostScriptEachTime) {
    ASSERT_EQ(Draw("page.ps").status, 0);
    ASSERT_EQ(Draw("again.PS").status, 0);
    const std::string file = ContentsOf(folder.Path("page.ps"));
    EXPECT_EQ(file, ContentsOf(folder.Path("again.PS")));
    EXPECT_FALSE(Holds(file, "%%Title")) << "comments are ASCII";
    EXPECT_TRUE(Holds(file, "\n%%BoundingBox: 0 0 842 596\n"));
    EXPECT_TRUE(Holds(file, "\n%%HiResBoundingBox: 0 0 841.889764 595.275591\n"));
    EXPECT_TRUE(Holds(file,
                      "\n841.889764 595.275591 cairo_set_page_size\n"
                      "0 -0.724409 translate\n"));
    ASSERT_EQ(Draw("plain.ps", {"--save", "page.json"}, "Harbour").status, 0);
    EXPECT_TRUE(Holds(ContentsOf(folder.Path("plain.ps")), "\n%%Title: Harbour\n"));
    ASSERT_EQ(RunMapPage(folder, "page.json -o confined.ps").status, 0);
    EXPECT_EQ(ContentsOf(folder.Path("confined.ps")),
              ContentsOf(folder.Path("plain.ps")));
}

TEST_F(Print, GivesTheSamePdfEachTimeAndDatesItByTheEnvironment) {
    ASSERT_EQ(Draw("page.pdf").status, 0);
    ASSERT_EQ(Draw("again.PDF").status, 0);
    EXPECT_EQ(ContentsOf(folder.Path("page.pdf")), ContentsOf(folder.Path("again.PDF")));
    std::string info = Said("pdfinfo " + folder.Path("page.pdf"));
    EXPECT_EQ(After("\n" + info, "Title:"), "Harbour 影像");
    EXPECT_FALSE(Holds(info, "CreationDate")) << info;
    const auto drawnAt = [&](const char* epoch) {
        return host_tests::RunningMapPage(
                   folder, {"scene.tif", "-o", "dated.pdf"},
                   [epoch] { setenv("SOURCE_DATE_EPOCH", epoch, 1); })
            .Wait();
    };
    ASSERT_EQ(drawnAt("86400").status, 0);  // a day after the epoch
    info = Said("pdfinfo -isodates " + folder.Path("dated.pdf"));
    EXPECT_EQ(After(info, "CreationDate:"), "1970-01-02T00:00:00Z");
    EXPECT_TRUE(Holds(Said("pdfinfo -meta " + folder.Path("dated.pdf")),
                      "<xmp:CreateDate>1970-01-02T00:00:00Z</xmp:CreateDate>"));
    EXPECT_EQ(drawnAt("yesterday").err,
              "map_page: dated.pdf: SOURCE_DATE_EPOCH is not a number of seconds\n");
}

TEST_F(Print, IsReadAloudInThePagesLanguage) {
    const struct {
        std::string title;
        Arguments options;
        std::vector<std::string> read;
    } rows[] = {
        {"Harbour 影像",
         {"--numeric-scale"},
         {"H1: Harbour 影像", "Figure: Map, 1 : ",
          "Figure: Legend: scene.tif: Band 1, red; Band 2, green; Band 3, blue",
          "Figure: Scale bar: 2000 m in 4 divisions", "P: 1 : ",
          "Figure: North arrow: north is up"}},
        {"خريطة الميناء",
         {"--language", "zh"},
         {"H1: خريطة الميناء", "Figure: 地图，1 : ",
          "Figure: 图例: 影像名：scene.tif: 波段_1，红色; 波段_2，绿色; 波段_3，蓝色",
          "Figure: 比例尺：2000 米，共4段", "Figure: 指北针：北在上方"}},
        {"Wo? 🗺 <&>", {}, {"H1: Wo? 🗺 <&>"}},
        {"ཀཁ\tafﬁne", {}, {"H1: ཀཁ afﬁne"}},
    };
    for (const auto& row : rows) {
        ASSERT_EQ(Draw("page.pdf", row.options, row.title).status, 0);
        EXPECT_THAT(host_tests::AgainstPdfUa(folder.Path("page.pdf")),
                    ::testing::IsEmpty());
        const std::vector<std::string> read =
            host_tests::ReadAloud(folder.Path("page.pdf"));
        ASSERT_GE(read.size(), row.read.size());
        for (std::size_t i = 0; i < row.read.size(); ++i) {
            EXPECT_THAT(read[i], ::testing::StartsWith(row.read[i]));
        }
        Said("qpdf --check " + folder.Path("page.pdf"));
    }
}

TEST_F(Print, KeepsTheRulesOfPdfAWhereThatIsAsked) {
    const auto wrong = [&] { return host_tests::AgainstPdfA(folder.Path("page.pdf")); };
    ASSERT_EQ(Draw("page.pdf").status, 0);
    EXPECT_THAT(wrong(), ::testing::Contains("no output intent"));
    const Arguments archive = {"--pdf-standard", "a-2u"};
    ASSERT_EQ(Draw("page.pdf", archive).status, 0);
    EXPECT_THAT(wrong(), ::testing::IsEmpty());
    EXPECT_THAT(host_tests::AgainstPdfUa(folder.Path("page.pdf")), ::testing::IsEmpty());
    const std::string first = ContentsOf(folder.Path("page.pdf"));
    ASSERT_EQ(Draw("page.pdf", archive).status, 0);
    EXPECT_TRUE(ContentsOf(folder.Path("page.pdf")) == first);
    EXPECT_THAT(Draw("page.pdf", archive, "\u0F40").err,
                ::testing::HasSubstr("a box is drawn, which PDF/A does not allow"));
}

TEST_F(Print, SaysOfItselfWhatOptionsSay) {
    ASSERT_EQ(Draw("page.pdf", {"--author", "N. <N>", "--subject", "A & B", "--keywords",
                                "sea, land", "--document-title", "Küste"})
                  .status,
              0);
    const std::string info = "\n" + Said("pdfinfo " + folder.Path("page.pdf"));
    EXPECT_EQ(After(info, "Title:"), "Küste");
    EXPECT_EQ(After(info, "Author:"), "N. <N>");
    EXPECT_EQ(After(info, "Subject:"), "A & B");
    EXPECT_EQ(After(info, "Keywords:"), "sea, land");
    const std::string metadata = Said("pdfinfo -meta " + folder.Path("page.pdf"));
    EXPECT_TRUE(Holds(metadata, "<rdf:li>N. &lt;N&gt;</rdf:li>")) << metadata;
    EXPECT_TRUE(Holds(metadata, "A &amp; B")) << metadata;
}

TEST_F(Print, NeedsNoOtherProgram) {
    const host_tests::RunningMapPage running(folder, {"scene.tif", "-o", "page.pdf"},
                                             [] { setenv("PATH", "/nowhere", 1); });
    EXPECT_EQ(running.Wait().status, 0);
    EXPECT_EQ(ContentsOf(folder.Path("page.pdf")).compare(0, 5, "%PDF-"), 0);
}

}  // namespace
