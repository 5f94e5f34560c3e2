#pragma once

#include <string>

namespace map_page {

/// While it lives, nothing but what is told through it reaches standard error: the
/// libraries that read and draw write there by themselves, and what is wrong is told in
/// one line of ours. (AddressSanitizer's reports are kept with its option log_path.)
class Quiet {
public:
    /// @param place begins every warning, when it is not empty
    explicit Quiet(std::string place = "");
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;
    ~Quiet();

    /// The descriptor of what was standard error.
    int Voice() const { return m_standardError; }

    void Warn(const std::string& what) const;

private:
    std::string m_place;
    int m_standardError;
};

}  // namespace map_page
