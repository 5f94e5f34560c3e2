#include "faults/disturbance.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace faults {
namespace {

using recording::Call;
using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

/// What becomes of an object when a function fails.
struct Effect {
    const char* function;
    const char* object;
    enum { Missing, Unchanged } then;
    const char* spared = "";  ///< what is not called without it
};

const Effect kEffects[] = {
    {"GdipCreatePen1", "pen", Effect::Missing, "GdipSetPenCustomEndCap"},
    {"GdipCreateSolidFill", "brush", Effect::Missing},
    {"GdipCreateFontFamilyFromName", "font", Effect::Missing, "GdipAddPathString"},
    {"GdipCreateFont", "font", Effect::Missing, "GdipAddPathString"},
    {"GdipGetFontSize", "", Effect::Unchanged, "GdipAddPathString"},
    {"GdipGetFontStyle", "", Effect::Unchanged, "GdipAddPathString"},
    {"GdipCreatePath", "path", Effect::Missing},
    {"GdipLoadImageFromFile", "image", Effect::Missing},
    {"GdipCreateAdjustableArrowCap", "pen", Effect::Unchanged},
    {"GdipSetPenCustomEndCap", "pen", Effect::Unchanged},
    {"GdipSetPenColor", "pen", Effect::Unchanged},
    {"GdipSetPenDashStyle", "pen", Effect::Unchanged},
    {"GdipSetSolidFillColor", "brush", Effect::Unchanged},
    {"GdipAddPathLine2I", "path", Effect::Unchanged},
};

using Effects = std::vector<Effect>;

Effects EffectsOf(const Trace& undisturbed, const Fault& fault) {
    std::set<std::string> failing;
    for (std::size_t i = 0; i < undisturbed.size(); ++i) {
        if (Fails(fault, undisturbed, i)) {
            failing.insert(NameOf(undisturbed[i]));
        }
    }
    Effects effects;
    for (const Effect& effect : kEffects) {
        if (failing.count(effect.function) > 0) {
            effects.push_back(effect);
        }
    }
    return effects;
}

/// A line's words; what stands in brackets or quotes is of one word.
std::vector<std::string> Words(const std::string& line) {
    std::vector<std::string> words(1);
    int depth = 0;
    bool quoted = false;
    for (const char c : line) {
        quoted = quoted != (c == '"');
        depth += quoted ? 0 : (c == '[' || c == '(') - (c == ']' || c == ')');
        if (c == ' ' && depth == 0 && !quoted) {
            words.emplace_back();
        } else {
            words.back() += c;
        }
    }
    return words;
}

/// Whether a visible call uses an object that is not there. A text needs no format.
bool UsesNull(const Call& call) {
    if (call.line.find("null") == std::string::npos) {
        return false;
    }
    std::vector<std::string> words = Words(call.line);
    if (words.front() == "GdipDrawString") {
        words.pop_back();
    }
    return std::count(words.begin(), words.end(), "null") > 0;
}

bool IsA(const std::string& word, const std::string& object) {
    return !object.empty() && word.rfind(object + "[", 0) == 0;
}

/// @param all every call of the function failed, and none of its objects is there
bool Explained(const Effects& effects, bool all, const std::string& before,
               const std::string& after) {
    bool mayBeMissing = false;
    bool mayBeUnchanged = false;
    for (const Effect& effect : effects) {
        if (IsA(before, effect.object)) {
            mayBeMissing = mayBeMissing || effect.then == Effect::Missing;
            mayBeUnchanged = mayBeUnchanged || (effect.then == Effect::Unchanged &&
                                                IsA(after, effect.object));
        }
    }
    if (all && mayBeMissing) {
        return after == "null";
    }
    return after == before || mayBeUnchanged || (mayBeMissing && after == "null");
}

bool Explained(const Effects& effects, bool all, const Call& before, const Call& after) {
    const std::vector<std::string> old = Words(before.line);
    const std::vector<std::string> now = Words(after.line);
    return std::equal(old.begin(), old.end(), now.begin(), now.end(),
                      [&](const std::string& a, const std::string& b) {
                          return Explained(effects, all, a, b);
                      });
}

/// Whether the fault may have made one call of the other.
bool Allowed(const Effects& effects, const Fault& fault, std::size_t index,
             const Call& before, const Call& after) {
    const bool same = before.line == after.line;
    if (index + 1 < static_cast<std::size_t>(fault.call)) {
        return same;  // nothing has failed yet
    }
    const bool all = fault.call == 0;
    return !before.visible || (same && !all) || Explained(effects, all, before, after);
}

AssertionResult Differ(std::size_t index, const std::string& expected,
                       const std::string& actual) {
    return AssertionFailure() << "call " << index + 1 << ":\n  expected " << expected
                              << "\n  made     " << actual;
}

const std::string kNothing = "(nothing)";

}  // namespace

std::string NameOf(const Call& call) { return call.line.substr(0, call.line.find(' ')); }

bool Fails(const Fault& fault, const Trace& trace, std::size_t index) {
    return fault.call > 0
               ? index + 1 == static_cast<std::size_t>(fault.call)
               : fault.function.empty() || NameOf(trace[index]) == fault.function;
}

AssertionResult GoesOn(const Trace& undisturbed, const Trace& disturbed,
                       const Fault& fault) {
    const Effects effects = EffectsOf(undisturbed, fault);
    const auto isSpared = [&](const std::string& function) {
        return std::any_of(effects.begin(), effects.end(), [&](const Effect& effect) {
            return effect.spared == function;
        });
    };
    std::size_t next = 0;
    for (const Call& call : undisturbed) {
        const bool there =
            next < disturbed.size() && NameOf(call) == NameOf(disturbed[next]);
        const bool all = fault.call == 0;
        if ((!there || all) && isSpared(NameOf(call))) {
            continue;
        }
        if (!there) {
            return Differ(next, call.line,
                          next < disturbed.size() ? disturbed[next].line : kNothing);
        }
        if (!Allowed(effects, fault, next, call, disturbed[next])) {
            return Differ(next, call.line, disturbed[next].line);
        }
        ++next;
    }
    return next == disturbed.size() ? AssertionSuccess()
                                    : Differ(next, kNothing, disturbed[next].line);
}

AssertionResult DrawsTheSameKinds(const Trace& undisturbed, const Trace& disturbed) {
    const auto visible = [](const Trace& trace) {
        std::vector<std::string> names;
        for (const Call& call : trace) {
            if (call.visible) {
                names.push_back(NameOf(call));
            }
        }
        return names;
    };
    if (visible(undisturbed) == visible(disturbed)) {
        return AssertionSuccess();
    }
    return AssertionFailure() << visible(disturbed).size() << " visible calls, and not "
                              << visible(undisturbed).size() << ", or of other functions";
}

AssertionResult IsItselfAgain(const Trace& undisturbed, const Trace& later) {
    for (std::size_t i = 0; i < std::max(undisturbed.size(), later.size()); ++i) {
        const std::string& expected =
            i < undisturbed.size() ? undisturbed[i].line : kNothing;
        const std::string& made = i < later.size() ? later[i].line : kNothing;
        const bool disposesOfNothing = made == "GdipDisposeImage null" &&
                                       expected.rfind("GdipDisposeImage ", 0) == 0;
        if (made != expected && !disposesOfNothing) {
            return Differ(i, expected, made);
        }
    }
    return AssertionSuccess();
}

Gdiplus::Status LastStatusOf(const Trace& drawing, const Fault* fault) {
    Gdiplus::Status status = Gdiplus::Ok;
    for (std::size_t i = 0; i < drawing.size(); ++i) {
        if (!drawing[i].visible) {
            continue;
        }
        if (fault != nullptr && Fails(*fault, drawing, i)) {
            status = fault->status;
        } else if (UsesNull(drawing[i])) {
            status = Gdiplus::InvalidParameter;
        }
    }
    return status;
}

}  // namespace faults
