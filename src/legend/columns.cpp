#include "legend/columns.h"

#include <algorithm>
#include <limits>

namespace map_surround {
namespace {

constexpr std::size_t kMostColumns = 64;

/// The rows of a legend one below another; a place is the number of pieces above it. Each
/// piece includes the gap below it, even the last of a column.
class Roll {
public:
    Roll(const std::vector<RowsTogether>& pieces, Length gap) {
        for (const RowsTogether& piece : pieces) {
            m_tops.push_back(m_tops.back() + std::max<Length>(0, piece.height) + gap);
        }
    }

    std::size_t Count() const { return m_tops.size() - 1; }
    Length Height(std::size_t from, std::size_t end) const {
        return m_tops[end] - m_tops[from];
    }
    /// The last place where a column from there can end.
    std::size_t LastEnd(std::size_t from, Length limit) const {
        const auto past =
            std::upper_bound(m_tops.begin(), m_tops.end(), m_tops[from] + limit);
        return static_cast<std::size_t>(past - m_tops.begin()) - 1;
    }
    /// The first place where a column that ends there can begin.
    std::size_t FirstStart(std::size_t end, Length limit) const {
        const auto first =
            std::lower_bound(m_tops.begin(), m_tops.end(), m_tops[end] - limit);
        return static_cast<std::size_t>(first - m_tops.begin());
    }
    /// The least height of columns that all the rows fit into.
    Length LowestLimit(std::size_t columns) const {
        Length least = 0;
        Length most = Height(0, Count());
        while (least < most) {
            const Length middle = least + (most - least) / 2;
            std::size_t end = 0;
            for (std::size_t column = 0; column < columns; ++column) {
                end = LastEnd(end, middle);
            }
            if (end == Count()) {
                most = middle;
            } else {
                least = middle + 1;
            }
        }
        return least;
    }

private:
    std::vector<Length> m_tops = {0};
};

/// The best ways to set what stands above each end in a number of columns: the sum of the
/// squares of their heights is least when they are as equal as possible.
struct Ways {
    std::size_t firstEnd = 0;
    std::vector<double> costs = {0.0};
    std::vector<std::size_t> lastStarts = {0};  ///< where the last column begins

    std::size_t LastEnd() const { return firstEnd + costs.size() - 1; }
};

/// The same with one column more.
Ways WithOneMore(const Ways& before, const Roll& roll, Length limit) {
    Ways ways;
    ways.firstEnd = before.firstEnd + 1;
    const std::size_t count = roll.LastEnd(before.LastEnd(), limit) - before.firstEnd;
    ways.costs.assign(count, std::numeric_limits<double>::infinity());
    ways.lastStarts.assign(count, 0);
    std::size_t step = 1;
    while (step <= count) {
        step *= 2;
    }
    // The later the last column ends, the later it begins: each end searches only between
    // the starts of its neighbours, which are found first.
    for (; step > 0; step /= 2) {
        for (std::size_t place = step; place <= count; place += 2 * step) {
            const std::size_t end = before.firstEnd + place;
            const std::size_t earliest =
                std::max(before.firstEnd, roll.FirstStart(end, limit));
            const std::size_t latest = std::min(before.LastEnd(), end - 1);
            std::size_t first = earliest;
            std::size_t last = latest;
            if (place > step) {
                first = std::clamp(ways.lastStarts[place - step - 1], earliest, latest);
            }
            if (place + step <= count) {
                last = std::clamp(ways.lastStarts[place + step - 1], first, latest);
            }
            for (std::size_t start = first; start <= last; ++start) {
                const auto height = static_cast<double>(roll.Height(start, end));
                const double cost =
                    before.costs[start - before.firstEnd] + height * height;
                // Of two equally good ways, the one with the shorter last column.
                if (cost <= ways.costs[place - 1]) {
                    ways.costs[place - 1] = cost;
                    ways.lastStarts[place - 1] = start;
                }
            }
        }
    }
    return ways;
}

}  // namespace

Columns SetInColumns(const std::vector<RowsTogether>& pieces, Length gap, int columns) {
    gap = std::max<Length>(0, gap);
    if (pieces.empty()) {
        return {{}, -gap};
    }
    const Roll roll(pieces, gap);
    const std::size_t count = std::min(
        {static_cast<std::size_t>(std::max(1, columns)), kMostColumns, pieces.size()});
    const Length limit = roll.LowestLimit(count);
    std::vector<Ways> ways(1);
    while (ways.size() <= count) {
        ways.push_back(WithOneMore(ways.back(), roll, limit));
    }

    // The starts as pieces, from the last one up, then as the rows above them.
    std::vector<std::size_t> starts(count - 1);
    std::size_t end = pieces.size();
    for (std::size_t column = count; column > 1; --column) {
        end = ways[column].lastStarts[end - ways[column].firstEnd];
        starts[column - 2] = end;
    }
    std::size_t piece = 0;
    std::size_t rows = 0;
    for (std::size_t& start : starts) {
        for (; piece < start; ++piece) {
            rows += pieces[piece].rows;
        }
        start = rows;
    }
    return {starts, limit - gap};
}

}  // namespace map_surround
