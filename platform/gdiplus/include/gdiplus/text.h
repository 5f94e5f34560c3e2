#pragma once

#include <cstddef>
#include <cwchar>
#include <memory>
#include <new>

#include "gdiplus/flat.h"

namespace Gdiplus {
namespace detail {

/// A wide text as the UTF-16 that the flat functions take, for the time of one call.
///
/// A character past U+FFFF becomes a surrogate pair: L"\U0001F5FA" is D83D DDFA,
/// length 2. A lone surrogate, and a value that is no code point, becomes U+FFFD. Two
/// surrogates that make a pair stay the pair they are. A null text stays null.
class Utf16Text {
public:
    /// @param length how many characters to take, embedded nulls included; -1 for all up
    /// to the terminating null, which is the only negative length that is taken
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
        if (2 * count + 1 > kBufferUnits) {
            heap_.reset(new (std::nothrow) FlatChar[2 * count + 1]);
            out = heap_.get();
        }
        if (out == nullptr) {
            status_ = OutOfMemory;
            return;
        }
        text_ = out;
        length_ = Convert(text, count, out);
    }

    /// Ok, or why there is no text to hand on.
    Status GetStatus() const { return status_; }

    const FlatChar* Text() const { return text_; }

    /// In UTF-16 units, without the terminating null.
    INT Length() const { return length_; }

private:
    static constexpr std::size_t kBufferUnits = 128;
    static constexpr std::size_t kMostCharacters = 0x3FFFFFFF;

    static bool IsHighSurrogate(std::uint32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
    static bool IsLowSurrogate(std::uint32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

    static INT Convert(const wchar_t* text, std::size_t count, FlatChar* out) {
        const FlatChar* const start = out;
        for (std::size_t i = 0; i < count; ++i) {
            const auto c = static_cast<std::uint32_t>(text[i]);
            if (IsHighSurrogate(c) && i + 1 < count &&
                IsLowSurrogate(static_cast<std::uint32_t>(text[i + 1]))) {
                *out++ = static_cast<FlatChar>(c);
                *out++ = static_cast<FlatChar>(text[++i]);
            } else if (c > 0x10FFFF || IsHighSurrogate(c) || IsLowSurrogate(c)) {
                *out++ = 0xFFFD;
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

}  // namespace detail
}  // namespace Gdiplus
