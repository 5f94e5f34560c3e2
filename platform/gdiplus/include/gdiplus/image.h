#pragma once

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
    }
    virtual ~Image() { DllExports::GdipDisposeImage(native_); }

    /// In pixels; 0 for an image that was not loaded.
    UINT GetWidth() { return Query(DllExports::GdipGetImageWidth, native_); }
    UINT GetHeight() { return Query(DllExports::GdipGetImageHeight, native_); }

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
    /// GetImageEncoders. A file that cannot be completed gives Win32Error, and is
    /// removed.
    Status Save(const WCHAR* filename, const CLSID* encoder,
                const EncoderParameters* parameters = nullptr) {
        const detail::Utf16Text text(filename);
        return SetStatus(text.GetStatus() != Ok
                             ? text.GetStatus()
                             : DllExports::GdipSaveImageToFile(native_, text.Text(),
                                                               encoder, parameters));
    }

    /// The native object, for the flat functions; null if creation failed.
    GpImage* NativeObject() const { return native_; }

protected:
    Image() = default;

    /// Owned; deleted with the image.
    GpImage* native_ = nullptr;
};

/// An image of pixels in memory.
class Bitmap : public Image {
public:
    /// From an image file; or new, with all pixels transparent.
    Bitmap(const WCHAR* filename) : Image(filename) {}
    Bitmap(INT width, INT height, PixelFormat format = PixelFormat32bppARGB)
        : Bitmap(width, height, 0, format, nullptr) {}

    /// On the caller's memory, which must outlive the bitmap, and is drawn on in place.
    /// The stride is the bytes from one row to the next, a multiple of 4 and at least
    /// those of a row's pixels; negative for rows that go upwards from scan0.
    Bitmap(INT width, INT height, INT stride, PixelFormat format, BYTE* scan0) {
        GpBitmap* bitmap = nullptr;
        SetStatus(DllExports::GdipCreateBitmapFromScan0(width, height, stride, format,
                                                        scan0, &bitmap));
        native_ = bitmap;
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
    /// Dots per inch: DrawImage draws the bitmap by them, and a Graphics on it reports
    /// them. PNG, JPEG, TIFF and BMP files record them.
    Status SetResolution(REAL xdpi, REAL ydpi) {
        return SetStatus(DllExports::GdipBitmapSetResolution(Pixels(), xdpi, ydpi));
    }

    /// Gives access to the pixels of an area until UnlockBits; null for the whole bitmap.
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
