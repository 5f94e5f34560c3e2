#pragma once

#include <string>

namespace map_page {

/// The text of --help before the options, and after them.
std::string HelpDescription();
std::string HelpFooter();

}  // namespace map_page
