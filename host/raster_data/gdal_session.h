#pragma once

#include <string>

namespace host {

/// Registers GDAL's drivers and limits its block cache, once in a process; a cache size
/// set by the user (GDAL_CACHEMAX) is kept.
void StartGdal();

/// Keeps GDAL's messages in this thread off standard error while it lives, and remembers
/// the last failure. Lives on the stack; nested ones each see their own.
class QuietGdal {
public:
    QuietGdal();
    QuietGdal(const QuietGdal&) = delete;
    QuietGdal& operator=(const QuietGdal&) = delete;
    ~QuietGdal();

    /// The last failure on one line, without the file's name or quotation marks, at most
    /// about 120 characters; empty when nothing failed.
    std::string Reason(const std::string& path) const;

private:
    std::string m_failure;
};

/// UTF-8 as wide text; invalid bytes are kept as single characters.
std::wstring WideText(const std::string& utf8);

}  // namespace host
