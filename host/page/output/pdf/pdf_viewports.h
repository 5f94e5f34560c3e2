#pragma once

#include <vector>

#include "page/output/georeference.h"
#include "page/output/pdf/pdf_objects.h"

namespace host {

/// Tells viewers and GDAL where the maps of a page of a PDF file lie on Earth: a viewport
/// each, with the latitudes and longitudes of its corners and the coordinate system.
///
/// A map of unknown coordinate system, or of which a corner is nowhere on Earth, gets
/// none.
/// @param page the entries of the page, which are completed
/// @param dpi pixels an inch of the maps' places
/// @return whether there is any
bool AddViewports(PdfObjects& objects, QPDFObjectHandle page,
                  const std::vector<GeoreferencedMap>& maps, double dpi);

}  // namespace host
