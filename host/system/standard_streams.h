#pragma once

#include <string>

namespace host {

/// Opens those of standard input, output and error that are closed on /dev/null. Else the
/// next files that are opened get their numbers, and messages are written into them.
void OpenClosedStandardStreams();

/// Writes a text to standard output. Throws NamedError with the reason when it is lost.
void WriteToStandardOutput(const std::string& text);

}  // namespace host
