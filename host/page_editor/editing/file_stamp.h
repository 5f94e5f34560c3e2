#pragma once

#include <string>

namespace page_editor {

/// What a file holds, as a short text that another content does not have; empty for a
/// file that is not there or cannot be read. Times and sizes do not count: they may stay
/// the same, or change with nothing else.
std::string StampOf(const std::string& path);

}  // namespace page_editor
