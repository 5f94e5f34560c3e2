#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host {

/// What is read on behalf of a file that may be a stranger's, such as a page file: plain
/// files below a few folders, and nothing from the network unless that is allowed.
///
/// Links are followed, and count as what they lead to.
class AllowedSources {
public:
    /// How the person at the program allows more, for messages.
    struct Options {
        std::string folder;   ///< "--allow-outside"; empty where there is none
        std::string network;  ///< "--allow-remote"; likewise
        std::string all;      ///< "--allow-all"; likewise
    };

    /// Files below the folder of a file, "page.json" or "maps/page.json".
    explicit AllowedSources(const std::string& file, Options options = {});

    /// Files below the folder of another file.
    void AllowFolderOf(const std::string& file);

    /// A folder with all below it, or one file. What is not there allows nothing.
    void Allow(const std::string& path);
    void AllowNetwork() { m_isNetworkAllowed = true; }

    const std::vector<std::string>& Places() const { return m_places; }
    bool IsNetworkAllowed() const { return m_isNetworkAllowed; }

    /// Why what a name stands for may not be read, "is outside /maps; --allow-outside
    /// /etc allows it", and empty when it may: a file, or another name that GDAL knows.
    std::string WhyNot(const std::string& name) const;

    /// The same of a path. One that is not there may be looked for where it may be;
    /// folders may be listed there.
    std::string WhyNotFile(const std::string& path) const;

    /// Whether WhyNot has refused anything yet.
    bool HasRefused() const { return m_hasRefused; }

    /// What to say of a file of a kind that is not read.
    std::string WhyNotOfThisKind() const;

    /// Whether a name tells its driver before the first slash, `NETCDF:grid.nc:depth`,
    /// begins in one of GDAL's folders, `/vsizip/a.zip/b.tif`, or is a description.
    static bool IsNoPath(std::string_view name);

    /// Whether a name begins in one of GDAL's folders that show what is in a file.
    static bool IsInFiles(std::string_view name);

private:
    std::string WhyNotName(const std::string& name) const;

    Options m_options;
    std::vector<std::string> m_places;  // absolute, and no links in them
    bool m_isNetworkAllowed = false;
    mutable bool m_hasRefused = false;
};

}  // namespace host
