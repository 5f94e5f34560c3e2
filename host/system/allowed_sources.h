#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host {

/// What may be read on behalf of a file that may come from a stranger, such as a page
/// file: plain files below a few folders, and nothing from the network unless that is
/// allowed.
///
/// Links are followed, and count as what they lead to.
class AllowedSources {
public:
    /// The options with which a user allows more, for messages.
    struct Options {
        std::string folder;   ///< "--allow-outside"; empty for none
        std::string network;  ///< "--allow-remote"; likewise
        std::string all;      ///< "--allow-all"; likewise
    };

    /// Allows the files below the folder of a file, "page.json" or "maps/page.json".
    explicit AllowedSources(const std::string& file, Options options = {});

    /// The files below the folder of another file.
    void AllowFolderOf(const std::string& file);

    /// A folder with everything below it, or one file. A path to nothing allows nothing.
    void Allow(const std::string& path);
    void AllowNetwork() { m_isNetworkAllowed = true; }

    const std::vector<std::string>& Places() const { return m_places; }
    bool IsNetworkAllowed() const { return m_isNetworkAllowed; }

    /// Why a name, of a file or of anything else that GDAL opens, may not be read: "is
    /// outside /maps; --allow-outside /etc allows it". Empty when it may.
    std::string WhyNot(const std::string& name) const;

    /// The same for a path. A missing file may be looked for, and a folder listed,
    /// wherever a file may be read.
    std::string WhyNotFile(const std::string& path) const;

    /// Whether WhyNot has refused anything yet.
    bool HasRefused() const { return m_hasRefused; }

    /// What to say of a file whose format is not read.
    std::string WhyNotOfThisKind() const;

    /// Whether a name gives its driver before the first slash, `NETCDF:grid.nc:depth`,
    /// begins in one of GDAL's folders, `/vsizip/a.zip/b.tif`, or is a description.
    static bool IsNoPath(std::string_view name);

    /// Whether a name begins in one of GDAL's folders that show the contents of a file.
    static bool IsInFiles(std::string_view name);

private:
    std::string WhyNotName(const std::string& name) const;

    Options m_options;
    std::vector<std::string> m_places;  // absolute, without links
    bool m_isNetworkAllowed = false;
    mutable bool m_hasRefused = false;
};

}  // namespace host
