#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace map_page {

/// A record of a table, and the line of the file where it begins, counted from 1.
struct CsvRecord {
    std::size_t line = 0;
    std::vector<std::string> fields;
};

/// Reads comma-separated values as in RFC 4180: fields may be in double quotes, within
/// which commas, line breaks and doubled quotes are text. Lines end in CR LF or LF; a
/// byte order mark and empty lines are skipped. Throws Error that names the line, as in
/// "line 3: ...", for a quote that is not closed and for text next to quotes.
std::vector<CsvRecord> ReadCsv(const std::string& text);

}  // namespace map_page
