#pragma once

namespace map_page {

/// While it lives, nothing reaches standard error: the decoders behind GDI+ write there
/// by themselves, and what is wrong is told in one line of ours.
class Quiet {
public:
    Quiet();
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;
    ~Quiet();

private:
    int m_standardError;
};

}  // namespace map_page
