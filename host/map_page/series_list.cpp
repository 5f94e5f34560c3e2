#include "map_page/series_list.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "map_page/csv.h"
#include "map_page/error.h"
#include "map_page/template_options.h"
#include "page/document/file_paths.h"
#include "page/document/item_type.h"
#include "system/file_ending.h"
#include "system/input_file.h"
#include "system/number_text.h"

namespace map_page {
namespace {

constexpr const char* kRastersColumn = "rasters";
constexpr const char* kExtentColumn = "extent";
constexpr const char* kNameColumn = "name";
constexpr const char* kPictureColumn = "picture";
constexpr char kBetweenRasters = ';';
constexpr std::size_t kMostBytes = std::size_t{1} << 30;
constexpr std::size_t kNoColumn = static_cast<std::size_t>(-1);

/// Whether it is a property of every map, and of how its rasters are drawn.
bool IsMapColumn(const std::string& column) {
    const host::Property* const property =
        host::FindProperty(host::FindItemType(host::kMapType)->properties, column);
    return property != nullptr && property->checkText != nullptr;
}

/// A piece of an output's name: text, or the value of a column.
struct NamePiece {
    std::string text;
    std::size_t column = kNoColumn;
};

std::size_t ColumnOf(const std::vector<std::string>& columns, const std::string& name) {
    const auto found = std::find(columns.begin(), columns.end(), name);
    return found == columns.end() ? kNoColumn
                                  : static_cast<std::size_t>(found - columns.begin());
}

std::vector<NamePiece> PiecesOf(const std::string& output,
                                const std::vector<std::string>& columns) {
    std::vector<NamePiece> pieces;
    std::size_t at = 0;
    while (at < output.size()) {
        const std::size_t open = output.find('{', at);
        pieces.push_back({output.substr(at, open - at), kNoColumn});
        if (open == std::string::npos) {
            break;
        }
        const std::size_t close = output.find('}', open);
        if (close == std::string::npos) {
            throw Error(output, "has a { without }");
        }
        const std::string name = output.substr(open + 1, close - open - 1);
        const std::size_t column = ColumnOf(columns, name);
        if (column == kNoColumn) {
            throw Error(output, "the list has no column \"" + name + "\"");
        }
        pieces.push_back({"", column});
        at = close + 1;
    }
    return pieces;
}

/// A value as part of a file name.
std::string Safe(std::string value) {
    for (char& c : value) {
        if (c == '/' || static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
            c = '_';
        }
    }
    if (!value.empty() && value.front() == '.') {
        value.front() = '_';
    }
    return value;
}

std::string NameFrom(const std::vector<NamePiece>& pieces,
                     const std::vector<std::string>& columns, const CsvRecord& record) {
    std::string name;
    for (const NamePiece& piece : pieces) {
        if (piece.column == kNoColumn) {
            name += piece.text;
            continue;
        }
        const std::string& value = record.fields[piece.column];
        if (value.empty()) {
            throw Error(columns[piece.column], "is empty, and part of the output's name");
        }
        name += Safe(value);
    }
    return name;
}

std::vector<std::string> RastersIn(const std::string& text,
                                   const host::FilePaths& paths) {
    std::vector<std::string> rasters;
    std::size_t at = 0;
    while (at <= text.size()) {
        const std::size_t end = std::min(text.find(kBetweenRasters, at), text.size());
        if (end == at) {
            throw Error(kRastersColumn, "has an empty name");
        }
        rasters.push_back(paths.FromFile(text.substr(at, end - at)));
        const std::string why = paths.WhyNot(rasters.back());
        if (!why.empty()) {
            throw Error(kRastersColumn, rasters.back() + " " + why);
        }
        at = end + 1;
    }
    return rasters;
}

host::Box ExtentIn(const std::string& text) {
    std::vector<double> sides;
    std::string_view rest(text);
    while (!rest.empty()) {
        const std::string_view side = rest.substr(0, rest.find(' '));
        double value = 0.0;
        if (!host::ParseNumber(side, value)) {
            break;
        }
        sides.push_back(value);
        rest.remove_prefix(std::min(rest.size(), side.size() + 1));
    }
    if (!rest.empty() || sides.size() != 4 || !(sides[0] < sides[2]) ||
        !(sides[1] < sides[3])) {
        throw Error(kExtentColumn,
                    "must be left, bottom, right and top: four numbers "
                    "with one space between two");
    }
    return {sides[0], sides[1], sides[2], sides[3]};
}

std::string FileIn(const std::string& text, const host::FilePaths& paths) {
    std::string file = paths.FromFile(text);
    const std::string why = paths.WhyNot(file);
    if (!why.empty()) {
        throw Error(file, why);
    }
    return file;
}

/// From cells that are values of options.
host::PageChanges ChangesOfOptions(const std::vector<std::string>& options) {
    try {
        return options.empty() ? host::PageChanges() : ChangesOfCells(options);
    } catch (const UsageError& error) {
        const std::string what = error.what();
        throw Error(what.substr(0, what.rfind(": see map_page --help")));
    }
}

host::PageChanges ChangesIn(const std::vector<std::string>& columns,
                            const std::vector<std::string>& textColumns,
                            const CsvRecord& record, const host::FilePaths& paths) {
    host::PageChanges changes;
    std::vector<std::string> options;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::string& value = record.fields[i];
        if (value.empty()) {
            continue;
        }
        if (columns[i] == kRastersColumn) {
            changes.rasters = RastersIn(value, paths);
        } else if (columns[i] == kExtentColumn) {
            changes.extent = ExtentIn(value);
        } else if (IsMapColumn(columns[i])) {
            changes.mapTexts.emplace_back(columns[i], value);
        } else if (IsOptionColumn(columns[i])) {
            const bool isFile = columns[i] == kPictureColumn;
            options.push_back("--" + columns[i] + "=" +
                              (isFile ? FileIn(value, paths) : value));
        } else if (ColumnOf(textColumns, columns[i]) != kNoColumn) {
            changes.texts.emplace_back(columns[i], value);
        }
    }
    return host::Merged(ChangesOfOptions(options), changes);
}

/// Those that are neither known columns nor only there for the outputs' names.
std::vector<std::string> TextColumnsOf(const std::vector<std::string>& columns) {
    std::vector<std::string> texts;
    for (const std::string& column : columns) {
        if (column.empty()) {
            throw Error("line 1", "has a column without a name");
        }
        if (std::count(columns.begin(), columns.end(), column) > 1) {
            throw Error("line 1", "names the column \"" + column + "\" twice");
        }
        if (column != kRastersColumn && column != kExtentColumn && !IsMapColumn(column) &&
            !IsOptionColumn(column)) {
            texts.push_back(column);
        }
    }
    return texts;
}

void CheckOutputsDiffer(const std::vector<SeriesPage>& pages) {
    std::map<std::string, std::size_t> lines;
    for (const SeriesPage& page : pages) {
        const auto [known, isNew] = lines.emplace(page.output, page.line);
        if (!isNew && page.error.empty()) {
            throw Error("lines " + std::to_string(known->second) + " and " +
                            std::to_string(page.line),
                        "have one output, " + page.output);
        }
    }
}

/// The row's value in a column; empty for a missing column.
std::string ValueOf(const CsvRecord& record, const std::vector<std::string>& columns,
                    const char* name) {
    const std::size_t column = ColumnOf(columns, name);
    return column < record.fields.size() ? record.fields[column] : "";
}

SeriesPage PageOf(const CsvRecord& record, const std::vector<std::string>& columns,
                  const SeriesList& list, const std::vector<NamePiece>& pieces,
                  const host::FilePaths& paths) {
    SeriesPage page;
    page.line = record.line;
    try {
        if (record.fields.size() != columns.size()) {
            throw Error("has " + std::to_string(record.fields.size()) + " fields, not " +
                        std::to_string(columns.size()));
        }
        page.changes = ChangesIn(columns, list.textColumns, record, paths);
        page.output = NameFrom(pieces, columns, record);
        page.name = ValueOf(record, columns, kNameColumn);
    } catch (const Error& error) {
        page.error = error.what();
        page.output = "line " + std::to_string(record.line);  // unique to this row
    }
    return page;
}

SeriesList Read(const std::string& path, const std::string& output,
                const host::AllowedSources* allowed) {
    const std::vector<CsvRecord> records = ReadCsv(host::ReadFile(path, kMostBytes));
    if (records.empty()) {
        throw Error("has no first row with the names of columns");
    }
    const std::vector<std::string>& columns = records.front().fields;
    SeriesList list;
    list.textColumns = TextColumnsOf(columns);
    const std::vector<NamePiece> pieces = PiecesOf(output, columns);
    const host::FilePaths paths(path, allowed);
    for (std::size_t i = 1; i < records.size(); ++i) {
        list.pages.push_back(PageOf(records[i], columns, list, pieces, paths));
    }
    if (!IsAtlas(output)) {
        CheckOutputsDiffer(list.pages);
    } else if (ColumnOf(columns, kNameColumn) != kNoColumn) {
        list.nameColumns.emplace_back(kNameColumn);
    }
    // A column in the name may be there for that alone.
    for (const NamePiece& piece : pieces) {
        if (piece.column != kNoColumn) {
            list.nameColumns.push_back(columns[piece.column]);
        }
    }
    return list;
}

}  // namespace

bool IsAtlas(const std::string& output) {
    return host::HasEnding(output, ".pdf") && output.find('{') == std::string::npos;
}

SeriesList ReadSeries(const std::string& path, const std::string& output,
                      const host::AllowedSources* allowed) {
    try {
        return Read(path, output, allowed);
    } catch (const std::runtime_error& error) {
        throw Error(path, error.what());
    }
}

}  // namespace map_page
