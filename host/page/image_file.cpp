#include "page/image_file.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "page/image_resolution.h"

namespace host {
namespace {

struct Ending {
    std::string_view text;
    ImageFormat format;
};

constexpr Ending kEndings[] = {
    {".png", ImageFormat::Png}, {".jpg", ImageFormat::Jpeg}, {".jpeg", ImageFormat::Jpeg},
    {".bmp", ImageFormat::Bmp}, {".tif", ImageFormat::Tiff}, {".tiff", ImageFormat::Tiff},
};

bool EndsWith(std::string_view text, std::string_view ending) {
    const auto lower = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    // A name of nothing but the ending is a hidden file without one.
    return text.size() > ending.size() &&
           std::equal(ending.rbegin(), ending.rend(), text.rbegin(),
                      [lower](char a, char b) { return a == lower(b); });
}

const wchar_t* MimeTypeOf(ImageFormat format) {
    switch (format) {
        case ImageFormat::Jpeg:
            return L"image/jpeg";
        case ImageFormat::Bmp:
            return L"image/bmp";
        case ImageFormat::Tiff:
            return L"image/tiff";
        case ImageFormat::Png:
            break;
    }
    return L"image/png";
}

CLSID EncoderOf(ImageFormat format) {
    UINT count = 0;
    UINT bytes = 0;
    Gdiplus::GetImageEncodersSize(&count, &bytes);
    std::vector<Gdiplus::ImageCodecInfo> infos(bytes / sizeof(Gdiplus::ImageCodecInfo) +
                                               1);
    Gdiplus::GetImageEncoders(count, bytes, infos.data());
    for (UINT i = 0; i < count; ++i) {
        if (infos[i].MimeType != nullptr &&
            std::wstring_view(infos[i].MimeType) == MimeTypeOf(format)) {
            return infos[i].Clsid;
        }
    }
    throw std::runtime_error("GDI+ has no encoder for this kind of file");
}

/// A file that only lives in memory.
class MemoryFile {
public:
    MemoryFile() : m_descriptor(memfd_create("page", MFD_CLOEXEC)) {
        if (m_descriptor < 0) {
            throw std::runtime_error("no file in memory");
        }
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { close(m_descriptor); }

    /// A name to open it by.
    std::wstring Name() const {
        return L"/proc/self/fd/" + std::to_wstring(m_descriptor);
    }

    std::vector<std::uint8_t> Bytes() const {
        struct stat status = {};
        if (fstat(m_descriptor, &status) != 0) {
            return {};
        }
        std::vector<std::uint8_t> bytes(static_cast<std::size_t>(status.st_size));
        std::size_t done = 0;
        while (done < bytes.size()) {
            const ssize_t count = pread(m_descriptor, bytes.data() + done,
                                        bytes.size() - done, static_cast<off_t>(done));
            if (count <= 0) {
                return {};
            }
            done += static_cast<std::size_t>(count);
        }
        return bytes;
    }

private:
    int m_descriptor;
};

}  // namespace

std::optional<ImageFormat> FormatOf(const std::string& path) {
    for (const Ending& ending : kEndings) {
        if (EndsWith(path, ending.text)) {
            return ending.format;
        }
    }
    return std::nullopt;
}

std::vector<std::uint8_t> Encode(PageImage& image, ImageFormat format, double dpi) {
    // GDI+ writes PNG files too, but takes three times as long.
    if (format == ImageFormat::Png) {
        return EncodePng(image.Rows(), dpi);
    }
    const MemoryFile file;
    const CLSID encoder = EncoderOf(format);
    const Gdiplus::Status status = image.Bitmap().Save(file.Name().c_str(), &encoder);
    std::vector<std::uint8_t> bytes = file.Bytes();
    if (status != Gdiplus::Ok || bytes.empty()) {
        throw std::runtime_error("the image cannot be encoded");
    }
    RecordResolution(bytes, format, dpi);
    return bytes;
}

}  // namespace host
