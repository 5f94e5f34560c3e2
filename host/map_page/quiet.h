#pragma once

#include <string>

namespace map_page {

/// Silences standard error while it lives, except for its own warnings: the libraries
/// that read and draw write there too, and the user gets one line of ours.
/// (AddressSanitizer's reports are kept with its option log_path.)
class Quiet {
public:
    /// @param place prefix of every warning; empty for none
    explicit Quiet(std::string place = "");
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;
    ~Quiet();

    /// The descriptor of the real standard error.
    int Voice() const { return m_standardError; }

    void Warn(const std::string& what) const;

private:
    std::string m_place;
    int m_standardError;
};

}  // namespace map_page
