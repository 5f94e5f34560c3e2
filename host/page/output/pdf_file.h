#pragma once

#include <cstdint>
#include <vector>

namespace host {

/// Throws std::runtime_error saying that Ghostscript is not installed when there is no
/// program `gs` on the path. Call it before drawing, which may take minutes.
void CheckGhostscript();

/// A PostScript file as PDF, made by Ghostscript: images without loss, fonts embedded.
/// Throws std::runtime_error with the reason.
std::vector<std::uint8_t> PdfFromPostScript(const std::vector<std::uint8_t>& postScript);

}  // namespace host
