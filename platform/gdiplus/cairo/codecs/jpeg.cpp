// Required by libjpeg's header.
#include <csetjmp>
#include <cstddef>
#include <cstdio>

#include <jpeglib.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "cairo/codecs/codecs.h"

namespace engine {
namespace {

// libjpeg leaves by a long jump on an error. What is skipped here has no destructors.

struct Errors {
    jpeg_error_mgr manager;
    std::jmp_buf after;
};

[[noreturn]] void Leave(j_common_ptr jpeg) {
    std::longjmp(reinterpret_cast<Errors*>(jpeg->err)->after, 1);
}

jpeg_error_mgr* Watch(Errors& errors) {
    jpeg_error_mgr* const manager = jpeg_std_error(&errors.manager);
    manager->error_exit = Leave;
    manager->output_message = [](j_common_ptr) {};
    return manager;
}

/// A file of a few bytes may announce endless scans, each as long as the image.
void StopAfterManyScans(j_common_ptr jpeg) {
    constexpr int most = 200;
    if (jpeg->is_decompressor != 0 &&
        reinterpret_cast<j_decompress_ptr>(jpeg)->input_scan_number > most) {
        Leave(jpeg);
    }
}

struct Decoding {
    jpeg_decompress_struct jpeg;
    Errors errors;
    jpeg_progress_mgr progress;
};

bool BeginJpeg(Decoding& d, FileBytes file) {
    d.jpeg.err = Watch(d.errors);
    if (setjmp(d.errors.after) != 0) {
        return false;
    }
    jpeg_create_decompress(&d.jpeg);
    d.progress.progress_monitor = StopAfterManyScans;
    d.jpeg.progress = &d.progress;
    d.jpeg.mem->max_memory_to_use = 0x7FFFFFFF;
    jpeg_mem_src(&d.jpeg, file.data, static_cast<unsigned long>(file.size));
    return jpeg_read_header(&d.jpeg, TRUE) == JPEG_HEADER_OK;
}

bool ReadJpegRows(Decoding& d, const Pixels& pixels) {
    if (setjmp(d.errors.after) != 0) {
        return false;
    }
    const bool inks =
        d.jpeg.jpeg_color_space == JCS_CMYK || d.jpeg.jpeg_color_space == JCS_YCCK;
    d.jpeg.out_color_space = inks ? JCS_CMYK : JCS_EXT_BGRA;
    jpeg_start_decompress(&d.jpeg);
    while (d.jpeg.output_scanline < d.jpeg.output_height) {
        JSAMPROW row = pixels.Row(static_cast<INT>(d.jpeg.output_scanline));
        jpeg_read_scanlines(&d.jpeg, &row, 1);
        for (INT x = 0; inks && x < pixels.width; ++x) {
            // How much of each colour the inks leave, which is what Adobe's files hold.
            BYTE* const p = row + std::ptrdiff_t{x} * 4;
            const bool adobe = d.jpeg.saw_Adobe_marker != 0;
            const auto left = [&](int i) { return adobe ? p[i] : 255 - p[i]; };
            const auto part = [&](int i) {
                return static_cast<BYTE>(left(i) * left(3) / 255);
            };
            const BYTE red = part(0);
            const BYTE green = part(1);
            const BYTE blue = part(2);
            p[0] = blue;
            p[1] = green;
            p[2] = red;
            p[3] = 255;
        }
    }
    jpeg_finish_decompress(&d.jpeg);
    return true;
}

struct Encoding {
    jpeg_compress_struct jpeg;
    Errors errors;
    unsigned char* bytes;
    unsigned long size;
};

bool WriteJpegRows(Encoding& e, const Source& source, int quality, BYTE* row) {
    e.jpeg.err = Watch(e.errors);
    if (setjmp(e.errors.after) != 0) {
        return false;
    }
    jpeg_create_compress(&e.jpeg);
    jpeg_mem_dest(&e.jpeg, &e.bytes, &e.size);
    e.jpeg.image_width = static_cast<JDIMENSION>(source.Width());
    e.jpeg.image_height = static_cast<JDIMENSION>(source.Height());
    e.jpeg.input_components = 3;
    e.jpeg.in_color_space = JCS_RGB;
    jpeg_set_defaults(&e.jpeg);
    jpeg_set_quality(&e.jpeg, quality, TRUE);
    const auto density = [](REAL dpi) {
        return static_cast<UINT16>(std::clamp(std::lround(dpi), 1L, 65535L));
    };
    e.jpeg.density_unit = 1;
    e.jpeg.X_density = density(source.Xdpi());
    e.jpeg.Y_density = density(source.Ydpi());
    jpeg_start_compress(&e.jpeg, TRUE);
    for (INT y = 0; y < source.Height(); ++y) {
        source.ReadBytes(y, false, row);
        JSAMPROW rows = row;
        jpeg_write_scanlines(&e.jpeg, &rows, 1);
    }
    jpeg_finish_compress(&e.jpeg);
    return true;
}

}  // namespace

std::unique_ptr<Bitmap> DecodeJpeg(FileBytes file) {
    Decoding decoding = {};
    std::unique_ptr<Bitmap> bitmap;
    if (BeginJpeg(decoding, file) &&
        IsDecodable(decoding.jpeg.image_width, decoding.jpeg.image_height)) {
        bitmap =
            MakeBitmap(static_cast<INT>(decoding.jpeg.image_width),
                       static_cast<INT>(decoding.jpeg.image_height), PixelFormat24bppRGB);
        if (bitmap != nullptr && !ReadJpegRows(decoding, *bitmap->pixels)) {
            bitmap.reset();
        }
    }
    if (bitmap != nullptr && decoding.jpeg.density_unit != 0 &&
        decoding.jpeg.X_density > 0 && decoding.jpeg.Y_density > 0) {
        const REAL unit = decoding.jpeg.density_unit == 2 ? 2.54f : 1.0f;
        bitmap->xdpi = static_cast<REAL>(decoding.jpeg.X_density) * unit;
        bitmap->ydpi = static_cast<REAL>(decoding.jpeg.Y_density) * unit;
    }
    jpeg_destroy_decompress(&decoding.jpeg);
    return bitmap;
}

bool EncodeJpeg(const Source& source, int quality, std::vector<BYTE>& file) {
    std::vector<BYTE> row(static_cast<std::size_t>(source.Width()) * 3);
    Encoding encoding = {};
    const bool written = WriteJpegRows(encoding, source, quality, row.data());
    jpeg_destroy_compress(&encoding.jpeg);
    const Owned<unsigned char, std::free> owned(encoding.bytes);
    if (written) {
        file.insert(file.end(), encoding.bytes, encoding.bytes + encoding.size);
    }
    return written;
}

}  // namespace engine
