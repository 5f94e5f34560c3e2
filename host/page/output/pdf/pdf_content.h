#pragma once

#include <qpdf/QPDFObjectHandle.hh>
#include <string>
#include <vector>

namespace host {

/// The content of a page anew: the tags that Cairo wrote become those given, in their
/// order, numbered from 0, and what is drawn between them decoration.
/// @param tags "/H1" or "/Figure" for each that Cairo wrote; std::runtime_error is thrown
/// where it wrote another number of them
std::string TaggedContent(QPDFObjectHandle drawn, const std::vector<std::string>& tags);

}  // namespace host
