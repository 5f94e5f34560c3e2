#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "page/document/file_paths.h"
#include "page/document/property.h"

namespace host {

/// A property's value for a page file. Throws PageError that names the place for a value
/// that could not be read back.
nlohmann::ordered_json ValueToJson(const Property& property, const PropertyValue& value,
                                   const FilePaths& paths, const std::string& place);

/// The value in a page file, checked. Throws PageError that names the place.
PropertyValue ValueFromJson(const Property& property, const nlohmann::json& value,
                            const FilePaths& paths, const std::string& place);

/// A finite number. Throws PageError that names the place.
double NumberFromJson(const nlohmann::json& value, const std::string& place);

}  // namespace host
