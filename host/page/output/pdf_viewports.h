#pragma once

#include <qpdf/QPDF.hh>
#include <vector>

#include "page/output/georeference.h"

namespace host {

/// Tells viewers and GDAL where the maps of a page of a PDF file lie on Earth: a viewport
/// each, with the latitudes and longitudes of its corners and the coordinate system.
///
/// A map of unknown coordinate system, or of which a corner is nowhere on Earth, gets
/// none.
/// @param dpi pixels an inch of the maps' places
void AddViewports(QPDF& pdf, QPDFObjectHandle page,
                  const std::vector<GeoreferencedMap>& maps, double dpi);

}  // namespace host
