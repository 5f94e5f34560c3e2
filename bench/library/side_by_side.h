#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace bench {

/// The median, 0 of nothing.
double Median(std::vector<double> values);

/// Times several things in turns within one run, so that what else the machine does meets
/// all of them alike: a figure is the median over the rounds, and so is a ratio, of the
/// ratios within each round.
class SideBySide {
public:
    enum class Clock {
        OfProcessor,  ///< other programs that take their turns do not count
        OnTheWall,
    };

    explicit SideBySide(Clock clock = Clock::OfProcessor) : m_clock(clock) {}

    /// @param run done several times a turn, as often as makes a turn long enough
    void Add(std::function<void()> run);

    /// @param count how often it is done in a turn
    void Add(std::function<void()> run, int count);

    /// Gives each its turn.
    /// @return how long the round took, in seconds
    double Round();

    /// The time of one run, in seconds.
    double Seconds(std::size_t index) const;

    /// The time of one run over that of another.
    double Ratio(std::size_t index, std::size_t toIndex) const;

private:
    struct Contender {
        std::function<void()> run;
        int count;
        std::vector<double> seconds;  ///< of one run, a round each
    };

    /// How long the runs of one turn take together, in seconds.
    double Time(const std::function<void()>& run, int count) const;

    Clock m_clock;
    std::vector<Contender> m_contenders;
    bool m_backwards = false;
};

}  // namespace bench
