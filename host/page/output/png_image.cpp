#include "page/output/png_image.h"

#include <png.h>

#include <cmath>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <stdexcept>

#include "page/units.h"

namespace host {
namespace {

constexpr std::size_t kBytesRead = 4;
constexpr std::size_t kBytesWritten = 3;

// The combination of zlib level and PNG filter that writes a page fastest, with a file
// within a tenth of the size at higher levels: paper is the same from row to row.
constexpr int kLevel = 1;
constexpr int kFilter = PNG_FILTER_UP;

constexpr std::size_t kFirstRoom = 1 << 16;

// libpng leaves by a long jump on an error. What is skipped here has no destructors.

/// The part of the file written so far.
struct PngBytes {
    std::uint8_t* bytes = nullptr;
    std::size_t size = 0;
    std::size_t room = 0;
    char error[80] = "";
};

[[noreturn]] void Leave(png_structp png, const char* why) {
    auto& file = *static_cast<PngBytes*>(png_get_error_ptr(png));
    std::snprintf(file.error, sizeof file.error, "%s", why);
    png_longjmp(png, 1);
}

void SayNothing(png_structp /*png*/, const char* /*warning*/) {}

void AppendBytes(png_structp png, png_bytep bytes, png_size_t count) {
    auto& file = *static_cast<PngBytes*>(png_get_io_ptr(png));
    if (file.room - file.size < count) {
        const std::size_t room = 2 * file.room + count + kFirstRoom;
        void* const larger = std::realloc(file.bytes, room);
        if (larger == nullptr) {
            png_error(png, "not enough memory");
        }
        file.bytes = static_cast<std::uint8_t*>(larger);
        file.room = room;
    }
    std::memcpy(file.bytes + file.size, bytes, count);
    file.size += count;
}

/// From blue, green, red, unused to red, green, blue.
void Reorder(const std::uint8_t* from, int width, std::uint8_t* row) {
    for (int x = 0; x < width; ++x) {
        row[0] = from[2];
        row[1] = from[1];
        row[2] = from[0];
        from += kBytesRead;
        row += kBytesWritten;
    }
}

bool WriteFile(png_structp png, png_infop info, const PixelRows& pixels, double dpi,
               std::uint8_t* row) {
    if (setjmp(png_jmpbuf(png)) != 0) {
        return false;
    }
    png_set_IHDR(png, info, static_cast<png_uint_32>(pixels.width),
                 static_cast<png_uint_32>(pixels.height), 8, PNG_COLOR_TYPE_RGB,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    const auto density = static_cast<png_uint_32>(std::lround(dpi * kInchesPerMetre));
    png_set_pHYs(png, info, density, density, PNG_RESOLUTION_METER);
    png_set_compression_level(png, kLevel);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, kFilter);
    png_write_info(png, info);
    for (int y = 0; y < pixels.height; ++y) {
        Reorder(pixels.first + y * pixels.stride, pixels.width, row);
        png_write_row(png, row);
    }
    png_write_end(png, info);
    return true;
}

}  // namespace

std::vector<std::uint8_t> EncodePng(const PixelRows& pixels, double dpi) {
    PngBytes written;
    std::vector<std::uint8_t> row(static_cast<std::size_t>(pixels.width) * kBytesWritten);
    png_structp png =
        png_create_write_struct(PNG_LIBPNG_VER_STRING, &written, Leave, SayNothing);
    png_infop info = png == nullptr ? nullptr : png_create_info_struct(png);
    if (info == nullptr) {
        png_destroy_write_struct(&png, nullptr);
        throw std::bad_alloc();
    }
    png_set_write_fn(png, &written, AppendBytes, nullptr);
    const bool whole = WriteFile(png, info, pixels, dpi, row.data());
    png_destroy_write_struct(&png, &info);
    const std::unique_ptr<std::uint8_t, decltype(&std::free)> file(written.bytes,
                                                                   &std::free);
    if (!whole) {
        throw std::runtime_error(written.error);
    }
    return {written.bytes, written.bytes + written.size};
}

}  // namespace host
