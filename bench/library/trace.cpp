#include "trace.h"

#include <gdiplus.h>

#include <cstring>
#include <string>
#include <tuple>
#include <type_traits>
#include <unordered_map>
#include <utility>

#include "recording/flat_calls.h"

namespace bench {
namespace {

using flat_calls::Flat;
using Gdiplus::GpStatus;

/// The native objects of a trace while it is recorded: a slot for each.
class Slots {
public:
    /// An object from before the trace, and null, are found in a slot of their own.
    std::size_t Of(const void* native) {
        const auto [place, isNew] = m_slots.try_emplace(native, m_natives.size());
        if (isNew) {
            m_natives.push_back(const_cast<void*>(native));
        }
        return place->second;
    }

    /// A slot for an object that is about to be made.
    std::size_t Next() {
        m_natives.push_back(nullptr);
        return m_natives.size() - 1;
    }

    /// GDI+ may hand out an address again: from now on it is another object's.
    void Made(const void* native, std::size_t slot) { m_slots[native] = slot; }

    Natives Take() { return std::move(m_natives); }

private:
    std::unordered_map<const void*, std::size_t> m_slots;
    Natives m_natives;
};

/// The argument that was given once, to be given again.
template <typename Argument>
struct KeptInput {
    void Returned(Argument, Slots&) {}
    bool IsSameAnswer() const { return true; }
};

/// A number or an enumeration.
template <typename Argument>
struct Kept : KeptInput<Argument> {
    Kept(Argument given, INT, Slots&) : value(given) {}
    Argument Again(Natives&) const { return value; }

    Argument value;
};

/// A native object, or an answer: what it was, and what it is when it is asked for again.
template <typename Value>
struct Kept<Value*> {
    static constexpr bool kIsNative =
        flat_calls::kKindOf<std::remove_const_t<Value>> != nullptr ||
        std::is_same_v<Value, Gdiplus::GpFontCollection>;
    using Answer = std::conditional_t<kIsNative, char, std::remove_const_t<Value>>;

    Kept(Value* given, INT, Slots& slots) : slot(kIsNative ? slots.Of(given) : 0) {}
    Value* Again(Natives& natives) {
        if constexpr (kIsNative) {
            return static_cast<Value*>(natives[slot]);
        } else {
            return &now;
        }
    }
    void Returned(Value* answer, Slots&) {
        if constexpr (!kIsNative) {
            first = *answer;
        }
    }
    bool IsSameAnswer() const { return std::memcmp(&first, &now, sizeof now) == 0; }

    std::size_t slot;
    Answer first{};
    Answer now{};
};

/// Where a call puts the native object that it makes.
template <typename Native>
struct Kept<Native**> : KeptInput<Native**> {
    Kept(Native**, INT, Slots& slots) : slot(slots.Next()) {}
    Native** Again(Natives& natives) const {
        return reinterpret_cast<Native**>(&natives[slot]);
    }
    void Returned(Native** made, Slots& slots) { slots.Made(*made, slot); }

    std::size_t slot;
};

template <>
struct Kept<const Gdiplus::FlatChar*> : KeptInput<const Gdiplus::FlatChar*> {
    Kept(const Gdiplus::FlatChar* given, INT, Slots&) : text(given) {}
    const Gdiplus::FlatChar* Again(Natives&) const { return text.c_str(); }

    std::u16string text;
};

template <>
struct Kept<const Gdiplus::GpRectF*> : KeptInput<const Gdiplus::GpRectF*> {
    Kept(const Gdiplus::GpRectF* given, INT, Slots&) : rect(*given) {}
    const Gdiplus::GpRectF* Again(Natives&) const { return &rect; }

    Gdiplus::GpRectF rect;
};

template <>
struct Kept<const Gdiplus::GpPoint*> : KeptInput<const Gdiplus::GpPoint*> {
    Kept(const Gdiplus::GpPoint* given, INT count, Slots&)
        : points(given, given + count) {}
    const Gdiplus::GpPoint* Again(Natives&) const { return points.data(); }

    std::vector<Gdiplus::GpPoint> points;
};

/// What is noted at the moment; what GDI+ calls within itself is not.
struct Notes {
    std::vector<std::unique_ptr<FlatCall>> calls;
    Slots slots;
    bool withinCall = false;
};

Notes* g_notes = nullptr;

/// The length of the array among the arguments, which is the last integer.
template <typename... Arguments>
INT Count(Arguments... arguments) {
    INT count = 0;
    const auto look = [&](auto argument) {
        if constexpr (std::is_same_v<decltype(argument), INT>) {
            count = argument;
        }
    };
    (look(arguments), ...);
    return count;
}

/// A flat function whose calls are noted.
template <auto function>
struct Noted;
template <typename... Arguments, GpStatus (*function)(Arguments...)>
struct Noted<function> {
    class Again : public FlatCall {
    public:
        explicit Again(Slots& slots, Arguments... arguments)
            : m_kept(Kept<Arguments>(arguments, Count(arguments...), slots)...) {}

        void Repeat(Natives& natives) override { Make(natives); }
        bool RepeatsAnswer(Natives& natives) override {
            const bool sameStatus = Make(natives) == m_status;
            return std::apply(
                [&](const auto&... kept) {
                    return (sameStatus && ... && kept.IsSameAnswer());
                },
                m_kept);
        }
        void Returned(Slots& slots, GpStatus status, Arguments... arguments) {
            m_status = status;
            std::apply([&](auto&... kept) { (kept.Returned(arguments, slots), ...); },
                       m_kept);
        }

    private:
        GpStatus Make(Natives& natives) {
            return std::apply(
                [&](auto&... kept) {
                    return Flat<function>::now(kept.Again(natives)...);
                },
                m_kept);
        }

        std::tuple<Kept<Arguments>...> m_kept;
        GpStatus m_status = Gdiplus::Ok;
    };

    static GpStatus Call(Arguments... arguments) {
        Notes& notes = *g_notes;
        if (notes.withinCall) {
            return Flat<function>::System(arguments...);
        }
        auto call = std::make_unique<Again>(notes.slots, arguments...);
        notes.withinCall = true;
        const GpStatus status = Flat<function>::System(arguments...);
        notes.withinCall = false;
        call->Returned(notes.slots, status, arguments...);
        notes.calls.push_back(std::move(call));
        return status;
    }
};

template <auto function>
struct Bare;
template <typename... Arguments, GpStatus (*function)(Arguments...)>
struct Bare<function> {
    static GpStatus Call(Arguments... arguments) {
        return Flat<function>::System(arguments...);
    }
};

}  // namespace

Trace::Trace(const std::function<void()>& draw) {
    Notes notes;
    g_notes = &notes;
    flat_calls::Use<Noted>();
    draw();
    flat_calls::Use<Bare>();
    g_notes = nullptr;
    m_calls = std::move(notes.calls);
    m_natives = notes.slots.Take();
}

bool Trace::RepeatsAnswers() {
    // All of them, so that what is made is deleted again.
    std::size_t same = 0;
    for (const std::unique_ptr<FlatCall>& call : m_calls) {
        same += call->RepeatsAnswer(m_natives) ? 1 : 0;
    }
    return same == m_calls.size();
}

}  // namespace bench
