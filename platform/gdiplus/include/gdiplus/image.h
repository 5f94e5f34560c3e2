#pragma once

#include <algorithm>

#include "gdiplus/codec.h"
#include "gdiplus/object.h"

namespace Gdiplus {

/// A picture, loaded from a file in any format that GDI+ decodes.
class Image : public detail::StatusKeeper {
public:
    /// A file that cannot be loaded leaves the image without a native object, and the
    /// reason in its last status: OutOfMemory if no decoder recognises it.
    Image(const WCHAR* filename) {
        const detail::Utf16Text text(filename);
        SetStatus(text.GetStatus() != Ok
                      ? text.GetStatus()
                      : DllExports::GdipLoadImageFromFile(text.Text(), &native_));
        if (native_ != nullptr && !HasFrames()) {
            DllExports::GdipDisposeImage(native_);
            native_ = nullptr;
            SetStatus(OutOfMemory);
        }
        if (native_ != nullptr) {
            CompletePalette();
        }
    }
    virtual ~Image() { DllExports::GdipDisposeImage(native_); }

    /// In pixels; 0 for an image that was not loaded.
    UINT GetWidth() {
        const UINT width = Query(DllExports::GdipGetImageWidth, native_);
        width_ = width;
        return width;
    }
    UINT GetHeight() {
        const UINT height = Query(DllExports::GdipGetImageHeight, native_);
        height_ = height;
        return height;
    }

    /// Dots per inch.
    REAL GetHorizontalResolution() {
        return Query(DllExports::GdipGetImageHorizontalResolution, native_);
    }
    REAL GetVerticalResolution() {
        return Query(DllExports::GdipGetImageVerticalResolution, native_);
    }
    /// The pixel format, and whether this is a bitmap at all.
    PixelFormat GetPixelFormat() {
        return Query(DllExports::GdipGetImagePixelFormat, native_);
    }
    ImageType GetType() { return Query(DllExports::GdipGetImageType, native_); }

    /// Writes the image in the format of an encoder, whose Clsid comes from
    /// GetImageEncoders. libgdiplus does not notice when the disk fills up. A parameter
    /// without a value is InvalidParameter: libgdiplus would read it all the same.
    Status Save(const WCHAR* filename, const CLSID* encoder,
                const EncoderParameters* parameters = nullptr) {
        const detail::Utf16Text text(filename);
        if (text.GetStatus() != Ok || !HaveValues(parameters)) {
            return SetStatus(text.GetStatus() != Ok ? text.GetStatus()
                                                    : InvalidParameter);
        }
        return SetStatus(
            DllExports::GdipSaveImageToFile(native_, text.Text(), encoder, parameters));
    }

    /// The native object, for the flat functions; null if creation failed.
    GpImage* NativeObject() const { return native_; }

protected:
    Image() = default;

    /// Owned; deleted with the image.
    GpImage* native_ = nullptr;

    /// Pixels, from the last query or as a bitmap was made; -1 before it.
    std::int64_t width_ = -1;
    std::int64_t height_ = -1;  ///< Likewise.

private:
    friend class Graphics;

    static bool HaveValues(const EncoderParameters* parameters) {
        const UINT count = parameters == nullptr ? 0 : parameters->Count;
        const EncoderParameter* const first =
            parameters == nullptr ? nullptr : parameters->Parameter;
        return std::all_of(first, first + count, [](const EncoderParameter& parameter) {
            return parameter.Value != nullptr;
        });
    }

    /// From a TIFF file that ends within its page directory, libgdiplus makes an image
    /// without pages, and dereferences a null pointer on any query of it.
    bool HasFrames() const {
        GUID dimension = {};
        UINT frames = 1;  // for formats that have no count
        DllExports::GdipImageGetFrameDimensionsList(native_, &dimension, 1);
        DllExports::GdipImageGetFrameCount(native_, &dimension, &frames);
        return frames != 0;
    }

    /// A file's palette may have fewer colours than its pixels can index, and libgdiplus
    /// then reads past its end: fill the missing ones with black.
    void CompletePalette() {
        PixelFormat format = PixelFormatUndefined;
        INT bytes = 0;
        FlatPalette palette = {};
        DllExports::GdipGetImagePixelFormat(native_, &format);
        if (!IsIndexedPixelFormat(format) ||
            DllExports::GdipGetImagePaletteSize(native_, &bytes) != Ok ||
            bytes > static_cast<INT>(sizeof palette) ||
            DllExports::GdipGetImagePalette(native_, &palette, bytes) != Ok) {
            return;
        }
        const UINT colors = 1U << GetPixelFormatSize(format);
        if (palette.Count < colors) {
            std::fill(palette.Entries + palette.Count, palette.Entries + colors,
                      0xFF000000);
            palette.Count = colors;
            DllExports::GdipSetImagePalette(native_, &palette);
        }
    }

    /// Whether libgdiplus can draw the image. Drawing one with a longer side leaves the
    /// surface unable to draw. Queries only what the caller has not queried before.
    bool IsDrawable() {
        constexpr std::int64_t longestSide = 32767;
        return native_ == nullptr ||
               ((width_ < 0 ? GetWidth() : width_) <= longestSide &&
                (height_ < 0 ? GetHeight() : height_) <= longestSide);
    }
};

/// An image of pixels in memory.
class Bitmap : public Image {
public:
    /// From an image file; or new, with all pixels transparent.
    Bitmap(const WCHAR* filename) : Image(filename) {}
    Bitmap(INT width, INT height, PixelFormat format = PixelFormat32bppARGB)
        : Bitmap(width, height, 0, format, nullptr) {}

    /// Over the caller's memory, which must outlive the bitmap. The stride is the bytes
    /// from one row to the next, at least those of a row's pixels; negative for rows that
    /// go upwards from scan0. A 24-bit format is NotImplemented: libgdiplus writes four
    /// bytes per pixel, past the end of such memory.
    ///
    /// Drawing on PixelFormat32bppPARGB and PixelFormat32bppRGB goes straight into the
    /// memory. Over PixelFormat32bppARGB, libgdiplus draws on a copy, which replaces the
    /// memory's pixels when the bitmap is locked: what the host wrote there in the
    /// meantime is lost.
    ///
    /// One of more than 2 147 483 647 bytes (four a pixel) is
    /// OutOfMemory: libgdiplus, which counts them in 32 bits, would end the program.
    Bitmap(INT width, INT height, INT stride, PixelFormat format, BYTE* scan0) {
        const Status memory = CheckMemory(width, height, stride, format, scan0);
        GpBitmap* bitmap = nullptr;
        SetStatus(memory != Ok ? memory
                               : DllExports::GdipCreateBitmapFromScan0(
                                     width, height, stride, format, scan0, &bitmap));
        native_ = bitmap;
        if (bitmap != nullptr) {
            width_ = width;
            height_ = height;
        }
    }

    /// One pixel; InvalidParameter outside the bitmap.
    Status GetPixel(INT x, INT y, Color* color) {
        if (color == nullptr) {
            return SetStatus(InvalidParameter);
        }
        ARGB argb = 0;
        const Status status =
            SetStatus(DllExports::GdipBitmapGetPixel(Pixels(), x, y, &argb));
        *color = Color(argb);
        return status;
    }
    Status SetPixel(INT x, INT y, const Color& color) {
        return SetStatus(
            DllExports::GdipBitmapSetPixel(Pixels(), x, y, color.GetValue()));
    }
    /// Dots per inch: DrawImage draws the bitmap by them, and a Graphics on it answers
    /// them. libgdiplus writes them into no file; the flat functions over Cairo write
    /// them into PNG, JPEG, TIFF and BMP.
    Status SetResolution(REAL xdpi, REAL ydpi) {
        return SetStatus(DllExports::GdipBitmapSetResolution(Pixels(), xdpi, ydpi));
    }

    /// Gives access to the pixels of an area until UnlockBits; null for the whole bitmap.
    /// An indexed format must be the bitmap's own; more than 2 147 483 647 bytes are
    /// OutOfMemory.
    Status LockBits(const Rect* area, UINT mode, PixelFormat format, BitmapData* data) {
        const Status access = CheckAccess(area, format);
        return SetStatus(access != Ok ? access
                                      : DllExports::GdipBitmapLockBits(
                                            Pixels(), area, mode, format, data));
    }
    Status UnlockBits(BitmapData* data) {
        return SetStatus(DllExports::GdipBitmapUnlockBits(Pixels(), data));
    }

private:
    /// Whether the bytes of so many pixels, four for each whatever the format, are
    /// counted in 32 bits. What is no size is for GDI+ to refuse.
    static bool IsCountable(std::int64_t width, std::int64_t height) {
        constexpr std::int64_t most = 2147483647;
        return width <= 0 || height <= 0 || 4 * width <= most / height;
    }

    Status CheckAccess(const Rect* area, PixelFormat format) {
        if (native_ == nullptr) {
            return Ok;  // to be refused
        }
        if (IsIndexedPixelFormat(format) && format != GetPixelFormat()) {
            return InvalidParameter;
        }
        constexpr INT all = 2147483647;
        const std::int64_t width = std::min<std::int64_t>(
            width_ < 0 ? GetWidth() : width_, area == nullptr ? all : area->Width);
        const std::int64_t height = std::min<std::int64_t>(
            height_ < 0 ? GetHeight() : height_, area == nullptr ? all : area->Height);
        return IsCountable(width, height) ? Ok : OutOfMemory;
    }

    static Status CheckMemory(INT width, INT height, INT stride, PixelFormat format,
                              const BYTE* scan0) {
        if (!IsCountable(width, height)) {
            return OutOfMemory;
        }
        if (scan0 == nullptr) {
            return Ok;
        }
        if (format == PixelFormat24bppRGB) {
            return NotImplemented;
        }
        const std::int64_t rowBits = std::int64_t{width} * GetPixelFormatSize(format);
        const std::int64_t strideBits = std::int64_t{stride} * 8;
        return (strideBits < 0 ? -strideBits : strideBits) < rowBits ? InvalidParameter
                                                                     : Ok;
    }

    GpBitmap* Pixels() const { return static_cast<GpBitmap*>(native_); }
};

}  // namespace Gdiplus
