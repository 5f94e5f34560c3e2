#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "page/output/page_image.h"

namespace host {

enum class ImageFormat { Png, Jpeg, Bmp, Tiff };

/// The format that a file name's ending stands for (png, jpg, jpeg, bmp, tif or tiff, in
/// any case); none for another ending.
std::optional<ImageFormat> FormatOf(const std::string& path);

/// The bytes of an image file. PNG, JPEG and BMP record the resolution.
///
/// Encoded in memory, because GDI+ reports Ok for some formats when the disk is full.
/// Throws std::runtime_error with the reason when it cannot be encoded.
std::vector<std::uint8_t> Encode(PageImage& image, ImageFormat format, double dpi);

}  // namespace host
