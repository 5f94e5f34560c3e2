#include "system/allowed_sources.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

namespace host {
namespace {

namespace fs = std::filesystem;

// The files that these open in turn are checked as well.
constexpr std::string_view kFilesInFiles[] = {"/vsizip/", "/vsitar/", "/vsigzip/",
                                              "/vsisubfile/", "/vsimem/"};

bool Begins(std::string_view text, std::string_view with) {
    return text.substr(0, with.size()) == with;
}

/// The file behind a name, as far as it exists; empty when that cannot be told.
fs::path ResolvedPath(const std::string& path) {
    std::error_code error;
    fs::path resolved = fs::weakly_canonical(fs::absolute(path, error), error);
    return error ? fs::path() : resolved;
}

bool IsBelow(const fs::path& path, const fs::path& place) {
    return std::mismatch(place.begin(), place.end(), path.begin(), path.end()).first ==
           place.end();
}

std::string Hint(const std::string& option, const std::string& value) {
    return option.empty() ? "" : "; " + option + value + " allows it";
}

}  // namespace

AllowedSources::AllowedSources(const std::string& file, Options options)
    : m_options(std::move(options)) {
    AllowFolderOf(file);
}

void AllowedSources::AllowFolderOf(const std::string& file) {
    const fs::path folder = fs::path(file).parent_path();
    Allow(folder.empty() ? "." : folder.string());
}

void AllowedSources::Allow(const std::string& path) {
    std::error_code error;
    const fs::path place = fs::canonical(path, error);
    if (!error) {
        m_places.push_back(place.string());
    }
}

bool AllowedSources::IsNoPath(std::string_view name) {
    return Begins(name, "/vsi") || name.find(':') < name.find('/') ||
           name.find_first_of("<{") < name.find('/');
}

bool AllowedSources::IsInFiles(std::string_view name) {
    return std::any_of(std::begin(kFilesInFiles), std::end(kFilesInFiles),
                       [&name](std::string_view folder) { return Begins(name, folder); });
}

std::string AllowedSources::WhyNot(const std::string& name) const {
    std::string why = WhyNotName(name);
    m_hasRefused = m_hasRefused || !why.empty();
    return why;
}

std::string AllowedSources::WhyNotName(const std::string& name) const {
    std::error_code ignored;
    if (IsInFiles(name)) {
        return {};  // the file is checked when it is opened
    }
    // GDAL looks for a description anywhere in a name.
    const bool isNoFile = IsNoPath(name) || name.find('<') != std::string::npos;
    if (isNoFile && !fs::exists(name, ignored)) {
        return m_isNetworkAllowed ? ""
                                  : "is not a plain file" + Hint(m_options.network, "");
    }
    return WhyNotFile(name);
}

std::string AllowedSources::WhyNotFile(const std::string& path) const {
    const fs::path resolved = ResolvedPath(path);
    if (resolved.empty()) {
        return "cannot be found";
    }
    if (std::none_of(
            m_places.begin(), m_places.end(),
            [&resolved](const std::string& place) { return IsBelow(resolved, place); })) {
        return "is outside " + (m_places.empty() ? "every folder" : m_places.front()) +
               Hint(m_options.folder, " " + resolved.parent_path().string());
    }
    std::error_code error;
    const fs::file_status status = fs::status(resolved, error);
    const bool isPlain =
        !fs::exists(status) || fs::is_regular_file(status) || fs::is_directory(status);
    return isPlain ? "" : "is not a plain file";
}

std::string AllowedSources::WhyNotOfThisKind() const {
    return "is not a raster in a format that page files may name" +
           Hint(m_options.all, "");
}

}  // namespace host
