#pragma once

#include <string>

namespace host {

/// The JSON Schema (draft 7) of page files, derived from the tables of properties. Kept
/// in docs/page.schema.json.
std::string PageSchema();

}  // namespace host
