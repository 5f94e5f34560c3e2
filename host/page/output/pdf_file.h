#pragma once

#include <cstdint>
#include <vector>

namespace host {

/// Throws std::runtime_error, which says that Ghostscript is not installed, where the
/// program `gs` is not among those on the path; so that it is told before the work.
void CheckGhostscript();

/// A PostScript file as PDF, made by Ghostscript: images without loss, fonts embedded.
/// Throws std::runtime_error with the reason.
std::vector<std::uint8_t> PdfFromPostScript(const std::vector<std::uint8_t>& postScript);

}  // namespace host
