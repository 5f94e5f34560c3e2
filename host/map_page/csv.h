#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace map_page {

/// A record of a table, and the line of the file that it begins on, counted from 1.
struct CsvRecord {
    std::size_t line = 0;
    std::vector<std::string> fields;
};

/// Reads comma-separated values as RFC 4180 has them: fields may stand in double quotes,
/// in which commas, line breaks and doubled quotes are text. Lines end in CR LF or LF, a
/// byte order mark and empty lines are passed over. Throws Error that names the line, as
/// in "line 3: ...", for a quote that is not closed and for text beside quotes.
std::vector<CsvRecord> ReadCsv(const std::string& text);

}  // namespace map_page
