#include "page/output/png_image.h"

#include <spng.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <stdexcept>

#include "page/units.h"

namespace host {
namespace {

constexpr std::size_t kBytesRead = 4;
constexpr std::size_t kBytesWritten = 3;

// Of zlib's levels and PNG's filters the pair that writes a page fastest while the file
// stays within a tenth of what higher levels reach: paper is the same from row to row.
constexpr int kLevel = 1;
constexpr int kFilter = SPNG_FILTER_CHOICE_UP;

void Check(int error) {
    if (error != 0) {
        throw std::runtime_error(spng_strerror(error));
    }
}

/// Blue, green, red, unused to red, green, blue.
void Reorder(const std::uint8_t* from, std::vector<std::uint8_t>& row) {
    for (std::size_t i = 0; i < row.size() / kBytesWritten; ++i) {
        row[kBytesWritten * i] = from[kBytesRead * i + 2];
        row[kBytesWritten * i + 1] = from[kBytesRead * i + 1];
        row[kBytesWritten * i + 2] = from[kBytesRead * i];
    }
}

void DescribeImage(spng_ctx* png, const PixelRows& pixels, double dpi) {
    spng_ihdr header = {};
    header.width = static_cast<std::uint32_t>(pixels.width);
    header.height = static_cast<std::uint32_t>(pixels.height);
    header.bit_depth = 8;
    header.color_type = SPNG_COLOR_TYPE_TRUECOLOR;
    Check(spng_set_ihdr(png, &header));

    constexpr std::uint8_t kMetre = 1;
    const auto density = static_cast<std::uint32_t>(std::lround(dpi * kInchesPerMetre));
    spng_phys resolution = {density, density, kMetre};
    Check(spng_set_phys(png, &resolution));
}

void EncodeRows(spng_ctx* png, const PixelRows& pixels) {
    Check(spng_encode_image(png, nullptr, 0, SPNG_FMT_PNG,
                            SPNG_ENCODE_PROGRESSIVE | SPNG_ENCODE_FINALIZE));
    std::vector<std::uint8_t> row(static_cast<std::size_t>(pixels.width) * kBytesWritten);
    int state = 0;
    for (int y = 0; y < pixels.height && state == 0; ++y) {
        Reorder(pixels.first + y * pixels.stride, row);
        state = spng_encode_row(png, row.data(), row.size());
    }
    Check(state == SPNG_EOI ? 0 : state);
}

}  // namespace

std::vector<std::uint8_t> EncodePng(const PixelRows& pixels, double dpi) {
    const std::unique_ptr<spng_ctx, decltype(&spng_ctx_free)> png(
        spng_ctx_new(SPNG_CTX_ENCODER), &spng_ctx_free);
    if (png == nullptr) {
        throw std::bad_alloc();
    }
    Check(spng_set_option(png.get(), SPNG_ENCODE_TO_BUFFER, 1));
    Check(spng_set_option(png.get(), SPNG_IMG_COMPRESSION_LEVEL, kLevel));
    Check(spng_set_option(png.get(), SPNG_FILTER_CHOICE, kFilter));
    DescribeImage(png.get(), pixels, dpi);
    EncodeRows(png.get(), pixels);

    std::size_t size = 0;
    int error = 0;
    const std::unique_ptr<void, decltype(&std::free)> file(
        spng_get_png_buffer(png.get(), &size, &error), &std::free);
    Check(error);
    const auto* bytes = static_cast<const std::uint8_t*>(file.get());
    return {bytes, bytes + size};
}

}  // namespace host
