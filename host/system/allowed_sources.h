#pragma once

#include <string>
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
    };

    /// Files below the folder of a file, "page.json" or "maps/page.json".
    explicit AllowedSources(const std::string& file, Options options = {});

    /// A folder with all below it, or one file. What is not there allows nothing.
    void Allow(const std::string& path);
    void AllowNetwork() { m_isNetworkAllowed = true; }

    const std::vector<std::string>& Places() const { return m_places; }
    bool IsNetworkAllowed() const { return m_isNetworkAllowed; }

    /// Why a file may not be read, "is outside /maps; --allow-outside /etc allows it",
    /// and empty when it may. One that is not there may be looked for where it may be;
    /// folders may be listed there.
    std::string WhyNot(const std::string& path) const;

    /// Why a name that is no file's may not be opened, and empty when it may.
    std::string WhyNotRemote() const;

private:
    Options m_options;
    std::vector<std::string> m_places;  // absolute, and no links in them
    bool m_isNetworkAllowed = false;
};

}  // namespace host
