#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "page/output/output_format.h"
#include "page/output/print_settings.h"
#include "page/page.h"

namespace host {

/// Throws std::runtime_error if a page has too many pixels to be drawn at the resolution.
/// A0 at 400 dpi, 248 million, is possible.
void CheckPageSize(const Page& page, double dpi);

/// The bytes of the file that shows a page. Throws what drawing the page throws, and
/// std::runtime_error with the reason when it cannot be encoded.
/// @param encoding called between drawing the page and encoding it
/// @param print how formats for print are written
std::vector<std::uint8_t> EncodePage(const Page& page, OutputFormat format, double dpi,
                                     const Progress& progress = {},
                                     const std::function<void()>& encoding = {},
                                     const PrintSettings& print = {});

}  // namespace host
