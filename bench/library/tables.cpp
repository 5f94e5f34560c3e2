#include "tables.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace bench {
namespace {

constexpr int kNameWidth = 40;

int WidthOf(const Column& column) {
    return std::max(9, static_cast<int>(column.head.size()));
}

}  // namespace

TablePrinter::TablePrinter(std::vector<Table> tables) : m_tables(std::move(tables)) {}

void TablePrinter::ReportRuns(const std::vector<Run>& rows) {
    for (const Run& row : rows) {
        for (const Table& table : m_tables) {
            if (row.run_name.function_name.rfind(table.name + "/", 0) == 0) {
                PrintRow(table, row);
            }
        }
    }
}

void TablePrinter::PrintHead(const Table& table) const {
    std::printf("\n%s\n\n| %-*s |", table.title.c_str(), kNameWidth, "");
    for (const Column& column : table.columns) {
        std::printf(" %*s |", WidthOf(column), column.head.c_str());
    }
    std::printf("\n|%s|", std::string(kNameWidth + 2, '-').c_str());
    for (const Column& column : table.columns) {
        const auto dashes = static_cast<std::size_t>(WidthOf(column) + 1);
        std::printf("%s:|", std::string(dashes, '-').c_str());
    }
    std::printf("\n");
}

void TablePrinter::PrintRow(const Table& table, const Run& row) {
    if (std::exchange(m_current, table.name) != table.name) {
        PrintHead(table);
    }
    const std::string name = row.run_name.function_name.substr(table.name.size() + 1);
    std::printf("| %-*s |", kNameWidth, name.c_str());
    for (const Column& column : table.columns) {
        const auto counter = row.counters.find(column.counter);
        if (counter == row.counters.end()) {
            std::printf(" %*s |", WidthOf(column), "");
        } else {
            std::printf(" %*.*f |", WidthOf(column), column.decimals,
                        counter->second.value);
        }
    }
    const auto judged = row.counters.find(table.judged);
    if (row.error_occurred) {
        m_passed = false;
        std::printf(" %s", row.error_message.c_str());
    } else if (judged != row.counters.end() && !(judged->second.value <= table.most)) {
        m_passed = false;
        std::printf(" over %g", table.most);
    }
    std::printf("\n");
    std::fflush(stdout);
}

}  // namespace bench
