#include "page/document/file_paths.h"

#include <filesystem>
#include <system_error>

namespace host {
namespace {

namespace fs = std::filesystem;

bool Exists(const std::string& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

}  // namespace

FilePaths::FilePaths(const std::string& pageFile, const AllowedSources* allowed)
    : m_keeps(false),
      m_folder(fs::path(pageFile).parent_path().string()),
      m_allowed(allowed) {}

std::string FilePaths::WhyNot(const std::string& path) const {
    return m_allowed == nullptr || path.empty() ? "" : m_allowed->WhyNot(path);
}

std::string FilePaths::FromFile(const std::string& path) const {
    if (m_keeps || path.empty() || AllowedSources::IsNoPath(path)) {
        return path;
    }
    return (fs::path(m_folder) / path).lexically_normal().string();
}

std::string FilePaths::ToFile(const std::string& path) const {
    if (m_keeps || path.empty() || (AllowedSources::IsNoPath(path) && !Exists(path))) {
        return path;
    }
    const fs::path given = fs::path(path);
    const fs::path folder = fs::absolute(m_folder.empty() ? "." : m_folder);
    const std::string relative = fs::absolute(given)
                                     .lexically_normal()
                                     .lexically_relative(folder.lexically_normal())
                                     .string();
    // A file name that GDAL would take for something else: a:b.tif.
    return AllowedSources::IsNoPath(relative) ? "./" + relative : relative;
}

}  // namespace host
