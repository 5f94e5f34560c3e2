#include "flat_calls.h"

#include <gdiplus.h>

#include <mutex>
#include <tuple>
#include <type_traits>

#include "flat_functions.h"
#include "flat_lookup/flat_lookup.h"
#include "kept_arguments.h"

using Gdiplus::GpStatus;

namespace bench {
namespace {

/// What is noted at the moment, and whether GDI+ is at work on it: what it calls within
/// itself is not noted.
struct Notes {
    std::vector<std::unique_ptr<FlatCall>> calls;
    Slots slots;
    bool withinCall = false;
};

Notes* g_notes = nullptr;

/// GDI+ may write a text to measure another.
std::recursive_mutex g_textTurn;

/// A question's answer, and a native object, where nothing is asked of GDI+.
template <typename Argument>
void Answer(Argument) {}
template <typename Native>
void Answer(Native** made) {
    static char token = 0;
    *made = reinterpret_cast<Native*>(&token);
}
void Answer(INT* style) { *style = Gdiplus::FontStyleRegular; }
void Answer(Gdiplus::REAL* emSize) { *emSize = 15.0f; }
void Answer(Gdiplus::GpRect* bounds) { *bounds = Gdiplus::GpRect(1, 3, 48, 13); }

/// How many values the array among the arguments has: the last whole number says it.
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

template <auto flat>
struct FlatFunction;

/// One flat function of this program, and what it does with a call at the moment.
template <typename... Arguments, GpStatus (*flat)(Arguments...)>
struct FlatFunction<flat> {
    static inline GpStatus (*system)(Arguments...) = nullptr;
    static inline GpStatus (*now)(Arguments...) = nullptr;

    class Call : public FlatCall {
    public:
        explicit Call(Slots& slots, Arguments... arguments)
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
            return std::apply([&](auto&... kept) { return now(kept.Again(natives)...); },
                              m_kept);
        }

        std::tuple<Kept<Arguments>...> m_kept;
        GpStatus m_status = Gdiplus::Ok;
    };

    static GpStatus Note(Arguments... arguments) {
        Notes& notes = *g_notes;
        if (notes.withinCall) {
            return system(arguments...);
        }
        auto call = std::make_unique<Call>(notes.slots, arguments...);
        notes.withinCall = true;
        const GpStatus status = system(arguments...);
        notes.withinCall = false;
        call->Returned(notes.slots, status, arguments...);
        notes.calls.push_back(std::move(call));
        return status;
    }

    static GpStatus Drop(Arguments... arguments) {
        (Answer(arguments), ...);
        return Gdiplus::Ok;
    }

    static GpStatus TakeTurn(Arguments... arguments) {
        const std::lock_guard lock(g_textTurn);
        return system(arguments...);
    }

    static void Find(const char* name) {
        system = reinterpret_cast<decltype(system)>(map_surround::FlatFunction(name));
        now = system;
    }
};

template <typename Function>
struct ParametersOf;
template <typename... Parameters>
struct ParametersOf<GpStatus(Parameters...)> {
    template <std::size_t index>
    using At = std::tuple_element_t<index, std::tuple<Parameters...>>;
};

#define CHANGE(count, name) change(FlatFunction<Gdiplus::DllExports::name>(), #name);
template <typename Change>
void ForEach(Change change) {
    FLAT_FUNCTIONS(CHANGE)
}
template <typename Change>
void ForEachOfTexts(Change change){FLAT_TEXT_FUNCTIONS(CHANGE)}
#undef CHANGE

Carry g_carry = Carry::HandOn;

void Use(Carry carry) {
    g_carry = carry;
    if (carry == Carry::Drop) {
        ForEach([](auto flat, auto) { flat.now = flat.Drop; });
        return;
    }
    ForEach([](auto flat, auto) { flat.now = flat.system; });
    if (carry == Carry::TextsInTurn) {
        ForEachOfTexts([](auto flat, auto) { flat.now = flat.TakeTurn; });
    }
}

// Before anything in this program can call a flat function.
[[maybe_unused]] const bool g_found = [] {
    ForEach([](auto flat, const char* name) { flat.Find(name); });
    return true;
}();

}  // namespace

FlatCalls::FlatCalls(Carry carry) : m_before(g_carry) { Use(carry); }
FlatCalls::~FlatCalls() { Use(m_before); }

Trace::Trace(const std::function<void()>& draw) {
    Notes notes;
    g_notes = &notes;
    ForEach([](auto flat, auto) { flat.now = flat.Note; });
    draw();
    Use(g_carry);
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

// Each function hands on to what its FlatFunction holds.
#define PARAMETER(name, i) bench::ParametersOf<decltype(name)>::At<i> a##i
#define PARAMETERS_1(name) PARAMETER(name, 0)
#define PARAMETERS_2(name) PARAMETERS_1(name), PARAMETER(name, 1)
#define PARAMETERS_3(name) PARAMETERS_2(name), PARAMETER(name, 2)
#define PARAMETERS_4(name) PARAMETERS_3(name), PARAMETER(name, 3)
#define PARAMETERS_5(name) PARAMETERS_4(name), PARAMETER(name, 4)
#define PARAMETERS_6(name) PARAMETERS_5(name), PARAMETER(name, 5)
#define PARAMETERS_7(name) PARAMETERS_6(name), PARAMETER(name, 6)
#define PARAMETERS_8(name) PARAMETERS_7(name), PARAMETER(name, 7)
#define ARGUMENTS_1 a0
#define ARGUMENTS_2 ARGUMENTS_1, a1
#define ARGUMENTS_3 ARGUMENTS_2, a2
#define ARGUMENTS_4 ARGUMENTS_3, a3
#define ARGUMENTS_5 ARGUMENTS_4, a4
#define ARGUMENTS_6 ARGUMENTS_5, a5
#define ARGUMENTS_7 ARGUMENTS_6, a6
#define ARGUMENTS_8 ARGUMENTS_7, a7
#define DEFINE(count, name)                                       \
    GpStatus name(PARAMETERS_##count(name)) {                     \
        return bench::FlatFunction<name>::now(ARGUMENTS_##count); \
    }

namespace Gdiplus::DllExports {
extern "C" {
FLAT_FUNCTIONS(DEFINE)
}  // extern "C"
}  // namespace Gdiplus::DllExports
