#pragma once

#include <string>

namespace host {

/// Registers GDAL's drivers and bounds its block cache, once a process; a cache size that
/// the user configured (GDAL_CACHEMAX) is kept.
void StartGdal();

/// Keeps GDAL's messages of this thread off the standard error while it lives, and
/// remembers the last failure. Lives on the stack; nested ones each see their own.
class QuietGdal {
public:
    QuietGdal();
    QuietGdal(const QuietGdal&) = delete;
    QuietGdal& operator=(const QuietGdal&) = delete;
    ~QuietGdal();

    /// The last failure on one line, without the file's name or quotes around it, at
    /// most about 120 characters; empty when nothing failed.
    std::string Reason(const std::string& path) const;

private:
    std::string m_failure;
};

/// UTF-8 as wide text; bytes that are none are kept as single characters.
std::wstring WideText(const std::string& utf8);

}  // namespace host
