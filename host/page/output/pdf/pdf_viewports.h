#pragma once

#include <vector>

#include "page/output/georeference.h"
#include "page/output/pdf/pdf_objects.h"

namespace host {

/// Tells viewers and GDAL where the maps of a PDF page lie on Earth: a viewport each,
/// with the latitudes and longitudes of its corners and the coordinate system.
///
/// A map whose coordinate system is unknown, or with a corner that is not on Earth, gets
/// none.
/// @param page the entries of the page, which are completed
/// @param dpi pixels per inch of the maps' places
/// @return whether there is any
bool AddViewports(PdfObjects& objects, QPDFObjectHandle page,
                  const std::vector<GeoreferencedMap>& maps, double dpi);

}  // namespace host
