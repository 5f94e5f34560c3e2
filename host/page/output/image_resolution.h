#pragma once

#include <cstdint>
#include <vector>

#include "page/output/output_format.h"

namespace host {

/// Writes a resolution into the bytes of an image file encoded by GDI+: the JFIF density
/// of a JPEG, the pixels per metre of a BMP. Any other format, and bytes that do not
/// begin as they should, are left alone. 150 dpi are 5906 pixels per metre.
void RecordResolution(std::vector<std::uint8_t>& file, OutputFormat format, double dpi);

}  // namespace host
