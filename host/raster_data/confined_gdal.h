#pragma once

#include <string>
#include <vector>

#include "system/allowed_sources.h"

namespace host {

/// From now on GDAL opens in this process only what is allowed: plain files, the archives
/// and VRTs of such, by drivers that read such files and nothing else; and services,
/// where the network is allowed. It writes nothing and follows no reference that leads
/// elsewhere: of a VRT, of a side file, of a raster's own metadata. For good: so it is
/// for a process that reads the rasters of one page file.
void ConfineGdal(const AllowedSources& allowed);

bool IsGdalConfined();

/// Whether a raster is a plain file of a kind that ConfineGdal leaves to read, and no
/// VRT.
bool IsPlainRaster(const std::string& raster);

/// The folders of GDAL's own tables, and of those about coordinate systems.
std::vector<std::string> GdalPlaces();

/// Why a raster may not be opened under that confinement, in a few words without its
/// name; empty when it may, and where nothing is confined.
std::string WhyNotAllowed(const std::string& raster);

/// What to say of a file that none of the allowed drivers reads.
std::string WhyNotOfThisKind();

/// What GDAL was refused last since ForgetRefused, "/etc/passwd is outside /maps;
/// --allow-outside /etc allows it"; empty when nothing was. What is not there is not
/// refused.
std::string LastRefused();
void ForgetRefused();

}  // namespace host
