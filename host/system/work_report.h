#pragma once

// What a process that does a piece of work sends to the one that waits for it: how far it
// has come, as often as that is worth telling, and at the end its report.

#include <string>

namespace host {

// The first byte of what is sent. A process that ends without a report has crashed,
// whatever status it ended with: some decoders call exit.
constexpr char kDone = '+';    // and what the work made
constexpr char kFailed = '-';  // and what the work threw
constexpr char kDied = '!';    // and what is said of a process that died on the work
constexpr char kPart = '%';    // and the part as a double; a report may follow

std::string PartMessage(double part);

/// Receives what such a process sends.
class ReportReader {
public:
    /// @param descriptor stays the caller's
    explicit ReportReader(int descriptor) : m_descriptor(descriptor) {}

    /// Waits for more, a tenth of a second at most.
    /// @return false at the end
    bool Next();

    /// Whether the last step is worth telling: it came further, or nothing came.
    bool IsWorthTelling() const { return m_isWorthTelling; }

    /// How far the work has come, from 0 to 1.
    double Part() const { return m_part; }

    /// All of it, after the end; what is no report when the process sent none.
    const std::string& Report() const { return m_sent; }
    bool IsReport() const;

private:
    bool TakeParts();

    int m_descriptor;
    std::string m_sent;
    double m_part = 0.0;
    bool m_isWorthTelling = false;
};

}  // namespace host
