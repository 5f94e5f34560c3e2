// Page files, lists and options as anybody may write them. Nothing is read but what is
// below a folder that is empty; pages are drawn very small.

#include <gdiplus.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include "map_page/options.h"
#include "map_page/series_list.h"
#include "page/document/page_text.h"
#include "page/layout/layout.h"
#include "page/output/page_image.h"
#include "system/errors.h"
#include "system/memory_file.h"

namespace {

void Check(bool held, const char* what) {
    if (!held) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

/// A map that is there without a file.
class GreyMap : public host::MapPicture {
public:
    host::PixelImage Render(int width, int height, const host::Progress&) override {
        host::PixelImage image;
        image.width = width;
        image.height = height;
        image.bgra.assign(4 * static_cast<std::size_t>(width) * height, 128);
        return image;
    }
};

/// What the files may name: those of a folder in which there are none.
class EmptyFolder {
public:
    EmptyFolder() : m_path("/tmp/map_surround_fuzz.XXXXXX") {
        Check(mkdtemp(m_path.data()) != nullptr, "a folder can be made");
        m_allowed.emplace(m_path + "/page.json");
        rmdir(m_path.c_str());
    }

    const host::AllowedSources* Allowed() const { return &*m_allowed; }
    host::FilePaths Paths() const {
        return host::FilePaths(m_path + "/page.json", Allowed());
    }

private:
    std::string m_path;
    std::optional<host::AllowedSources> m_allowed;
};

const EmptyFolder& Folder() {
    static const EmptyFolder folder;
    return folder;
}

/// A whole page is drawn, or refused by name.
void Draw(host::Page& page) {
    constexpr double kLongestSide = 48.0;  // pixels
    for (host::PageItem& item : page.Items()) {
        if (auto* const map = std::get_if<host::MapFrame>(&item)) {
            map->picture = std::make_shared<GreyMap>();
        }
    }
    const double dpi = 96.0 * kLongestSide / std::max(page.Width(), page.Height());
    host::PageImage image(host::PixelSize(page, dpi));
    Gdiplus::Graphics graphics(&image.Bitmap());
    try {
        page.Draw(graphics, dpi);
    } catch (const host::NamedError&) {
    }
}

void PlayPage(const std::string& text) {
    host::Page page = host::ReadPage(text, Folder().Paths());
    const std::string written = host::WritePage(page, Folder().Paths());
    const host::Page again = host::ReadPage(written, Folder().Paths());
    Check(host::WritePage(again, Folder().Paths()) == written,
          "a page that was written is read the same");
    Draw(page);
}

void PlayList(const std::string& text) {
    const host::MemoryFile file;
    std::ofstream(file.Name(), std::ios::binary) << text;
    const map_page::SeriesList list =
        map_page::ReadSeries(file.Name(), "{name}.png", Folder().Allowed());
    for (const map_page::SeriesPage& page : list.pages) {
        Check(page.output.find('/') == std::string::npos, "no value leads elsewhere");
    }
}

/// A line each.
void PlayOptions(const std::string& text) {
    std::vector<std::string> words = {"map_page"};
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        words.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    std::vector<const char*> argv;
    for (const std::string& word : words) {
        argv.push_back(word.c_str());
    }
    const auto call =
        map_page::ReadCommandLine(static_cast<int>(argv.size()), argv.data());
    const auto* const options = std::get_if<map_page::Options>(&call);
    if (options == nullptr || !options->pageFile.empty()) {
        return;
    }
    host::PageDesign design = options->design;
    design.picture = {};  // would be read
    host::MapOnPage map;
    map.picture = std::make_shared<GreyMap>();
    map.extent = host::Box{0.0, 0.0, 1000.0, 1000.0};
    host::Page page = host::LayOut(design, map).page;
    Draw(page);
}

bool StartGdiplus() {
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    return Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool started = StartGdiplus();
    Check(started, "GDI+ starts");
    if (size == 0) {
        return 0;
    }
    const std::string text(data + 1, data + size);
    try {
        switch (data[0]) {
            case 'L':
                PlayList(text);
                break;
            case 'O':
                PlayOptions(text);
                break;
            default:
                PlayPage(text);
                break;
        }
    } catch (const std::runtime_error&) {  // told in one line
    }
    return 0;
}
