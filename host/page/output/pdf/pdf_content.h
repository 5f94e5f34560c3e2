#pragma once

#include <qpdf/QPDFObjectHandle.hh>
#include <string>
#include <vector>

namespace host {

/// Rewrites a page's content: the tags that Cairo wrote become the given ones, in order,
/// numbered from 0, and what is drawn between them becomes decoration.
/// @param tags "/H1" or "/Figure" for each of Cairo's tags; std::runtime_error is thrown
/// if their numbers differ
std::string TaggedContent(QPDFObjectHandle drawn, const std::vector<std::string>& tags);

}  // namespace host
