#pragma once

#include <cstdint>
#include <vector>

#include "page/output/output_format.h"

namespace host {

/// Writes a resolution into the bytes of an image file that GDI+ encoded: a JPEG gets its
/// JFIF density, a BMP its pixels per metre. Another format, and bytes that do not begin
/// as they should, stay as they are. 150 dpi are 5906 pixels a metre.
void RecordResolution(std::vector<std::uint8_t>& file, OutputFormat format, double dpi);

}  // namespace host
