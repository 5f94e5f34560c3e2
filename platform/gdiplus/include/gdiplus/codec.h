#pragma once

#include "gdiplus/text.h"

namespace Gdiplus {

/// An image file format that GDI+ reads or writes. The strings are in the caller's
/// buffer, after the array; a missing one is null.
class ImageCodecInfo {
public:
    /// The codec, for Image::Save, and the format.
    CLSID Clsid;
    GUID FormatID;
    /// Names for display.
    const WCHAR* CodecName;
    const WCHAR* DllName;
    const WCHAR* FormatDescription;
    const WCHAR* FilenameExtension;  ///< patterns: "*.JPG;*.JPEG;*.JPE;*.JFIF"
    const WCHAR* MimeType;           ///< "image/png"
    DWORD Flags;                     ///< ImageCodecFlags
    /// The version of this description.
    DWORD Version;
    /// The signatures of the format: how many, how long, the bytes and the mask of
    /// significant bits.
    DWORD SigCount;
    DWORD SigSize;
    const BYTE* SigPattern;
    const BYTE* SigMask;
};

/// One setting of an encoder, with its values at Value.
struct EncoderParameter {
    /// Which setting it is: EncoderQuality.
    GUID Guid;
    ULONG NumberOfValues;
    ULONG Type;  ///< an EncoderParameterValueType
    /// Owned by the caller: NumberOfValues of them.
    VOID* Value;
};

/// The settings for one Image::Save: Count of them, starting here.
struct EncoderParameters {
    /// How many settings there are, and the first of them.
    UINT Count;
    EncoderParameter Parameter[1];
};

/// The quality of a JPEG file: one ULONG from 0 to 100.
constexpr GUID EncoderQuality = {
    0x1D5BE4B5, 0xFA4A, 0x452D, {0x9C, 0xDD, 0x5D, 0xB3, 0x51, 0x05, 0xE7, 0xEB}};

namespace detail {

/// The flat encoders or decoders, for the duration of one call.
class FlatCodecs {
public:
    FlatCodecs(Status (*readSize)(UINT*, UINT*),
               Status (*read)(UINT, UINT, FlatCodecInfo*)) {
        UINT bytes = 0;
        status_ = readSize(&count_, &bytes);
        if (status_ == Ok) {
            memory_.reset(new (std::nothrow) BYTE[bytes]);
            status_ = memory_ == nullptr ? OutOfMemory : read(count_, bytes, Infos());
        }
    }

    Status GetStatus() const { return status_; }
    UINT Count() const { return count_; }

    /// The size in bytes of the wide array and its strings.
    UINT WideBytes() const {
        std::size_t bytes = count_ * sizeof(ImageCodecInfo);
        for (UINT i = 0; i < count_; ++i) {
            for (const auto text : kTexts) {
                if (const FlatChar* flat = Infos()[i].*text.flat) {
                    bytes += WideSize(flat) * sizeof(WCHAR);
                }
            }
        }
        return static_cast<UINT>(bytes);
    }

    /// Into a buffer of WideBytes() bytes.
    void Write(ImageCodecInfo* out) const {
        auto* text = reinterpret_cast<WCHAR*>(out + count_);
        for (UINT i = 0; i < count_; ++i) {
            const FlatCodecInfo& flat = Infos()[i];
            ImageCodecInfo& wide = out[i];
            wide = ImageCodecInfo();
            wide.Clsid = flat.Clsid;
            wide.FormatID = flat.FormatID;
            for (const auto member : kTexts) {
                if (const FlatChar* from = flat.*member.flat) {
                    wide.*member.wide = text;
                    text = WriteWide(from, text, WideSize(from));
                }
            }
            wide.Flags = flat.Flags;
            wide.Version = flat.Version;
            wide.SigCount = flat.SigCount;
            wide.SigSize = flat.SigSize;
            wide.SigPattern = flat.SigPattern;
            wide.SigMask = flat.SigMask;
        }
    }

private:
    struct Text {
        const FlatChar* FlatCodecInfo::*flat;
        const WCHAR* ImageCodecInfo::*wide;
    };
    static constexpr Text kTexts[] = {
        {&FlatCodecInfo::CodecName, &ImageCodecInfo::CodecName},
        {&FlatCodecInfo::DllName, &ImageCodecInfo::DllName},
        {&FlatCodecInfo::FormatDescription, &ImageCodecInfo::FormatDescription},
        {&FlatCodecInfo::FilenameExtension, &ImageCodecInfo::FilenameExtension},
        {&FlatCodecInfo::MimeType, &ImageCodecInfo::MimeType},
    };

    FlatCodecInfo* Infos() const {
        return reinterpret_cast<FlatCodecInfo*>(memory_.get());
    }

    std::unique_ptr<BYTE[]> memory_;
    UINT count_ = 0;
    Status status_ = Ok;
};

inline Status TellCodecsSize(const FlatCodecs& codecs, UINT* count, UINT* bytes) {
    if (count == nullptr || bytes == nullptr) {
        return InvalidParameter;
    }
    *count = 0;
    *bytes = 0;
    if (codecs.GetStatus() == Ok) {
        *count = codecs.Count();
        *bytes = codecs.WideBytes();
    }
    return codecs.GetStatus();
}

inline Status TellCodecs(const FlatCodecs& codecs, UINT count, UINT bytes,
                         ImageCodecInfo* out) {
    if (codecs.GetStatus() != Ok) {
        return codecs.GetStatus();
    }
    if (out == nullptr || count != codecs.Count() || bytes != codecs.WideBytes()) {
        return GenericError;
    }
    codecs.Write(out);
    return Ok;
}

}  // namespace detail

/// How many encoders there are, and the buffer size that GetImageEncoders needs.
inline Status GetImageEncodersSize(UINT* count, UINT* bytes) {
    return detail::TellCodecsSize(
        {DllExports::GdipGetImageEncodersSize, DllExports::GdipGetImageEncoders}, count,
        bytes);
}

/// Describes the encoders, into a buffer of exactly the count and bytes that
/// GetImageEncodersSize gave. Image::Save takes the Clsid of one.
inline Status GetImageEncoders(UINT count, UINT bytes, ImageCodecInfo* encoders) {
    return detail::TellCodecs(
        {DllExports::GdipGetImageEncodersSize, DllExports::GdipGetImageEncoders}, count,
        bytes, encoders);
}

inline Status GetImageDecodersSize(UINT* count, UINT* bytes) {
    return detail::TellCodecsSize(
        {DllExports::GdipGetImageDecodersSize, DllExports::GdipGetImageDecoders}, count,
        bytes);
}

inline Status GetImageDecoders(UINT count, UINT bytes, ImageCodecInfo* decoders) {
    return detail::TellCodecs(
        {DllExports::GdipGetImageDecodersSize, DllExports::GdipGetImageDecoders}, count,
        bytes, decoders);
}

}  // namespace Gdiplus
