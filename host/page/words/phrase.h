#pragma once

#include <initializer_list>
#include <string>

namespace host {

/// A phrase with its "{0}" and "{1}" filled in: "from {0} to {1}". What is filled in may
/// contain braces.
std::wstring Filled(const wchar_t* phrase, std::initializer_list<std::wstring> values);

/// A number with at most some decimals, without trailing zeros: -8.080 is "-8.08", and
/// what rounds to zero "0".
std::wstring RoundedText(double value, int decimals);

/// A number with some significant digits, but at least whole: with 4 of them, 12345.6 is
/// "12346", 0.0123456 "0.01235".
std::wstring DigitsText(double value, int digits);

}  // namespace host
