#pragma once

#include <string>

#include "page/output/georeference.h"

namespace host {

/// The files that hold an image's coordinates where the image itself cannot.
struct WorldFiles {
    std::string world;   ///< "page.pgw"
    std::string system;  ///< "page.png.aux.xml"
};

/// Their names for an image; empty where its format has none.
WorldFiles WorldFilesOf(const std::string& picture);

/// The world file: the size of a pixel, and the centre of the first.
std::string WorldText(const Georeference& georeference);

/// The coordinate system, as GDAL keeps it beside an image; empty where it is unknown.
std::string SystemText(const Georeference& georeference);

}  // namespace host
