#include <tiffio.h>

#include <algorithm>
#include <cstring>

#include "cairo/codecs/codecs.h"

namespace engine {
namespace {

/// A file in memory, as libtiff reads and writes one.
struct TiffMemory {
    const BYTE* data = nullptr;  ///< to read; null to write
    std::size_t size = 0;
    std::vector<BYTE>* written = nullptr;
    std::size_t at = 0;

    std::size_t Size() const { return written == nullptr ? size : written->size(); }
};

TiffMemory& Of(thandle_t handle) { return *static_cast<TiffMemory*>(handle); }

tmsize_t ReadTiff(thandle_t handle, void* to, tmsize_t count) {
    TiffMemory& memory = Of(handle);
    const BYTE* const from =
        memory.written == nullptr ? memory.data : memory.written->data();
    const std::size_t left = memory.Size() - std::min(memory.at, memory.Size());
    const std::size_t taken = std::min(left, static_cast<std::size_t>(count));
    if (taken > 0) {
        std::memcpy(to, from + memory.at, taken);
    }
    memory.at += taken;
    return static_cast<tmsize_t>(taken);
}

tmsize_t WriteTiff(thandle_t handle, void* from, tmsize_t count) {
    TiffMemory& memory = Of(handle);
    const std::size_t end = memory.at + static_cast<std::size_t>(count);
    try {
        memory.written->resize(std::max(memory.written->size(), end));
    } catch (const std::bad_alloc&) {
        return 0;
    }
    std::memcpy(memory.written->data() + memory.at, from,
                static_cast<std::size_t>(count));
    memory.at = end;
    return count;
}

toff_t SeekTiff(thandle_t handle, toff_t to, int whence) {
    TiffMemory& memory = Of(handle);
    const std::size_t from = whence == SEEK_CUR   ? memory.at
                             : whence == SEEK_END ? memory.Size()
                                                  : 0;
    memory.at = from + to;
    return memory.at;
}

using Tiff = Owned<TIFF, TIFFClose>;

Tiff OpenTiff(TiffMemory& memory, const char* mode) {
    const Owned<TIFFOpenOptions, TIFFOpenOptionsFree> options(TIFFOpenOptionsAlloc());
    if (options == nullptr) {
        return nullptr;
    }
    const auto say = [](TIFF*, void*, const char*, const char*, va_list) { return 1; };
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), say, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), say, nullptr);
    TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), tmsize_t{1} << 30);
    return Tiff(TIFFClientOpenExt(
        "", mode, &memory, ReadTiff, WriteTiff, SeekTiff, [](thandle_t) { return 0; },
        [](thandle_t handle) { return static_cast<toff_t>(Of(handle).Size()); }, nullptr,
        nullptr, options.get()));
}

constexpr REAL kCentimetresPerInch = 2.54f;

void ReadTiffResolution(TIFF* tiff, Bitmap& bitmap) {
    float x = 0.0f;
    float y = 0.0f;
    UINT16 unit = RESUNIT_INCH;
    TIFFGetFieldDefaulted(tiff, TIFFTAG_RESOLUTIONUNIT, &unit);
    if (TIFFGetField(tiff, TIFFTAG_XRESOLUTION, &x) == 1 &&
        TIFFGetField(tiff, TIFFTAG_YRESOLUTION, &y) == 1 && x > 0.0f && y > 0.0f &&
        x < 1e6f && y < 1e6f && unit != RESUNIT_NONE) {
        const REAL dots = unit == RESUNIT_CENTIMETER ? kCentimetresPerInch : 1.0f;
        bitmap.xdpi = x * dots;
        bitmap.ydpi = y * dots;
    }
}

}  // namespace

std::unique_ptr<Bitmap> DecodeTiff(FileBytes file) {
    TiffMemory memory;
    memory.data = file.data;
    memory.size = file.size;
    const auto tiff = OpenTiff(memory, "rm");
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    if (tiff == nullptr || TIFFGetField(tiff.get(), TIFFTAG_IMAGEWIDTH, &width) != 1 ||
        TIFFGetField(tiff.get(), TIFFTAG_IMAGELENGTH, &height) != 1 ||
        !IsDecodable(width, height)) {
        return nullptr;
    }
    UINT16 extras = 0;
    UINT16* kinds = nullptr;
    const bool alpha =
        TIFFGetField(tiff.get(), TIFFTAG_EXTRASAMPLES, &extras, &kinds) == 1 &&
        extras > 0 && kinds != nullptr && kinds[0] != EXTRASAMPLE_UNSPECIFIED;
    auto bitmap = MakeBitmap(static_cast<INT>(width), static_cast<INT>(height),
                             alpha ? PixelFormat32bppARGB : PixelFormat24bppRGB);
    if (bitmap == nullptr) {
        return nullptr;
    }
    auto* const colors = reinterpret_cast<std::uint32_t*>(bitmap->pixels->rows);
    constexpr int stopOnError = 1;
    if (TIFFReadRGBAImageOriented(tiff.get(), width, height, colors, ORIENTATION_TOPLEFT,
                                  stopOnError) != 1) {
        return nullptr;
    }
    const std::size_t count = std::size_t{width} * height;
    for (std::size_t i = 0; i < count; ++i) {
        // libtiff's colours are premultiplied, with red in the lowest byte.
        const std::uint32_t abgr = colors[i];
        const ARGB color =
            (abgr & 0xFF00FF00) | (abgr & 0xFF) << 16 | (abgr >> 16 & 0xFF);
        colors[i] = alpha ? Straight(color) : color;
    }
    ReadTiffResolution(tiff.get(), *bitmap);
    return bitmap;
}

bool EncodeTiff(const Source& source, std::vector<BYTE>& file) {
    TiffMemory memory;
    memory.written = &file;
    auto tiff = OpenTiff(memory, "w");
    if (tiff == nullptr) {
        return false;
    }
    const bool alpha = source.HasAlpha();
    const int samples = alpha ? 4 : 3;
    TIFFSetField(tiff.get(), TIFFTAG_IMAGEWIDTH, source.Width());
    TIFFSetField(tiff.get(), TIFFTAG_IMAGELENGTH, source.Height());
    TIFFSetField(tiff.get(), TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(tiff.get(), TIFFTAG_SAMPLESPERPIXEL, samples);
    TIFFSetField(tiff.get(), TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(tiff.get(), TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff.get(), TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    TIFFSetField(tiff.get(), TIFFTAG_COMPRESSION, COMPRESSION_LZW);
    TIFFSetField(tiff.get(), TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
    TIFFSetField(tiff.get(), TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    TIFFSetField(tiff.get(), TIFFTAG_XRESOLUTION, static_cast<double>(source.Xdpi()));
    TIFFSetField(tiff.get(), TIFFTAG_YRESOLUTION, static_cast<double>(source.Ydpi()));
    TIFFSetField(tiff.get(), TIFFTAG_ROWSPERSTRIP, TIFFDefaultStripSize(tiff.get(), 0));
    if (alpha) {
        UINT16 straight = EXTRASAMPLE_UNASSALPHA;
        TIFFSetField(tiff.get(), TIFFTAG_EXTRASAMPLES, 1, &straight);
    }
    std::vector<BYTE> row(static_cast<std::size_t>(source.Width()) *
                          static_cast<std::size_t>(samples));
    for (INT y = 0; y < source.Height(); ++y) {
        source.ReadBytes(y, alpha, row.data());
        if (TIFFWriteScanline(tiff.get(), row.data(), static_cast<std::uint32_t>(y)) !=
            1) {
            return false;
        }
    }
    return TIFFFlush(tiff.get()) == 1;
}

}  // namespace engine
