#include "map_page/seed_rasters.h"

#include <gdal_priv.h>
#include <gdal_utils.h>
#include <gtest/gtest.h>

namespace host_tests {

SeedRasters::SeedRasters() {
    GDALAllRegister();
    m_samples = host::MakeSampleRasters(m_samplesFolder.Path());
}

void SeedRasters::Add(const std::string& from, const std::string& name,
                      const Arguments& options) {
    std::vector<char*> arguments;
    std::vector<std::string> kept = options;
    for (std::string& option : kept) {
        arguments.push_back(option.data());
    }
    arguments.push_back(nullptr);
    GDALTranslateOptions* const how = GDALTranslateOptionsNew(arguments.data(), nullptr);
    GDALDatasetH source = GDALOpen(from.c_str(), GA_ReadOnly);
    GDALDatasetH made = GDALTranslate(Path(name).c_str(), source, how, nullptr);
    EXPECT_NE(made, nullptr) << name;
    GDALClose(made);
    GDALClose(source);
    GDALTranslateOptionsFree(how);
    m_names.push_back(name);
}

void SeedRasters::AddScene(const std::string& name, const Arguments& options) {
    Add(m_samples.scene, name, "-outsize 60 45" + options);
}

void SeedRasters::AddElevation(const std::string& name, const Arguments& options) {
    Add(m_samples.elevation, name, "-outsize 60 45" + options);
}

void SeedRasters::AddClasses(const std::string& name, const Arguments& options) {
    Add(m_samples.landCover, name, "-outsize 60 45" + options);
}

}  // namespace host_tests
