// Every allocation of every element fails, one in a run of its own, while the element is
// made, measured and drawn.

#include <gtest/gtest.h>

#include <iostream>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "memory/allocations.h"
#include "recording/expect.h"
#include "recording/lines.h"
#include "subjects/stage.h"
#include "subjects/subjects.h"

namespace {

using subjects::Row;
using subjects::Stage;
using subjects::Subject;

enum class Step { Make, Measure, Draw };

/// A subject on a surface, in which the steps are played.
struct Scene {
    const Row& row;
    recording::Surface surface{120, 80};
    std::unique_ptr<Subject> subject;

    explicit Scene(const Row& sceneRow) : row(sceneRow) {}

    void Play(Step step) {
        if (step == Step::Make) {
            subject = row.make();
        } else if (step == Step::Measure) {
            subject->Measure();
        } else {
            subject->Draw(surface.Graphics());
        }
    }
    void Play(const std::vector<Step>& steps) {
        const Stage stage;
        for (const Step step : steps) {
            Play(step);
        }
    }

    /// The calls of measuring and drawing, but for what is left of an earlier opening.
    std::vector<std::string> Again() {
        const Stage stage;
        Play(Step::Measure);
        Play(Step::Draw);
        std::vector<std::string> lines;
        for (const recording::Call& call : stage.Calls()) {
            if (call.line.rfind("GdipDisposeImage", 0) != 0) {
                lines.push_back(call.line);
            }
        }
        return lines;
    }
};

struct Trial {
    const char* name;
    std::vector<Step> before;
    Step step;
};

const Trial kTrials[] = {
    {"making", {}, Step::Make},
    {"measuring", {Step::Make}, Step::Measure},
    {"drawing", {Step::Make, Step::Measure}, Step::Draw},
    {"measuring again", {Step::Make, Step::Measure, Step::Draw}, Step::Measure},
};

/// What a subject does after the steps, without any failure.
std::vector<std::string> Undisturbed(const Row& row, const std::vector<Step>& steps) {
    Scene scene(row);
    scene.Play(steps);
    if (scene.subject == nullptr) {
        scene.Play({Step::Make});
    }
    return scene.Again();
}

/// Whether a drawing, given up or not, reset the world transform if it ever turned it.
bool LeavesNoTurn(const subjects::Trace& trace) {
    bool turned = false;
    for (const recording::Call& call : trace) {
        turned = call.line == recording::ResetWorld()
                     ? false
                     : turned || call.line.find("WorldTransform") != std::string::npos;
    }
    return !turned;
}

class Exhaustion : public ::testing::TestWithParam<std::string> {
protected:
    static void TearDownTestSuite() {
        std::cout << s_allocations << " allocations failed\n";
    }

    /// Plays one step with one of its allocations failing.
    /// @return whether it asked for that allocation
    static bool Fail(const Row& row, const Trial& trial, int allocation,
                     const std::vector<std::string>& thrown,
                     const std::vector<std::string>& finished) {
        Scene scene(row);
        scene.Play(trial.before);
        const std::size_t nativesBefore = recording::LiveObjects().size();
        bool throws = false;
        int count = 0;
        {
            const Stage stage;
            {
                const allocations::Watch watch(allocation);
                try {
                    scene.Play(trial.step);
                } catch (const std::bad_alloc&) {
                    throws = true;
                }
                count = watch.Count();
            }
            EXPECT_TRUE(LeavesNoTurn(stage.Calls()));
        }
        if (count < allocation) {
            EXPECT_FALSE(throws);
            return false;
        }
        const Gdiplus::Status status = scene.surface.Graphics()->GetLastStatus();
        if (throws) {
            EXPECT_EQ(allocations::Alive(), 0);
            EXPECT_EQ(recording::LiveObjects().size(), nativesBefore);
            if (scene.subject == nullptr) {
                scene.Play({Step::Make});
            }
        } else if (trial.step == Step::Draw) {
            EXPECT_NE(status, Gdiplus::Ok);
        }
        EXPECT_EQ(scene.Again(), throws ? thrown : finished);
        scene.subject.reset();
        EXPECT_EQ(allocations::Alive(), 0);
        EXPECT_TRUE(recording::NothingAlive());
        return true;
    }

    static int s_allocations;
};

int Exhaustion::s_allocations = 0;

TEST_P(Exhaustion, LosesNothing) {
    int count = 0;
    for (const Row& row : subjects::Rows()) {
        if (row.family != GetParam()) {
            continue;
        }
        for (const Trial& trial : kTrials) {
            std::vector<Step> steps = trial.before;
            const std::vector<std::string> thrown = Undisturbed(row, steps);
            steps.push_back(trial.step);
            const std::vector<std::string> finished = Undisturbed(row, steps);
            for (int n = 1; !HasFailure() && Fail(row, trial, n, thrown, finished); ++n) {
                ++count;
            }
            ASSERT_FALSE(HasFailure())
                << row.family << " " << row.name << ", " << trial.name;
        }
    }
    EXPECT_GT(count, 0);
    RecordProperty("allocations", count);
    s_allocations += count;
}

INSTANTIATE_TEST_SUITE_P(All, Exhaustion, ::testing::ValuesIn(subjects::Families()),
                         [](const ::testing::TestParamInfo<std::string>& family) {
                             return family.param;
                         });

}  // namespace
