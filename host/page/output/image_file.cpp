#include "page/output/image_file.h"

#include <stdexcept>
#include <string_view>

#include "page/output/image_resolution.h"
#include "page/output/tiff_image.h"
#include "system/memory_file.h"

namespace host {
namespace {

const wchar_t* MimeTypeOf(OutputFormat format) {
    switch (format) {
        case OutputFormat::Jpeg:
            return L"image/jpeg";
        default:
            return L"image/bmp";
    }
}

CLSID EncoderOf(OutputFormat format) {
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

std::vector<std::uint8_t> Saved(Gdiplus::Bitmap& image, OutputFormat format,
                                const Gdiplus::EncoderParameters* parameters) {
    const MemoryFile file;
    const CLSID encoder = EncoderOf(format);
    const std::string name = file.Name();
    const std::wstring wide(name.begin(), name.end());
    const Gdiplus::Status status = image.Save(wide.c_str(), &encoder, parameters);
    std::vector<std::uint8_t> bytes = file.Bytes();
    if (status != Gdiplus::Ok || bytes.empty()) {
        throw std::runtime_error("the image cannot be encoded");
    }
    return bytes;
}

}  // namespace

std::vector<std::uint8_t> Encode(PageImage& image, OutputFormat format, double dpi,
                                 const std::optional<Georeference>& georeference) {
    // GDI+ also writes PNG, but takes three times as long; and TIFF, but without a
    // resolution, uncompressed, and with an alpha band.
    if (format == OutputFormat::Png) {
        return EncodePng(image.Rows(), dpi);
    }
    if (format == OutputFormat::Tiff) {
        return EncodeTiff(image.Rows(), dpi, georeference);
    }
    std::vector<std::uint8_t> bytes = Saved(image.Bitmap(), format, nullptr);
    RecordResolution(bytes, format, dpi);
    return bytes;
}

std::vector<std::uint8_t> EncodeJpeg(const PixelRows& pixels, int quality) {
    Gdiplus::Bitmap image(pixels.width, pixels.height, static_cast<INT>(pixels.stride),
                          PixelFormat32bppRGB, const_cast<BYTE*>(pixels.first));
    auto value = static_cast<ULONG>(quality);
    Gdiplus::EncoderParameters parameters = {};
    parameters.Count = 1;
    parameters.Parameter[0] = {Gdiplus::EncoderQuality, 1,
                               Gdiplus::EncoderParameterValueTypeLong, &value};
    return Saved(image, OutputFormat::Jpeg, &parameters);
}

}  // namespace host
