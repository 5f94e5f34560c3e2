#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

/// The flat GDI+ functions as this program defines them: each stands in front of the
/// system's and hands its calls on, which costs a jump.
namespace bench {

enum class Carry {
    HandOn,  ///< each call reaches the system's GDI+

    /// Likewise, but what is about texts waits for its turn. Threads that draw at once
    /// need that: libgdiplus has one font map for all of them, and no lock around it.
    TextsInTurn,

    /// Nothing is done: objects are made of nothing, and a question is answered the same
    /// each time. What takes time then is the library.
    Drop,
};

/// Settles how flat calls are carried out while it lives.
class FlatCalls {
public:
    explicit FlatCalls(Carry carry);
    ~FlatCalls();
    FlatCalls(const FlatCalls&) = delete;
    FlatCalls& operator=(const FlatCalls&) = delete;

private:
    Carry m_before;
};

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

    std::size_t Size() const { return m_calls.size(); }

    void Repeat() {
        for (const std::unique_ptr<FlatCall>& call : m_calls) {
            call->Repeat(m_natives);
        }
    }
    bool RepeatsAnswers();

private:
    std::vector<std::unique_ptr<FlatCall>> m_calls;
    Natives m_natives;
};

}  // namespace bench
