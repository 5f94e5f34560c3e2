#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

namespace fuzz {

/// A fuzzer's bytes as the values that a host might give: numbers of which many are
/// extremes or none at all, texts that may hold what is no character. When the bytes are
/// used up everything is 0, false or empty.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : m_bytes(data, size) {}

    bool IsEmpty() { return m_bytes.remaining_bytes() == 0; }

    /// 0 to count - 1
    int Choice(int count) { return m_bytes.ConsumeIntegral<std::uint8_t>() % count; }
    bool Flag() { return (m_bytes.ConsumeIntegral<std::uint8_t>() & 1) != 0; }

    std::int32_t Whole() {
        static constexpr std::int32_t kTelling[] = {
            std::numeric_limits<std::int32_t>::min(),
            std::numeric_limits<std::int32_t>::max(),
            std::numeric_limits<std::int32_t>::min() + 1,
            std::numeric_limits<std::int32_t>::max() - 1,
            -1,
            1000,
            65536,
            1 << 30};
        const int kind = Choice(256);
        if (kind < 200) {
            return kind;
        }
        return kind < 232 ? kTelling[kind % 8] : Bits<std::int32_t>();
    }

    template <typename Float>
    Float Real() {
        using Limits = std::numeric_limits<Float>;
        static constexpr Float kTelling[] = {Limits::quiet_NaN(),
                                             Limits::infinity(),
                                             -Limits::infinity(),
                                             Limits::max(),
                                             Limits::lowest(),
                                             Limits::denorm_min(),
                                             Limits::epsilon(),
                                             static_cast<Float>(-0.0),
                                             static_cast<Float>(1e-8),
                                             static_cast<Float>(-1.5),
                                             static_cast<Float>(1e5),
                                             static_cast<Float>(1e9),
                                             static_cast<Float>(2147483647.0),
                                             static_cast<Float>(-2147483648.0),
                                             static_cast<Float>(4294967296.0),
                                             static_cast<Float>(9.3e18)};
        const int kind = Choice(256);
        if (kind < 160) {
            return static_cast<Float>(kind) / 8;
        }
        return kind < 224 ? kTelling[kind % 16] : Bits<Float>();
    }

    std::wstring Text() {
        static constexpr std::uint32_t kFirstOf[] = {L'a',   0x5317,   0x1F5FA, 0xD800,
                                                     0xDC00, 0x10FFFF, 0};
        std::wstring text;
        const int length = Choice(32);
        for (int i = 0; i < length; ++i) {
            const auto kind = static_cast<std::uint32_t>(Choice(256));
            text += kind < 248 ? static_cast<wchar_t>(kFirstOf[kind % 7] + kind / 7)
                               : Bits<wchar_t>();
        }
        // Too long for any buffer that is meant for short texts.
        return length == 31 ? text + text + text + text + text : text;
    }

private:
    template <typename Value>
    Value Bits() {
        Value value{};
        unsigned char bytes[sizeof value];
        for (unsigned char& byte : bytes) {
            byte = m_bytes.ConsumeIntegral<unsigned char>();
        }
        std::memcpy(&value, bytes, sizeof value);
        return value;
    }

    FuzzedDataProvider m_bytes;
};

}  // namespace fuzz
