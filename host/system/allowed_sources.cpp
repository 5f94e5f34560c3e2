#include "system/allowed_sources.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace host {
namespace {

namespace fs = std::filesystem;

/// The file behind a name, as far as there is one; empty when that cannot be told.
fs::path Resolved(const std::string& path) {
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

std::string AllowedSources::WhyNot(const std::string& path) const {
    const fs::path resolved = Resolved(path);
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

std::string AllowedSources::WhyNotRemote() const {
    return m_isNetworkAllowed ? "" : "is not a plain file" + Hint(m_options.network, "");
}

}  // namespace host
