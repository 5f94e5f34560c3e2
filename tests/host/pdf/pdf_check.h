#pragma once

#include <string>
#include <vector>

namespace host_tests {

/// What of a PDF file is against the rules of PDF/UA-1 that a program can see: metadata,
/// language, everything drawn tagged once or marked as decoration, tags and structure
/// that point at each other, words for every figure, fonts that are embedded and can be
/// turned into text. One line each; none where all is well.
std::vector<std::string> AgainstPdfUa(const std::string& path);

/// What is against the rules of PDF/A-2u, likewise.
std::vector<std::string> AgainstPdfA(const std::string& path);

/// The structure of a file in its order: "H1: Harbour", "Figure: Scale bar: 2 km".
std::vector<std::string> ReadAloud(const std::string& path);

/// The bookmarks of a file: "3: S003", the third page.
std::vector<std::string> BookmarksOf(const std::string& path);

}  // namespace host_tests
