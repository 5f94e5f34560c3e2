#pragma once

#include <gdiplus.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "flat_calls.h"

/// What a trace keeps of an argument, by the argument's kind.
namespace bench {

/// The native objects of a trace while it is noted: a slot for each.
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

/// A native object.
template <typename Native>
struct Kept<Native*> : KeptInput<Native*> {
    Kept(Native* given, INT, Slots& slots) : slot(slots.Of(given)) {}
    Native* Again(Natives& natives) const { return static_cast<Native*>(natives[slot]); }

    std::size_t slot;
};

/// Where a native object goes that is made.
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

/// Where an answer goes: what it was, and what it is when it is asked for again.
template <typename Value>
struct KeptAnswer {
    KeptAnswer(Value*, INT, Slots&) {}
    Value* Again(Natives&) { return &now; }
    void Returned(Value* answer, Slots&) { first = *answer; }
    bool IsSameAnswer() const { return std::memcmp(&first, &now, sizeof now) == 0; }

    Value first{};
    Value now{};
};

template <>
struct Kept<INT*> : KeptAnswer<INT> {
    using KeptAnswer::KeptAnswer;
};
template <>
struct Kept<Gdiplus::REAL*> : KeptAnswer<Gdiplus::REAL> {
    using KeptAnswer::KeptAnswer;
};
template <>
struct Kept<Gdiplus::GpRect*> : KeptAnswer<Gdiplus::GpRect> {
    using KeptAnswer::KeptAnswer;
};

}  // namespace bench
