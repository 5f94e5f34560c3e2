#pragma once

#include <cstddef>
#include <cwchar>
#include <memory>
#include <new>

#include "gdiplus/flat.h"

namespace Gdiplus::detail {

inline bool IsHighSurrogate(std::uint32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
inline bool IsLowSurrogate(std::uint32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

constexpr FlatChar kReplacement = 0xFFFD;

/// A wide string converted to the UTF-16 of the flat functions, for the duration of one
/// call.
///
/// A character past U+FFFF becomes a surrogate pair: L"\U0001F5FA" is D83D DDFA,
/// length 2. A lone surrogate or an invalid code point becomes U+FFFD. A valid surrogate
/// pair is kept. A null string stays null.
class Utf16Text {
public:
    /// @param length how many characters to take, embedded nulls included; -1 for all up
    /// to the terminating null; other negative lengths are InvalidParameter
    explicit Utf16Text(const wchar_t* text, INT length = -1) {
        if (text == nullptr) {
            length_ = length;
            return;
        }
        if (length < -1) {
            status_ = InvalidParameter;
            return;
        }
        const std::size_t count =
            length == -1 ? std::wcslen(text) : static_cast<std::size_t>(length);
        if (count > kMostCharacters) {
            status_ = OutOfMemory;
            return;
        }
        FlatChar* out = buffer_;
        const auto units = static_cast<UINT>(2 * count + 1);
        if (units > kBufferUnits) {
            heap_.reset(new (std::nothrow) FlatChar[units]);
            out = heap_.get();
        }
        if (out == nullptr) {
            status_ = OutOfMemory;
            return;
        }
        text_ = out;
        length_ = Convert(text, count, out);
    }

    /// Ok, or why there is no text to pass on.
    Status GetStatus() const { return status_; }

    const FlatChar* Text() const { return text_; }

    /// In UTF-16 units, without the terminating null.
    INT Length() const { return length_; }

private:
    static constexpr std::size_t kBufferUnits = 128;
    static constexpr std::size_t kMostCharacters = 0x3FFFFFFF;

    static INT Convert(const wchar_t* text, std::size_t count, FlatChar* out) {
        const FlatChar* const start = out;
        for (std::size_t i = 0; i < count; ++i) {
            const auto c = static_cast<std::uint32_t>(text[i]);
            if (c < 0xD800) {  // almost every character
                *out++ = static_cast<FlatChar>(c);
            } else if (IsHighSurrogate(c) && i + 1 < count &&
                       IsLowSurrogate(static_cast<std::uint32_t>(text[i + 1]))) {
                *out++ = static_cast<FlatChar>(c);
                *out++ = static_cast<FlatChar>(text[++i]);
            } else if (c > 0x10FFFF || IsHighSurrogate(c) || IsLowSurrogate(c)) {
                *out++ = kReplacement;
            } else if (c > 0xFFFF) {
                *out++ = static_cast<FlatChar>(0xD800 + ((c - 0x10000) >> 10));
                *out++ = static_cast<FlatChar>(0xDC00 + ((c - 0x10000) & 0x3FF));
            } else {
                *out++ = static_cast<FlatChar>(c);
            }
        }
        *out = 0;
        return static_cast<INT>(out - start);
    }

    FlatChar buffer_[kBufferUnits];
    std::unique_ptr<FlatChar[]> heap_;
    const FlatChar* text_ = nullptr;
    INT length_ = 0;
    Status status_ = Ok;
};

/// How many wide characters a UTF-16 string needs, including the terminating null.
inline std::size_t WideSize(const FlatChar* text) {
    std::size_t size = 1;
    for (; *text != 0; ++text, ++size) {
        if (IsHighSurrogate(text[0]) && IsLowSurrogate(text[1])) {
            ++text;
        }
    }
    return size;
}

/// Writes a UTF-16 string as at most `size` wide characters, terminating null included,
/// and returns the position after the null.
inline wchar_t* WriteWide(const FlatChar* text, wchar_t* out, std::size_t size) {
    for (; *text != 0 && size > 1; ++text, --size) {
        std::uint32_t c = *text;
        if (IsHighSurrogate(c) && IsLowSurrogate(text[1])) {
            c = 0x10000 + ((c - 0xD800) << 10) + (*++text - 0xDC00U);
        } else if (IsHighSurrogate(c) || IsLowSurrogate(c)) {
            c = kReplacement;
        }
        *out++ = static_cast<wchar_t>(c);
    }
    *out++ = 0;
    return out;
}

}  // namespace Gdiplus::detail
