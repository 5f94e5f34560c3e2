#pragma once

#include <string>
#include <utility>

#include "recording/flat_calls.h"
#include "recording/session.h"

namespace recording {

using flat_calls::Deed;
using flat_calls::GpStatus;

/// Stands in every flat function: what is allocated there is the recorder's, not the
/// library's.
class AtWork {
public:
    AtWork() { ++ThisThread().atWork; }
    ~AtWork() { --ThisThread().atWork; }
    AtWork(const AtWork&) = delete;
    AtWork& operator=(const AtWork&) = delete;
};

/// Makes a token that stands for an object.
template <typename Native>
GpStatus MakeToken(Native** native) {
    auto token = std::make_unique<char>();
    *native = reinterpret_cast<Native*>(token.get());
    ThisThread().objects[*native].token = std::move(token);
    return Gdiplus::Ok;
}

/// Notes an object that GDI+ made, or handed out again.
template <typename Native>
void NoteMade(Native* native) {
    Object& known = ThisThread().objects[native];
    Object made;
    made.kind = flat_calls::kKindOf<Native>;
    made.look = made.kind;
    made.timesMade = known.timesMade + 1;
    made.token = std::move(known.token);
    known = std::move(made);
}

/// How one flat function is recorded.
template <auto function>
class Recorder;
template <typename... Arguments, GpStatus (*function)(Arguments...)>
class Recorder<function> {
public:
    using Line = std::string (*)(Arguments...);
    using Note = void (*)(Arguments...);
    using Answer = GpStatus (*)(Arguments...);

    /// Has it recorded from now on.
    /// @param line as lines.h writes it; without one it is the function's name
    /// @param note what is known of its objects once it has succeeded
    /// @param answer how it answers where GDI+ is not asked
    static void Install(Line line = nullptr, Note note = nullptr,
                        Answer answer = &flat_calls::NeedAll<Arguments...>) {
        s_line = line;
        s_note = note;
        s_answer = answer;
        flat_calls::Flat<function>::now = &Record;
    }

private:
    static constexpr const char* kName = flat_calls::kNameOf<function>;
    static constexpr Deed kDeed = flat_calls::DeedOf(kName);

    static GpStatus Record(Arguments... arguments) {
        const AtWork atWork;
        Session& session = ThisThread();
        if (session.depth > 0) {
            return flat_calls::Flat<function>::System(arguments...);
        }
        const GpStatus failure = session.active ? session.Enter(kName) : Gdiplus::Ok;
        if (session.Writes()) {
            session.calls.push_back({s_line == nullptr ? kName : s_line(arguments...),
                                     kDeed == Deed::Draws || kDeed == Deed::Turns});
        }
        if constexpr (kDeed == Deed::Deletes) {
            // Carried out even when it is to fail.
            const GpStatus status = Delete(arguments...);
            return failure != Gdiplus::Ok ? failure : status;
        }
        if (failure != Gdiplus::Ok) {
            return failure;
        }
        const GpStatus status = CarryOut(arguments...);
        if (status == Gdiplus::Ok) {
            if constexpr (kDeed == Deed::Makes) {
                NoteMade(*flat_calls::PlaceOfMade(arguments...));
            }
            if (s_note != nullptr) {
                s_note(arguments...);
            }
        }
        return status;
    }

    static GpStatus CarryOut(Arguments... arguments) {
        if (ThisThread().Forwards()) {
            return Forward(
                [&] { return flat_calls::Flat<function>::System(arguments...); });
        }
        const GpStatus status = s_answer(arguments...);
        if constexpr (kDeed == Deed::Makes) {
            return status == Gdiplus::Ok
                       ? MakeToken(flat_calls::PlaceOfMade(arguments...))
                       : status;
        }
        return status;
    }

    /// Forgets an object that was deleted as often as it was made. A token never reaches
    /// GDI+ and a real object always does, whatever is recorded when they are deleted.
    static GpStatus Delete(Arguments... native) {
        Session& session = ThisThread();
        GpStatus status = flat_calls::NeedAll(native...);
        const bool isToken = (..., session.Of(native)).token != nullptr;
        if (!isToken && (session.Forwards() || status == Gdiplus::Ok)) {
            status =
                Forward([&] { return flat_calls::Flat<function>::System(native...); });
        }
        const auto known = session.objects.find((..., native));
        if (known != session.objects.end() && --known->second.timesMade <= 0) {
            session.objects.erase(known);
        }
        return status;
    }

    static inline Line s_line = nullptr;
    static inline Note s_note = nullptr;
    static inline Answer s_answer = nullptr;
};

}  // namespace recording
