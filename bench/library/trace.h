#pragma once

#include <functional>
#include <memory>
#include <vector>

namespace bench {

/// Addresses of the native objects that a trace is about.
using Natives = std::vector<void*>;

/// One flat call, with what it was handed by value.
class FlatCall {
public:
    virtual ~FlatCall() = default;

    /// Makes the call again.
    virtual void Repeat(Natives& natives) = 0;

    /// Makes it again, and tells whether it answers what it answered the first time.
    virtual bool RepeatsAnswer(Natives& natives) = 0;
};

/// Flat calls as they were made, to be made again bare: what they create is created
/// anew, what they found is used again.
class Trace {
public:
    /// Carries the calls of a function out, and notes them.
    explicit Trace(const std::function<void()>& draw);

    void Repeat() {
        for (const std::unique_ptr<FlatCall>& call : m_calls) {
            call->Repeat(m_natives);
        }
    }
    bool RepeatsAnswers();
    std::size_t Count() const { return m_calls.size(); }

private:
    std::vector<std::unique_ptr<FlatCall>> m_calls;
    Natives m_natives;
};

}  // namespace bench
