#pragma once

#include <functional>
#include <vector>

namespace bench {

/// The calls of Cairo's that a drawing comes to, made again bare: glyphs are shaped and
/// kept, patterns and fonts made. Nothing that draws with Cairo is faster.
class Floor {
public:
    /// Carries a drawing out, and notes them.
    explicit Floor(const std::function<void()>& draw);

    void Repeat() const {
        for (const std::function<void()>& call : m_calls) {
            call();
        }
    }

private:
    std::vector<std::function<void()>> m_calls;
};

}  // namespace bench
