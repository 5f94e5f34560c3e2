#pragma once

#include <string>

namespace page_editor {

/// A short text that identifies a file's contents; empty for a file that is missing or
/// cannot be read. Times and sizes do not count: either may change without the contents,
/// or stay the same.
std::string StampOf(const std::string& path);

}  // namespace page_editor
