#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace bench {

/// A figure of every row, by the name of its counter.
struct Column {
    std::string counter;
    std::string head;
    int decimals;
};

/// Benchmarks whose names begin with the table's, one row each.
struct Table {
    std::string name;
    std::string title;
    std::vector<Column> columns;
    std::string judged;  ///< the counter that every row is judged by; empty for none
    double most = 0.0;   ///< what it may come to
};

/// Prints benchmarks as rows of tables, in Markdown.
class TablePrinter : public benchmark::BenchmarkReporter {
public:
    explicit TablePrinter(std::vector<Table> tables);

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& rows) override;

    /// Whether no row failed, or came to more than it may.
    bool AllPassed() const { return m_passed; }

private:
    void PrintHead(const Table& table) const;
    void PrintRow(const Table& table, const Run& row);

    std::vector<Table> m_tables;
    std::string m_current;
    bool m_passed = true;
};

// Each registers the benchmarks of a table.
Table AddAgainstLimit();
Table AddOwnShare();
Table AddGrowth();
Table AddGrowthAlone();
Table AddTwoThreads();

}  // namespace bench
