#pragma once

#include "raster_data/gdal_raster.h"

namespace host {

/// Some of the columns or rows of a picture; may begin and end outside it.
struct PixelSpan {
    int first;
    int size;  ///< at least 1
};

/// The columns, of `size`, between two fractions of a picture: those between 0.25 and 0.5
/// of ten are 3 and 4.
PixelSpan PixelsBetween(double from, double to, int size);

/// Whether every pixel is fully transparent.
bool IsBlank(const PixelImage& image);

/// Swaps left and right.
void MirrorRows(PixelImage& image);

/// Swaps top and bottom.
void TurnUpsideDown(PixelImage& image);

/// Lays a picture over another at a column and row; what stands out is cut off. Colours
/// are not premultiplied by alpha.
void LayOver(const PixelImage& above, int left, int top, PixelImage& below);

}  // namespace host
