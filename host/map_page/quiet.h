#pragma once

#include <string>

namespace map_page {

/// Silences standard error while it lives, but for its own warnings: the libraries that
/// read and draw write there by themselves, and a person gets one line of ours.
/// (AddressSanitizer's reports are kept with its option log_path.)
class Quiet {
public:
    /// @param place prefix of every warning; empty for none
    explicit Quiet(std::string place = "");
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;
    ~Quiet();

    /// Standard error as it was before: a descriptor.
    int Voice() const { return m_standardError; }

    void Warn(const std::string& what) const;

private:
    std::string m_place;
    int m_standardError;
};

}  // namespace map_page
