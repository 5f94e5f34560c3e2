#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace host_tests {

/// The bytes of a file; none where there is no such file.
inline std::string ContentsOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace host_tests

/// An empty folder for one test, gone after it.
class ScratchFolder {
public:
    ScratchFolder() {
        std::string name = ::testing::TempDir() + "map_surround_XXXXXX";
        if (mkdtemp(name.data()) != nullptr) {
            m_path = name;
        }
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    const std::string& Path() const { return m_path; }
    std::string Path(const std::string& name) const { return m_path + "/" + name; }

    /// What lies in it, or in a folder within it, sorted.
    std::vector<std::string> Names(const std::string& within = "") const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(Path(within))) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    /// The bytes of a file in it.
    std::string Contents(const std::string& name) const {
        return host_tests::ContentsOf(Path(name));
    }

    /// Writes a file; its path.
    std::string Write(const std::string& name, const std::string& contents) const {
        std::ofstream(Path(name), std::ios::binary) << contents;
        return Path(name);
    }

private:
    std::string m_path;
};
