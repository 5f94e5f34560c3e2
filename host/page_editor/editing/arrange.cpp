#include "page_editor/editing/arrange.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace page_editor {
namespace {

CPoint2D AlignOffset(const host::Box& box, AlignTo to, const host::Box& around) {
    switch (to) {
        case AlignTo::Left:
            return {around.left - box.left, 0.0};
        case AlignTo::Centre:
            return {around.MiddleX() - box.MiddleX(), 0.0};
        case AlignTo::Right:
            return {around.right - box.right, 0.0};
        case AlignTo::Top:
            return {0.0, around.top - box.top};
        case AlignTo::Middle:
            return {0.0, around.MiddleY() - box.MiddleY()};
        case AlignTo::Bottom:
            return {0.0, around.bottom - box.bottom};
    }
    return {0.0, 0.0};
}

/// A box's beginning and length along an axis.
struct Stretch {
    std::size_t box;
    double first;
    double length;
};

std::vector<Stretch> StretchesOf(const std::vector<host::Box>& boxes,
                                 Direction direction) {
    std::vector<Stretch> stretches;
    for (const host::Box& box : boxes) {
        const std::size_t index = stretches.size();
        stretches.push_back(direction == Direction::Across
                                ? Stretch{index, box.left, box.Width()}
                                : Stretch{index, box.bottom, box.Height()});
    }
    std::stable_sort(stretches.begin(), stretches.end(),
                     [](const Stretch& a, const Stretch& b) {
                         return a.first + a.length / 2.0 < b.first + b.length / 2.0;
                     });
    return stretches;
}

/// From the bottom up, swaps each selected item with the one above it.
Indices RaisedByOne(Indices order, const std::vector<bool>& selected) {
    for (std::size_t place = order.size(); place-- > 1;) {
        if (selected[order[place - 1]] && !selected[order[place]]) {
            std::swap(order[place - 1], order[place]);
        }
    }
    return order;
}

}  // namespace

host::Box Around(const std::vector<host::Box>& boxes) {
    host::Box all = boxes.front();
    for (const host::Box& box : boxes) {
        all = {std::min(all.left, box.left), std::min(all.bottom, box.bottom),
               std::max(all.right, box.right), std::max(all.top, box.top)};
    }
    return all;
}

std::vector<CPoint2D> AlignOffsets(const std::vector<host::Box>& boxes, AlignTo to,
                                   const host::Box& around) {
    std::vector<CPoint2D> offsets;
    std::transform(boxes.begin(), boxes.end(), std::back_inserter(offsets),
                   [&](const host::Box& box) { return AlignOffset(box, to, around); });
    return offsets;
}

std::vector<CPoint2D> DistributeOffsets(const std::vector<host::Box>& boxes,
                                        Direction direction) {
    std::vector<CPoint2D> offsets(boxes.size(), CPoint2D(0.0, 0.0));
    if (boxes.size() < 3) {
        return offsets;
    }
    const std::vector<Stretch> stretches = StretchesOf(boxes, direction);
    double inner = 0.0;
    for (std::size_t i = 1; i + 1 < stretches.size(); ++i) {
        inner += stretches[i].length;
    }
    const double room = stretches.back().first -
                        (stretches.front().first + stretches.front().length) - inner;
    const double gap = room / static_cast<double>(stretches.size() - 1);
    double next = stretches.front().first + stretches.front().length + gap;
    for (std::size_t i = 1; i + 1 < stretches.size(); ++i) {
        const double offset = next - stretches[i].first;
        offsets[stretches[i].box] = direction == Direction::Across
                                        ? CPoint2D(offset, 0.0)
                                        : CPoint2D(0.0, offset);
        next += stretches[i].length + gap;
    }
    return offsets;
}

Indices Reordered(std::size_t count, const Indices& selection, Order order) {
    std::vector<bool> selected(count, false);
    for (const std::size_t index : selection) {
        selected[index] = true;
    }
    Indices items(count);
    for (std::size_t i = 0; i < count; ++i) {
        items[i] = i;
    }
    switch (order) {
        case Order::ToFront:
            std::stable_partition(items.begin(), items.end(),
                                  [&](std::size_t i) { return !selected[i]; });
            break;
        case Order::ToBack:
            std::stable_partition(items.begin(), items.end(),
                                  [&](std::size_t i) { return selected[i]; });
            break;
        case Order::Up:
            return RaisedByOne(std::move(items), selected);
        case Order::Down:
            std::reverse(items.begin(), items.end());
            items = RaisedByOne(std::move(items), selected);
            std::reverse(items.begin(), items.end());
            break;
    }
    return items;
}

}  // namespace page_editor
