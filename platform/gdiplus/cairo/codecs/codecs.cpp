#include "cairo/codecs/codecs.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

#include "cairo/unicode.h"

namespace engine {

bool Source::HasAlpha() const {
    return bitmap_.pixels->format == PixelFormat32bppARGB ||
           bitmap_.pixels->format == PixelFormat32bppPARGB;
}

void Source::Read(INT y, ARGB* colors) const {
    const Pixels& pixels = *bitmap_.pixels;
    ReadColors(pixels.format, pixels.palette, pixels.Row(y), 0, pixels.width, colors);
}

void Source::ReadBytes(INT y, bool alpha, BYTE* bytes) const {
    const Pixels& pixels = *bitmap_.pixels;
    constexpr INT some = 256;
    ARGB colors[some];
    for (INT x = 0; x < pixels.width; x += some) {
        const INT count = std::min(some, pixels.width - x);
        ReadColors(pixels.format, pixels.palette, pixels.Row(y), x, count, colors);
        for (INT i = 0; i < count; ++i) {
            *bytes++ = static_cast<BYTE>(colors[i] >> 16);
            *bytes++ = static_cast<BYTE>(colors[i] >> 8);
            *bytes++ = static_cast<BYTE>(colors[i]);
            if (alpha) {
                *bytes++ = static_cast<BYTE>(colors[i] >> 24);
            }
        }
    }
}

namespace {

struct Signature {
    BYTE bytes[8];
    BYTE mask[8];
    DWORD size;
    DWORD count;
};

constexpr Signature kBmp = {{'B', 'M'}, {0xFF, 0xFF}, 2, 1};
constexpr Signature kJpeg = {{0xFF, 0xD8}, {0xFF, 0xFF}, 2, 1};
// GIF files of two years: the fifth byte is 7 or 9.
constexpr Signature kGif = {
    {'G', 'I', 'F', '8', '1', 'a'}, {0xFF, 0xFF, 0xFF, 0xFF, 0xF1, 0xFF}, 6, 1};
constexpr Signature kTiff = {{'I', 'I', 'M', 'M'}, {0xFF, 0xFF, 0xFF, 0xFF}, 2, 2};
constexpr Signature kPng = {{0x89, 'P', 'N', 'G', 13, 10, 26, 10},
                            {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF},
                            8,
                            1};

struct Codec {
    DWORD encoder;  ///< the first part of its name; the others are the same
    DWORD format;
    const FlatChar* name;
    const FlatChar* description;
    const FlatChar* extension;
    const FlatChar* mimeType;
    const Signature& signature;
    std::unique_ptr<Bitmap> (*decode)(FileBytes);
};

constexpr Codec kCodecs[] = {
    {0x557CF400, 0xB96B3CAB, u"Built-in BMP codec", u"BMP", u"*.BMP;*.DIB;*.RLE",
     u"image/bmp", kBmp, DecodeBmp},
    {0x557CF401, 0xB96B3CAE, u"Built-in JPEG codec", u"JPEG",
     u"*.JPG;*.JPEG;*.JPE;*.JFIF", u"image/jpeg", kJpeg, DecodeJpeg},
    {0x557CF402, 0xB96B3CB0, u"Built-in GIF codec", u"GIF", u"*.GIF", u"image/gif", kGif,
     DecodeGif},
    {0x557CF405, 0xB96B3CB1, u"Built-in TIFF codec", u"TIFF", u"*.TIF;*.TIFF",
     u"image/tiff", kTiff, DecodeTiff},
    {0x557CF406, 0xB96B3CAF, u"Built-in PNG codec", u"PNG", u"*.PNG", u"image/png", kPng,
     DecodePng},
};
constexpr UINT kCount = std::size(kCodecs);

GUID EncoderName(const Codec& codec) {
    return {codec.encoder, 0x1A04, 0x11D3, {0x9A, 0x73, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}};
}

bool Matches(const Signature& signature, FileBytes file) {
    for (DWORD pattern = 0; pattern < signature.count; ++pattern) {
        bool same = file.size >= signature.size;
        for (DWORD i = 0; same && i < signature.size; ++i) {
            const DWORD at = pattern * signature.size + i;
            same = (file.data[i] & signature.mask[at]) ==
                   (signature.bytes[at] & signature.mask[at]);
        }
        if (same) {
            return true;
        }
    }
    return false;
}

GpStatus TellSize(UINT* count, UINT* size) {
    if (count == nullptr || size == nullptr) {
        return InvalidParameter;
    }
    *count = kCount;
    *size = kCount * sizeof(FlatCodecInfo);
    return Ok;
}

GpStatus TellCodecs(UINT count, UINT size, FlatCodecInfo* infos) {
    if (infos == nullptr || count != kCount || size != kCount * sizeof(FlatCodecInfo)) {
        return InvalidParameter;
    }
    for (const Codec& codec : kCodecs) {
        const GUID format = {
            codec.format, 0x0728, 0x11D3, {0x9D, 0x7B, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}};
        *infos++ = {EncoderName(codec),
                    format,
                    codec.name,
                    nullptr,
                    codec.description,
                    codec.extension,
                    codec.mimeType,
                    ImageCodecFlagsEncoder | ImageCodecFlagsDecoder |
                        ImageCodecFlagsSupportBitmap | ImageCodecFlagsBuiltin,
                    1,
                    codec.signature.count,
                    codec.signature.size,
                    codec.signature.bytes,
                    codec.signature.mask};
    }
    return Ok;
}

void CloseFile(std::FILE* file) { std::fclose(file); }
using File = Owned<std::FILE, CloseFile>;

bool IsRegular(std::FILE* file, std::size_t& size) {
    struct stat about = {};
    if (fstat(fileno(file), &about) != 0 || !S_ISREG(about.st_mode)) {
        return false;
    }
    size = static_cast<std::size_t>(about.st_size);
    return true;
}

GpStatus Load(const FlatChar* name, GpImage** image) {
    const File file(std::fopen(Utf8(name).c_str(), "rbe"));
    if (file == nullptr) {
        return FileNotFound;
    }
    constexpr std::size_t mostBytes = 1 << 30;
    std::size_t size = 0;
    if (!IsRegular(file.get(), size) || size > mostBytes) {
        return OutOfMemory;
    }
    std::vector<BYTE> bytes(size);
    bytes.resize(std::fread(bytes.data(), 1, size, file.get()));
    const FileBytes all = {bytes.data(), bytes.size()};
    for (const Codec& codec : kCodecs) {
        if (Matches(codec.signature, all)) {
            std::unique_ptr<Bitmap> bitmap = codec.decode(all);
            if (bitmap != nullptr) {
                *image = bitmap.release();
                return Ok;
            }
        }
    }
    return OutOfMemory;
}

bool HaveValues(const EncoderParameters* parameters) {
    for (UINT i = 0; parameters != nullptr && i < parameters->Count; ++i) {
        if (parameters->Parameter[i].Value == nullptr) {
            return false;
        }
    }
    return true;
}

/// The quality in the parameters, or the default.
int QualityOf(const EncoderParameters* parameters) {
    constexpr int usual = 75;
    for (UINT i = 0; parameters != nullptr && i < parameters->Count; ++i) {
        const EncoderParameter& parameter = parameters->Parameter[i];
        if (parameter.Guid == EncoderQuality && parameter.NumberOfValues == 1 &&
            parameter.Type == EncoderParameterValueTypeLong) {
            ULONG quality = 0;
            std::memcpy(&quality, parameter.Value, sizeof quality);
            return static_cast<int>(std::min(quality, ULONG{100}));
        }
    }
    return usual;
}

bool Encode(const Codec& codec, const Source& source, const EncoderParameters* parameters,
            std::vector<BYTE>& bytes) {
    if (codec.decode == DecodeJpeg) {
        return EncodeJpeg(source, QualityOf(parameters), bytes);
    }
    return codec.decode == DecodeBmp    ? EncodeBmp(source, bytes)
           : codec.decode == DecodeGif  ? EncodeGif(source, bytes)
           : codec.decode == DecodeTiff ? EncodeTiff(source, bytes)
                                        : EncodePng(source, bytes);
}

/// Writes a whole file or none: a regular file that could not be completed is removed.
GpStatus Write(const std::string& name, const std::vector<BYTE>& bytes) {
    std::FILE* const file = std::fopen(name.c_str(), "wbe");
    if (file == nullptr) {
        return Win32Error;
    }
    std::size_t before = 0;
    const bool regular = IsRegular(file, before);
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    const bool closed = std::fclose(file) == 0;
    if (written && closed) {
        return Ok;
    }
    if (regular) {
        std::remove(name.c_str());
    }
    return Win32Error;
}

}  // namespace
}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

using engine::From;

GpStatus GdipGetImageEncodersSize(UINT* count, UINT* size) {
    return engine::TellSize(count, size);
}

GpStatus GdipGetImageEncoders(UINT count, UINT size, FlatCodecInfo* encoders) {
    return engine::TellCodecs(count, size, encoders);
}

GpStatus GdipGetImageDecodersSize(UINT* count, UINT* size) {
    return engine::TellSize(count, size);
}

GpStatus GdipGetImageDecoders(UINT count, UINT size, FlatCodecInfo* decoders) {
    return engine::TellCodecs(count, size, decoders);
}

GpStatus GdipLoadImageFromFile(const FlatChar* file, GpImage** image) {
    if (!engine::IsRunning()) {
        return GdiplusNotInitialized;
    }
    if (file == nullptr || image == nullptr) {
        return InvalidParameter;
    }
    return engine::Guarded([&] { return engine::Load(file, image); });
}

GpStatus GdipSaveImageToFile(GpImage* image, const FlatChar* file, const CLSID* encoder,
                             const EncoderParameters* parameters) {
    if (image == nullptr || file == nullptr || encoder == nullptr ||
        !engine::HaveValues(parameters)) {
        return InvalidParameter;
    }
    return engine::Guarded([&] {
        for (const engine::Codec& codec : engine::kCodecs) {
            if (engine::EncoderName(codec) == *encoder) {
                std::vector<BYTE> bytes;
                const engine::Source source(*From(image));
                return engine::Encode(codec, source, parameters, bytes)
                           ? engine::Write(engine::Utf8(file), bytes)
                           : GenericError;
            }
        }
        return UnknownImageFormat;
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
