#pragma once

#include <string>
#include <vector>

#include "system/allowed_sources.h"

namespace host {

/// Confines GDAL in this process, for good, to what is allowed: plain files, archives and
/// VRTs of them, through drivers that read such files and nothing else; and services,
/// where the network is allowed. It writes nothing and follows no reference elsewhere,
/// whether of a VRT, a side file or a raster's own metadata. For a process that reads the
/// rasters of one page file.
void ConfineGdal(const AllowedSources& allowed);

bool IsGdalConfined();

/// Whether a raster is a plain file in a format that ConfineGdal leaves readable, and not
/// a VRT.
bool IsPlainRaster(const std::string& raster);

/// The folders of GDAL's own tables and of PROJ's.
std::vector<std::string> GdalPlaces();

/// Why a raster may not be opened under that confinement, in a few words without its
/// name; empty when it may, or nothing is confined.
std::string WhyNotAllowed(const std::string& raster);

/// What to say of a file that none of the allowed drivers reads.
std::string WhyNotOfThisKind();

/// What GDAL was last refused since ForgetRefused, "/etc/passwd is outside /maps;
/// --allow-outside /etc allows it"; empty when nothing was. A missing file is not a
/// refusal.
std::string LastRefused();
void ForgetRefused();

}  // namespace host
