#pragma once

#include <string>

namespace host {

/// What a page can be drawn into: images, and files for printers and their programs, in
/// which texts and shapes are no pixels.
enum class OutputFormat { Png, Jpeg, Bmp, Tiff, PostScript, Pdf, Svg };

/// The format that a file name's ending stands for, in any case: "a/Page.TIFF". Throws
/// std::runtime_error that lists the endings for any other.
OutputFormat OutputFormatOf(const std::string& path);

/// Whether it is for print and not an image.
bool IsForPrint(OutputFormat format);

}  // namespace host
