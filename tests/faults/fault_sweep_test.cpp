// Every flat call of every element fails, one in a run of its own, then all of a function
// and then all there are.

#include <gtest/gtest.h>

#include <array>
#include <iostream>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "faults/disturbance.h"
#include "recording/expect.h"
#include "recording/lines.h"
#include "subjects/subjects.h"

namespace {

using namespace recording;
using faults::Fault;
using faults::Trace;
using subjects::Setting;
using subjects::Subject;
using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

enum Step { Make, Measure, Draw, MeasureAgain, DrawAgain, kSteps };

constexpr Step kDisturbed[] = {Make, Measure, Draw, MeasureAgain};
constexpr const char* kStepNames[] = {"making", "measuring", "drawing", "measuring again",
                                      "drawing again"};

/// Calls that fail on order never reach GDI+, so that one status will do there.
std::vector<Gdiplus::Status> StatusesFor(Mode mode) {
    if (mode == Mode::Forward) {
        return {Gdiplus::GenericError};
    }
    return {Gdiplus::GenericError, Gdiplus::OutOfMemory, Gdiplus::InvalidParameter};
}

const std::vector<float> kIdentity{1, 0, 0, 1, 0, 0};
const std::vector<float> kTheHosts{1, 0, 0, 1, 5, 7};

/// What was seen of a subject from its making to its end.
struct Life {
    std::array<Trace, kSteps> traces;
    std::array<Gdiplus::Status, kSteps> status{};  ///< of the surface, after each step
    std::array<std::size_t, kSteps> alive{};       ///< native objects, after each step
    std::array<std::vector<float>, kSteps> transform;
    std::vector<std::string> leftOver;
};

/// @param except how the one step that is not as the others is played
Life Live(const subjects::Row& row, Surface& surface, Mode mode, Step exception = kSteps,
          Setting except = {}) {
    Gdiplus::Graphics* const graphics = surface.Graphics();
    const Setting usual{mode, true, {}};
    except.mode = mode;
    Life life;
    std::unique_ptr<Subject> subject;
    for (const Step step : {Make, Measure, Draw, MeasureAgain, DrawAgain}) {
        if (mode == Mode::Forward) {
            graphics->ResetTransform();
            graphics->TranslateTransform(5.0f, 7.0f);
        }
        {
            const subjects::Stage stage(step == exception ? except : usual);
            if (step == Make) {
                subject = row.make();
            } else if (step == Measure || step == MeasureAgain) {
                subject->Measure();
            } else {
                subject->Draw(graphics);
            }
            life.traces[step] = stage.Calls();
        }
        life.status[step] = graphics->GetLastStatus();
        life.alive[step] = LiveObjects().size();
        if (mode == Mode::Forward) {
            life.transform[step] = surface.WorldTransform();
        }
    }
    subject.reset();
    life.leftOver = LiveObjects();
    return life;
}

std::vector<Fault> FaultsOf(const Trace& trace, Mode mode) {
    std::vector<Fault> faults;
    std::set<std::string> functions;
    for (const Gdiplus::Status status : StatusesFor(mode)) {
        for (int call = 1; call <= static_cast<int>(trace.size()); ++call) {
            faults.push_back({call, "", status});
        }
    }
    for (const Call& call : trace) {
        functions.insert(faults::NameOf(call));
    }
    for (const std::string& function : functions) {
        faults.push_back({0, function, Gdiplus::GenericError});
    }
    if (!trace.empty()) {
        faults.push_back({0, "", Gdiplus::OutOfMemory});
    }
    return faults;
}

std::string Describe(const Fault& fault, const Trace& trace) {
    if (fault.call > 0) {
        return "call " + std::to_string(fault.call) + ", " +
               trace.at(static_cast<std::size_t>(fault.call - 1)).line + ", fails with " +
               std::to_string(fault.status);
    }
    return fault.function.empty() ? "every call fails"
                                  : "every " + fault.function + " fails";
}

class FaultSweep : public ::testing::TestWithParam<std::tuple<Mode, std::string>> {
protected:
    static void TearDownTestSuite() {
        std::cout << s_faults << " faults injected\n";
        s_faults = 0;
    }

    static int s_faults;
};

int FaultSweep::s_faults = 0;

/// One set of properties, put to every fault.
class Trial {
public:
    Trial(const subjects::Row& row, Mode mode)
        : m_row(row),
          m_mode(mode),
          m_undisturbed(Live(row, m_surface, mode)),
          m_withoutInk(Live(row, m_surface, mode, Draw, {mode, false, {}})) {}

    void ExpectThatItIsWell() {
        const std::vector<std::string> drawn = VisibleLines(m_undisturbed.traces[Draw]);
        bool turns = false;
        for (const std::string& line : drawn) {
            turns = turns || line.find("WorldTransform") != std::string::npos;
        }
        EXPECT_EQ(turns, m_row.turns);
        EXPECT_TRUE(!turns || drawn.back() == ResetWorld());
        for (const Step step : {Draw, DrawAgain}) {
            EXPECT_EQ(m_undisturbed.status[step],
                      faults::LastStatusOf(m_undisturbed.traces[step]));
        }
        EXPECT_TRUE(LeavesNothingBehind(m_undisturbed));
        EXPECT_TRUE(LeavesTheTransform(m_undisturbed, Draw));
    }

    /// Stops at the first fault that does harm; more of the same would follow.
    /// @return how many faults there were
    int ExpectThatNoFaultHarms() {
        int count = 0;
        for (const Step step : kDisturbed) {
            if (step == MeasureAgain &&
                faults::IsItselfAgain(m_undisturbed.traces[Measure],
                                      m_undisturbed.traces[step])) {
                continue;  // nothing that was not seen when it was measured first
            }
            for (const Fault& fault : FaultsOf(m_undisturbed.traces[step], m_mode)) {
                ++count;
                const Life life =
                    Live(m_row, m_surface, m_mode, step, {m_mode, true, fault});
                const AssertionResult well = Survives(life, step, fault);
                EXPECT_TRUE(well) << kStepNames[step] << ": "
                                  << Describe(fault, m_undisturbed.traces[step]);
                if (!well) {
                    return count;
                }
            }
        }
        return count;
    }

private:
    static std::vector<std::string> VisibleLines(const Trace& trace) {
        std::vector<std::string> lines;
        for (const Call& call : trace) {
            if (call.visible) {
                lines.push_back(call.line);
            }
        }
        return lines;
    }

    /// Everything that must hold of a life in which one step was disturbed.
    AssertionResult Survives(const Life& life, Step step, const Fault& fault) {
        AssertionResult result = GoesOn(life, step, fault);
        for (int next = step + 1; result && next < kSteps; ++next) {
            result = IsItselfAgain(life, step, static_cast<Step>(next));
        }
        for (const Step drawing : {Draw, DrawAgain}) {
            const bool resets =
                drawing != step || !FailsToReset(life.traces[drawing], fault);
            result = result ? TellsItsStatus(life, drawing, step, fault) : result;
            result = result && resets ? LeavesTheTransform(life, drawing) : result;
        }
        return result ? LeavesNothingBehind(life) : result;
    }

    /// The step in which calls failed. What is not measured has no extent, and what is
    /// drawn below it moves up; nothing else moves.
    AssertionResult GoesOn(const Life& life, Step step, const Fault& fault) {
        const AssertionResult goesOn =
            faults::GoesOn(m_undisturbed.traces[step], life.traces[step], fault);
        return goesOn ||
                       faults::GoesOn(m_withoutInk.traces[step], life.traces[step], fault)
                   ? AssertionSuccess()
                   : goesOn;
    }

    /// Whether a drawing follows a measurement that was disturbed, and so has other
    /// proportions.
    static bool IsMismeasured(Step drawing, Step disturbed) {
        return (drawing == Draw && disturbed == Measure) ||
               (drawing == DrawAgain && disturbed == MeasureAgain);
    }

    /// A later step. What was not made with the subject stays missing; else all is as if
    /// no call had ever failed.
    AssertionResult IsItselfAgain(const Life& life, Step disturbed, Step step) {
        const Trace& undisturbed = m_undisturbed.traces[step];
        return disturbed == Make || IsMismeasured(step, disturbed)
                   ? faults::DrawsTheSameKinds(undisturbed, life.traces[step])
                   : faults::IsItselfAgain(undisturbed, life.traces[step]);
    }

    /// What GDI+ makes of odd proportions is its own affair.
    AssertionResult TellsItsStatus(const Life& life, Step drawing, Step disturbed,
                                   const Fault& fault) {
        const Gdiplus::Status expected = faults::LastStatusOf(
            life.traces[drawing], drawing == disturbed ? &fault : nullptr);
        if (life.status[drawing] == expected ||
            (m_mode == Mode::Forward && IsMismeasured(drawing, disturbed))) {
            return AssertionSuccess();
        }
        return AssertionFailure() << kStepNames[drawing] << ", the surface tells status "
                                  << life.status[drawing] << " and not " << expected;
    }

    AssertionResult LeavesNothingBehind(const Life& life) {
        if (!life.leftOver.empty()) {
            return AssertionFailure()
                   << life.leftOver.size() << " alive in the end, first "
                   << life.leftOver.front();
        }
        for (const Step step : {Draw, DrawAgain}) {
            if (life.alive[step] != life.alive[step - 1]) {
                return AssertionFailure()
                       << "alive after the drawing: " << life.alive[step]
                       << ", before it " << life.alive[step - 1];
            }
        }
        return AssertionSuccess();
    }

    AssertionResult LeavesTheTransform(const Life& life, Step step) {
        if (m_mode != Mode::Forward ||
            life.transform[step] == (m_row.turns ? kIdentity : kTheHosts)) {
            return AssertionSuccess();
        }
        return AssertionFailure() << "the world transform is not as it must be";
    }

    static bool FailsToReset(const Trace& drawing, const Fault& fault) {
        for (std::size_t i = 0; i < drawing.size(); ++i) {
            if (drawing[i].line == ResetWorld() && faults::Fails(fault, drawing, i)) {
                return true;
            }
        }
        return false;
    }

    const subjects::Row& m_row;
    Mode m_mode;
    Surface m_surface{120, 80};
    Life m_undisturbed;
    Life m_withoutInk;
};

TEST_P(FaultSweep, GoesOnWhateverFails) {
    const auto& [mode, family] = GetParam();
    int count = 0;
    for (const subjects::Row& row : subjects::Rows()) {
        if (row.family == family) {
            SCOPED_TRACE(row.family + " " + row.name);
            Trial trial(row, mode);
            trial.ExpectThatItIsWell();
            count += trial.ExpectThatNoFaultHarms();
        }
    }
    EXPECT_GT(count, 0);
    RecordProperty("faults", count);
    s_faults += count;
}

std::string FamilyOf(const ::testing::TestParamInfo<FaultSweep::ParamType>& info) {
    return std::get<std::string>(info.param);
}

// With no GDI+ behind them the faults are the same on every machine; what GDI+ does
// with objects that were not made is seen with the system's.
INSTANTIATE_TEST_SUITE_P(Recorded, FaultSweep,
                         ::testing::Combine(::testing::Values(Mode::RecordOnly),
                                            ::testing::ValuesIn(subjects::Families())),
                         FamilyOf);
INSTANTIATE_TEST_SUITE_P(Forwarded, FaultSweep,
                         ::testing::Combine(::testing::Values(Mode::Forward),
                                            ::testing::ValuesIn(subjects::Families())),
                         FamilyOf);

}  // namespace
