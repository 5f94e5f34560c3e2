#pragma once

#include "gdiplus/flat.h"
#include "gdiplus/text.h"

namespace Gdiplus {

/// The encoders that every GDI+ has, for Image::Save.
constexpr CLSID kEncoderBmp = {
    0x557CF400, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
constexpr CLSID kEncoderJpeg = {
    0x557CF401, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
constexpr CLSID kEncoderTiff = {
    0x557CF405, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
constexpr CLSID kEncoderPng = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

class EncoderParameters;

/// A picture, loaded from a file in any format that GDI+ decodes.
class Image : public detail::StatusKeeper {
public:
    /// A file that cannot be loaded leaves the image without a native object and the
    /// reason as its last status.
    explicit Image(const WCHAR* filename) {
        const detail::Utf16Text text(filename);
        SetStatus(text.GetStatus() != Ok
                      ? text.GetStatus()
                      : DllExports::GdipLoadImageFromFile(text.Text(), &native_));
    }
    virtual ~Image() { DllExports::GdipDisposeImage(native_); }

    /// In pixels; 0 for an image that was not loaded.
    UINT GetWidth() {
        UINT width = 0;
        SetStatus(DllExports::GdipGetImageWidth(native_, &width));
        return width;
    }
    UINT GetHeight() {
        UINT height = 0;
        SetStatus(DllExports::GdipGetImageHeight(native_, &height));
        return height;
    }

    Status Save(const WCHAR* filename, const CLSID* encoder,
                const EncoderParameters* parameters = nullptr) {
        const detail::Utf16Text text(filename);
        return SetStatus(text.GetStatus() != Ok
                             ? text.GetStatus()
                             : DllExports::GdipSaveImageToFile(native_, text.Text(),
                                                               encoder, parameters));
    }

    GpImage* NativeObject() const { return native_; }

protected:
    Image() = default;

    GpImage* native_ = nullptr;
};

/// A picture of pixels in memory.
class Bitmap : public Image {
public:
    explicit Bitmap(const WCHAR* filename) : Image(filename) {}
    Bitmap(INT width, INT height, PixelFormat format = PixelFormat32bppARGB)
        : Bitmap(width, height, 0, format, nullptr) {}

    /// Over the caller's memory, which must outlive the bitmap.
    Bitmap(INT width, INT height, INT stride, PixelFormat format, BYTE* scan0) {
        GpBitmap* bitmap = nullptr;
        SetStatus(DllExports::GdipCreateBitmapFromScan0(width, height, stride, format,
                                                        scan0, &bitmap));
        native_ = bitmap;
    }

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
    Status SetResolution(REAL xdpi, REAL ydpi) {
        return SetStatus(DllExports::GdipBitmapSetResolution(Pixels(), xdpi, ydpi));
    }

    /// Gives the pixels of an area until UnlockBits; a null area is the whole bitmap.
    Status LockBits(const Rect* area, UINT mode, PixelFormat format, BitmapData* data) {
        return SetStatus(
            DllExports::GdipBitmapLockBits(Pixels(), area, mode, format, data));
    }
    Status UnlockBits(BitmapData* data) {
        return SetStatus(DllExports::GdipBitmapUnlockBits(Pixels(), data));
    }

private:
    GpBitmap* Pixels() const { return static_cast<GpBitmap*>(native_); }
};

}  // namespace Gdiplus
