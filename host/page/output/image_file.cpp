#include "page/output/image_file.h"

#include <stdexcept>
#include <string_view>

#include "page/output/image_resolution.h"
#include "system/file_ending.h"
#include "system/memory_file.h"

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

}  // namespace

std::optional<ImageFormat> FormatOf(const std::string& path) {
    for (const Ending& ending : kEndings) {
        if (HasEnding(path, ending.text)) {
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
    const std::string name = file.Name();
    const std::wstring wide(name.begin(), name.end());
    const Gdiplus::Status status = image.Bitmap().Save(wide.c_str(), &encoder);
    std::vector<std::uint8_t> bytes = file.Bytes();
    if (status != Gdiplus::Ok || bytes.empty()) {
        throw std::runtime_error("the image cannot be encoded");
    }
    RecordResolution(bytes, format, dpi);
    return bytes;
}

}  // namespace host
