#include "system/file_ending.h"

#include <algorithm>

namespace host {

bool HasEnding(std::string_view path, std::string_view ending) {
    const auto lower = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    return path.size() > ending.size() &&
           std::equal(ending.rbegin(), ending.rend(), path.rbegin(),
                      [lower](char a, char b) { return a == lower(b); });
}

}  // namespace host
