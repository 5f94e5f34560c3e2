// Lists of sources of every kind in every order, against the model.

#include <gtest/gtest.h>

#include "legend/legend_model.h"

namespace {

using model::Kind;
using namespace recording;

constexpr int kKinds = 9;

model::Source SourceOfKind(int kind, int place) {
    const Kind kinds[kKinds] = {Kind::Unavailable, Kind::NotRaster,  Kind::Unknown,
                                Kind::Rgb,         Kind::Gray,       Kind::Classified,
                                Kind::Classified,  Kind::Classified, Kind::Classified};
    const int classes[kKinds] = {0, 0, 0, 0, 0, 0, 1, 3, 20};
    model::Source source;
    source.kind = kinds[kind];
    // Short and long ones, so that each of the widths is at times the widest.
    source.name = std::string(static_cast<std::size_t>(3 + 7 * place), 'n') + ".tif";
    source.bands[0] = 2 + place;
    source.bands[1] = 0;
    source.bands[2] = 11;
    source.low = -37 * place;
    source.high = 1000 + place;
    for (int i = 0; i < classes[kind]; ++i) {
        const auto shade = static_cast<Gdiplus::ARGB>(i * 0x0A0501 + place);
        source.classes.push_back(
            {"class " + std::string(static_cast<std::size_t>(i), 'x'),
             0xFF000000 | shade});
    }
    return source;
}

model::Legend LegendOf(const std::vector<int>& kinds) {
    model::Legend legend;
    legend.title = {"Explanation", "Serif", 21, 3, 0xFF123456};
    legend.fileName = {"", "Mono", 15, 2, 0x80654321};
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        legend.sources.push_back(SourceOfKind(kinds[i], static_cast<int>(i)));
    }
    return legend;
}

std::string Told(const std::vector<int>& kinds, float factor, double scale) {
    std::string text = "kinds";
    for (const int kind : kinds) {
        text += " " + std::to_string(kind);
    }
    return text + ", factor " + std::to_string(factor) + ", scale " +
           std::to_string(scale);
}

class LegendLists : public ::testing::Test {
protected:
    /// Measures twice over and draws, each time as the model does.
    void Check(const std::vector<int>& kinds, float factor, double scale) {
        SCOPED_TRACE(Told(kinds, factor, scale));
        model::Legend described = LegendOf(kinds);
        described.factor = factor;
        model::Built built = model::Build(described);

        for (int round = 0; round < 2; ++round) {
            const model::Natural natural = model::Measured(described, ink::Typical);
            const CPoint centre(211, 317 + round);

            Recording recording(Mode::RecordOnly);
            ink::Script(recording, ink::Typical);
            built.legend.ResetAspectRatio();
            ASSERT_EQ(built.legend.GetSize(), natural.height);
            ASSERT_EQ(built.legend.GetAspectRatio(), natural.aspect);
            ASSERT_EQ(built.legend.GetTitleSize(), natural.titleEm);
            ASSERT_EQ(built.legend.GetFileNameSize(), natural.fileNameEm);

            recording.Clear();
            built.legend.Draw(m_surface.Graphics(), centre, scale);
            ASSERT_TRUE(
                Equal(model::Drawn(described, natural, centre, scale, ink::Typical),
                      recording.Drawing()));

            described.title.emSize = natural.titleEm;
            described.fileName.emSize = natural.fileNameEm;
        }
    }

private:
    Surface m_surface;
};

constexpr float kFactors[] = {1.0f, 0.5f, 2.0f};
constexpr double kScales[] = {1.0, 0.5, 3.125};

TEST_F(LegendLists, NoneToThreeSourcesOfEveryKindInEveryOrder) {
    std::size_t turn = 0;
    for (int length = 0; length <= 3; ++length) {
        int lists = 1;
        for (int i = 0; i < length; ++i) {
            lists *= kKinds;
        }
        for (int list = 0; list < lists && !HasFatalFailure(); ++list) {
            std::vector<int> kinds;
            for (int i = 0, rest = list; i < length; ++i, rest /= kKinds) {
                kinds.push_back(rest % kKinds);
            }
            Check(kinds, kFactors[turn % 3], kScales[turn / 3 % 3]);
            ++turn;
        }
    }
}

TEST_F(LegendLists, EveryFactorAtEveryScale) {
    for (const float factor : kFactors) {
        for (const double scale : kScales) {
            Check({}, factor, scale);
            Check({0, 1, 2, 3, 4, 5}, factor, scale);
            Check({6, 7, 8, 3, 4, 2}, factor, scale);
        }
    }
}

TEST_F(LegendLists, FourToSixSourcesDrawnByLot) {
    std::uint32_t lot = 12345;
    const auto draw = [&lot] {
        lot = lot * 1664525u + 1013904223u;
        return lot >> 16;
    };
    for (int i = 0; i < 150 && !HasFatalFailure(); ++i) {
        std::vector<int> kinds(4 + draw() % 3);
        for (int& kind : kinds) {
            kind = static_cast<int>(draw() % kKinds);
        }
        Check(kinds, kFactors[draw() % 3], kScales[draw() % 3]);
    }
}

}  // namespace
