#pragma once

#include <string>
#include <vector>

#include "map_page/run_map_page.h"
#include "raster_data/sample_rasters.h"
#include "scratch_folder.h"

namespace host_tests {

/// Small rasters in a folder of their own, in the formats that a test asks for.
class SeedRasters {
public:
    SeedRasters();

    /// Converts a raster, with gdal_translate's options.
    void Add(const std::string& from, const std::string& name, const Arguments& options);

    /// Of 60 x 45 pixels unless the options say otherwise: three bands, a band of
    /// heights, and a band of classes with their colours.
    void AddScene(const std::string& name, const Arguments& options);
    void AddElevation(const std::string& name, const Arguments& options);
    void AddClasses(const std::string& name, const Arguments& options);

    /// Those that were added, in that order.
    const std::vector<std::string>& Names() const { return m_names; }
    std::string Path(const std::string& name) const { return m_folder.Path(name); }

private:
    ScratchFolder m_samplesFolder;
    ScratchFolder m_folder;
    host::SampleRasters m_samples;
    std::vector<std::string> m_names;
};

}  // namespace host_tests
