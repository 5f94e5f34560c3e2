#pragma once

#include <memory>
#include <vector>

#include "cairo/bitmap.h"

namespace engine {

/// The bytes of an image file.
struct FileBytes {
    const BYTE* data;
    std::size_t size;
};

constexpr double kMetresPerInch = 0.0254;

/// The most pixels of an image in a file, checked before memory is allocated.
constexpr std::int64_t kMostPixels = 1 << 29;

inline bool IsDecodable(std::int64_t width, std::int64_t height) {
    return width > 0 && height > 0 && width <= 0x7FFFFFFF / 4 &&
           height <= kMostPixels / width;
}

// Each returns null for what it cannot decode, and when memory runs out.
std::unique_ptr<Bitmap> DecodePng(FileBytes file);
std::unique_ptr<Bitmap> DecodeJpeg(FileBytes file);
std::unique_ptr<Bitmap> DecodeTiff(FileBytes file);
std::unique_ptr<Bitmap> DecodeGif(FileBytes file);
std::unique_ptr<Bitmap> DecodeBmp(FileBytes file);

/// What an image is written from: straight colours, row by row, and dots per inch.
class Source {
public:
    explicit Source(const Bitmap& bitmap) : bitmap_(bitmap) {}

    INT Width() const { return bitmap_.pixels->width; }
    INT Height() const { return bitmap_.pixels->height; }
    bool HasAlpha() const;
    REAL Xdpi() const { return bitmap_.xdpi; }
    REAL Ydpi() const { return bitmap_.ydpi; }
    void Read(INT y, ARGB* colors) const;
    /// Red, green and blue, and alpha if wanted, one byte each.
    void ReadBytes(INT y, bool alpha, BYTE* bytes) const;

private:
    const Bitmap& bitmap_;
};

// Each appends a whole file; false if it cannot.
bool EncodePng(const Source& source, std::vector<BYTE>& file);
bool EncodeJpeg(const Source& source, int quality, std::vector<BYTE>& file);
bool EncodeTiff(const Source& source, std::vector<BYTE>& file);
bool EncodeGif(const Source& source, std::vector<BYTE>& file);
bool EncodeBmp(const Source& source, std::vector<BYTE>& file);

}  // namespace engine
