#include <spng.h>

#include <cmath>
#include <cstring>

#include "cairo/codecs/codecs.h"

namespace engine {
namespace {

using Context = Owned<spng_ctx, spng_ctx_free>;

void ReadResolution(spng_ctx* context, Bitmap& bitmap) {
    spng_phys phys = {};
    constexpr std::uint8_t perMetre = 1;
    if (spng_get_phys(context, &phys) == 0 && phys.unit_specifier == perMetre &&
        phys.ppu_x > 0 && phys.ppu_y > 0) {
        bitmap.xdpi = static_cast<REAL>(phys.ppu_x * kMetresPerInch);
        bitmap.ydpi = static_cast<REAL>(phys.ppu_y * kMetresPerInch);
    }
}

}  // namespace

std::unique_ptr<Bitmap> DecodePng(FileBytes file) {
    const Context context(spng_ctx_new(0));
    constexpr std::size_t mostOfAChunk = 64 << 20;
    spng_ihdr header = {};
    if (context == nullptr ||
        spng_set_chunk_limits(context.get(), mostOfAChunk, mostOfAChunk) != 0 ||
        spng_set_png_buffer(context.get(), file.data, file.size) != 0 ||
        spng_get_ihdr(context.get(), &header) != 0 ||
        !IsDecodable(header.width, header.height)) {
        return nullptr;
    }
    spng_trns transparency = {};
    const bool alpha =
        (header.color_type & 4) != 0 || spng_get_trns(context.get(), &transparency) == 0;
    auto bitmap =
        MakeBitmap(static_cast<INT>(header.width), static_cast<INT>(header.height),
                   alpha ? PixelFormat32bppARGB : PixelFormat24bppRGB);
    if (bitmap == nullptr ||
        spng_decode_image(context.get(), nullptr, 0, SPNG_FMT_RGBA8,
                          SPNG_DECODE_TRNS | SPNG_DECODE_PROGRESSIVE) != 0) {
        return nullptr;
    }
    // Interlaced rows come several times, more complete each time.
    std::vector<BYTE> bytes(std::size_t{header.width} * 4);
    for (;;) {
        spng_row_info row = {};
        const int asked = spng_get_row_info(context.get(), &row);
        if (asked == SPNG_EOI) {
            break;
        }
        auto* const colors =
            reinterpret_cast<ARGB*>(bitmap->pixels->Row(static_cast<INT>(row.row_num)));
        if (header.interlace_method != 0) {
            for (std::uint32_t x = 0; x < header.width; ++x) {
                const BYTE rgba[] = {
                    static_cast<BYTE>(colors[x] >> 16), static_cast<BYTE>(colors[x] >> 8),
                    static_cast<BYTE>(colors[x]), static_cast<BYTE>(colors[x] >> 24)};
                std::memcpy(&bytes[std::size_t{x} * 4], rgba, 4);
            }
        }
        const int status = spng_decode_row(context.get(), bytes.data(), bytes.size());
        if (asked != 0 || (status != 0 && status != SPNG_EOI)) {
            return nullptr;
        }
        for (std::uint32_t x = 0; x < header.width; ++x) {
            const BYTE* const rgba = &bytes[std::size_t{x} * 4];
            colors[x] = static_cast<ARGB>(rgba[3]) << 24 |
                        static_cast<ARGB>(rgba[0]) << 16 |
                        static_cast<ARGB>(rgba[1]) << 8 | rgba[2];
        }
        if (status == SPNG_EOI) {
            break;
        }
    }
    ReadResolution(context.get(), *bitmap);
    return bitmap;
}

bool EncodePng(const Source& source, std::vector<BYTE>& file) {
    const Context context(spng_ctx_new(SPNG_CTX_ENCODER));
    if (context == nullptr) {
        return false;
    }
    const bool alpha = source.HasAlpha();
    spng_ihdr header = {};
    header.width = static_cast<std::uint32_t>(source.Width());
    header.height = static_cast<std::uint32_t>(source.Height());
    header.bit_depth = 8;
    header.color_type =
        alpha ? SPNG_COLOR_TYPE_TRUECOLOR_ALPHA : SPNG_COLOR_TYPE_TRUECOLOR;
    spng_phys phys = {};
    phys.ppu_x = static_cast<std::uint32_t>(std::lround(source.Xdpi() / kMetresPerInch));
    phys.ppu_y = static_cast<std::uint32_t>(std::lround(source.Ydpi() / kMetresPerInch));
    phys.unit_specifier = 1;
    spng_set_option(context.get(), SPNG_IMG_COMPRESSION_LEVEL, 3);
    spng_set_option(
        context.get(), SPNG_FILTER_CHOICE,
        SPNG_FILTER_CHOICE_NONE | SPNG_FILTER_CHOICE_SUB | SPNG_FILTER_CHOICE_UP);
    const auto append = [](spng_ctx*, void* user, void* bytes, std::size_t count) {
        auto& to = *static_cast<std::vector<BYTE>*>(user);
        const auto* from = static_cast<const BYTE*>(bytes);
        to.insert(to.end(), from, from + count);
        return 0;
    };
    if (spng_set_png_stream(context.get(), append, &file) != 0 ||
        spng_set_ihdr(context.get(), &header) != 0 ||
        spng_set_phys(context.get(), &phys) != 0 ||
        spng_encode_image(context.get(), nullptr, 0, SPNG_FMT_PNG,
                          SPNG_ENCODE_PROGRESSIVE | SPNG_ENCODE_FINALIZE) != 0) {
        return false;
    }
    std::vector<BYTE> bytes(std::size_t{header.width} * (alpha ? 4 : 3));
    int status = 0;
    for (INT y = 0; y < source.Height(); ++y) {
        source.ReadBytes(y, alpha, bytes.data());
        status = spng_encode_row(context.get(), bytes.data(), bytes.size());
        if (status != 0 && status != SPNG_EOI) {
            return false;
        }
    }
    return status == SPNG_EOI;
}

}  // namespace engine
