#pragma once

#include <cstdint>
#include <vector>

#include "page/output/georeference.h"
#include "page/output/output_format.h"
#include "page/output/page_image.h"

namespace host {

/// The bytes of an image file, in a format that is not for print. All record the
/// resolution, JPEG in whole dots per inch; TIFF files record their coordinates.
///
/// Encoded in memory, because GDI+ reports Ok for some formats when the disk is full.
/// Throws std::runtime_error with the reason when it cannot be encoded.
std::vector<std::uint8_t> Encode(PageImage& image, OutputFormat format, double dpi,
                                 const std::optional<Georeference>& georeference = {});

/// The bytes of a JPEG file of opaque colours. Throws likewise.
/// @param quality 0 to 100
std::vector<std::uint8_t> EncodeJpeg(const PixelRows& pixels, int quality);

}  // namespace host
