#include "side_by_side.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <functional>
#include <iterator>
#include <numeric>
#include <utility>

namespace bench {
namespace {

/// Long against the step of the clock, which is a microsecond.
constexpr double kSecondsOfTurn = 400e-6;

}  // namespace

double Median(std::vector<double> values) {
    if (values.empty()) {
        return 0.0;
    }
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double SideBySide::Time(const std::function<void()>& run, int count) const {
    const auto onTheWall = std::chrono::steady_clock::now();
    const std::clock_t ofProcessor = std::clock();
    for (int i = 0; i < count; ++i) {
        run();
    }
    return m_clock == Clock::OfProcessor
               ? static_cast<double>(std::clock() - ofProcessor) / CLOCKS_PER_SEC
               : std::chrono::duration<double>(std::chrono::steady_clock::now() -
                                               onTheWall)
                     .count();
}

void SideBySide::Add(std::function<void()> run) {
    int count = 1;
    while (Time(run, count) < kSecondsOfTurn) {
        count *= 2;
    }
    Add(std::move(run), count);
}

void SideBySide::Add(std::function<void()> run, int count) {
    m_contenders.push_back({std::move(run), count, {}});
}

double SideBySide::Round() {
    const auto takeTurn = [this](double sum, Contender& contender) {
        const double seconds = Time(contender.run, contender.count);
        contender.seconds.push_back(seconds / contender.count);
        return sum + seconds;
    };
    // There and back again, so that none is always the one after the same other.
    m_backwards = !m_backwards;
    return m_backwards
               ? std::accumulate(m_contenders.rbegin(), m_contenders.rend(), 0.0,
                                 takeTurn)
               : std::accumulate(m_contenders.begin(), m_contenders.end(), 0.0, takeTurn);
}

double SideBySide::Seconds(std::size_t index) const {
    return Median(m_contenders[index].seconds);
}

double SideBySide::Ratio(std::size_t index, std::size_t toIndex) const {
    const std::vector<double>& numerators = m_contenders[index].seconds;
    const std::vector<double>& denominators = m_contenders[toIndex].seconds;
    std::vector<double> ratios;
    std::transform(numerators.begin(), numerators.end(), denominators.begin(),
                   std::back_inserter(ratios), std::divides<>());
    return Median(std::move(ratios));
}

}  // namespace bench
