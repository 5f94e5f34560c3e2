#include "map_page/seed_rasters.h"

#include <gdal_priv.h>
#include <gdal_utils.h>
#include <gtest/gtest.h>

namespace host_tests {
namespace {

std::vector<std::string> Small(const std::vector<std::string>& options) {
    std::vector<std::string> all = {"-outsize", "60", "45"};
    all.insert(all.end(), options.begin(), options.end());
    return all;
}

}  // namespace

SeedRasters::SeedRasters() {
    GDALAllRegister();
    m_samples = host::MakeSampleRasters(m_samplesFolder.Path());
}

void SeedRasters::Add(const std::string& from, const std::string& name,
                      const std::vector<std::string>& options) {
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

void SeedRasters::AddScene(const std::string& name,
                           const std::vector<std::string>& options) {
    Add(m_samples.scene, name, Small(options));
}

void SeedRasters::AddElevation(const std::string& name,
                               const std::vector<std::string>& options) {
    Add(m_samples.elevation, name, Small(options));
}

void SeedRasters::AddClasses(const std::string& name,
                             const std::vector<std::string>& options) {
    Add(m_samples.landCover, name, Small(options));
}

}  // namespace host_tests
