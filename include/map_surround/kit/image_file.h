#pragma once

/// @file
/// Pictures of pages as files.

#include <gdiplus.h>

#include <cwctype>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace map_surround::kit {

/// The encoder for a MIME type, such as L"image/png"; nothing if GDI+ has none.
inline std::optional<CLSID> EncoderOf(std::wstring_view mimeType) {
    UINT count = 0;
    UINT bytes = 0;
    Gdiplus::GetImageEncodersSize(&count, &bytes);
    // Allocated in whole records, but larger: the texts follow the records.
    std::vector<Gdiplus::ImageCodecInfo> encoders(
        bytes / sizeof(Gdiplus::ImageCodecInfo) + 1);
    Gdiplus::GetImageEncoders(count, bytes, encoders.data());
    for (UINT i = 0; i < count; ++i) {
        if (encoders[i].MimeType != nullptr && encoders[i].MimeType == mimeType) {
            return encoders[i].Clsid;
        }
    }
    return std::nullopt;
}

/// The MIME type for a file name's ending, in either case: "plan.JPG" gives image/jpeg.
/// Empty for anything but .png, .jpg, .jpeg, .tif, .tiff, .bmp and .gif.
inline std::wstring_view MimeTypeOf(std::wstring_view file) {
    struct Kind {
        std::wstring_view ending;
        std::wstring_view mimeType;
    };
    constexpr Kind kKinds[] = {
        {L"png", L"image/png"},  {L"jpg", L"image/jpeg"},  {L"jpeg", L"image/jpeg"},
        {L"tif", L"image/tiff"}, {L"tiff", L"image/tiff"}, {L"bmp", L"image/bmp"},
        {L"gif", L"image/gif"},
    };
    const std::size_t dot = file.rfind(L'.');
    if (dot == std::wstring_view::npos) {
        return {};
    }
    std::wstring ending;
    for (const wchar_t letter : file.substr(dot + 1)) {
        ending += static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(letter)));
    }
    for (const Kind& kind : kKinds) {
        if (kind.ending == ending) {
            return kind.mimeType;
        }
    }
    return {};
}

/// Saves an image in the format of its file's ending, with its resolution, which decides
/// how large it prints: 1748 pixels at 300 dots per inch are 148 mm.
///
/// A file of that name is replaced.
/// @param dpi dots per inch, above 0
/// @return InvalidParameter for an invalid resolution, UnknownImageFormat for an ending
/// without an encoder, else what GDI+ returns
inline Gdiplus::Status SaveImage(Gdiplus::Bitmap& image, const std::wstring& file,
                                 double dpi) {
    const auto resolution = static_cast<Gdiplus::REAL>(dpi);
    if (!(resolution > 0.0f)) {
        return Gdiplus::InvalidParameter;
    }
    const std::optional<CLSID> encoder = EncoderOf(MimeTypeOf(file));
    if (!encoder) {
        return Gdiplus::UnknownImageFormat;
    }
    const Gdiplus::Status kept = image.SetResolution(resolution, resolution);
    return kept == Gdiplus::Ok ? image.Save(file.c_str(), &*encoder, nullptr) : kept;
}

}  // namespace map_surround::kit
