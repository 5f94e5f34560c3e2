#pragma once

#include <string>

namespace host {

/// Opens /dev/null for those of standard input, output and error that are closed.
/// Otherwise the next files to be opened get their numbers, and messages are written into
/// them.
void OpenClosedStandardStreams();

/// Writes a text to standard output. Throws NamedError with the reason when that fails.
void WriteToStandardOutput(const std::string& text);

}  // namespace host
