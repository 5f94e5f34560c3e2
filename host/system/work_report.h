#pragma once

// What a process that does a piece of work sends to the one that waits for it: its
// progress, as often as it is worth reporting, and at the end its report.

#include <string>

namespace host {

// The first byte of each message. A process that ends without a report has crashed,
// whatever its exit status: some decoders call exit.
constexpr char kDone = '+';    // followed by the result
constexpr char kFailed = '-';  // followed by the error
constexpr char kDied = '!';    // followed by how the process died
constexpr char kPart = '%';    // followed by the share done, a double

std::string PartMessage(double part);

/// Receives what such a process sends.
class ReportReader {
public:
    /// @param descriptor remains the caller's
    explicit ReportReader(int descriptor) : m_descriptor(descriptor) {}

    /// Waits for more, at most a tenth of a second.
    /// @return false at the end
    bool Next();

    /// Whether the last step is worth reporting: the work advanced, or nothing arrived.
    bool IsWorthTelling() const { return m_isWorthTelling; }

    /// How far the work has come, from 0 to 1.
    double Part() const { return m_part; }

    /// The whole report, after the end; not a report (see IsReport) when none was sent.
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
