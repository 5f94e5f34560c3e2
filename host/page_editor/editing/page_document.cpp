#include "page_editor/editing/page_document.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "page/document/legend_sources.h"
#include "page/document/page_error.h"
#include "page/document/page_text.h"
#include "page/layout/fit_to_map.h"
#include "page/layout/map_on_page.h"
#include "page/paper.h"
#include "page_editor/editing/missing_files.h"
#include "page_editor/editing/separate_reading.h"

namespace page_editor {
namespace {

/// The offset of a copy from its original: right and down.
constexpr double kCopyOffset = 16.0;

host::Page EmptySheet() {
    const host::PaperSize paper;
    return {paper.width, paper.height};
}

Indices Range(std::size_t first, std::size_t last) {
    Indices range;
    for (std::size_t i = first; i < last; ++i) {
        range.push_back(i);
    }
    return range;
}

/// The indices at which two lists of the same length differ.
Indices Differences(const std::vector<ItemText>& a, const std::vector<ItemText>& b) {
    Indices places;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i]) {
            places.push_back(i);
        }
    }
    return places;
}

Indices Union(const Indices& a, const Indices& b) {
    Indices both;
    std::set_union(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(both));
    return both;
}

/// Whether every item is still at its place, perhaps changed.
bool IsSameArrangement(const PageState& a, const PageState& b) {
    const auto stands = [](const ItemText& text, const std::vector<ItemText>& items) {
        return std::find(items.begin(), items.end(), text) != items.end();
    };
    if (a.width != b.width || a.height != b.height || a.items.size() != b.items.size()) {
        return false;
    }
    const Indices changed = Differences(a.items, b.items);
    return std::none_of(changed.begin(), changed.end(), [&](std::size_t i) {
        return stands(a.items[i], b.items) || stands(b.items[i], a.items);
    });
}

/// The earlier text, if the item is unchanged.
ItemText TextOf(const host::PageItem& item, const ItemText& before) {
    std::string text = host::WriteItem(item);
    return before != nullptr && *before == text
               ? before
               : std::make_shared<const std::string>(std::move(text));
}

}  // namespace

PageDocument::PageDocument()
    : m_rasters(std::make_unique<host::RasterStore>()), m_page(EmptySheet()) {
    m_history.Reset({m_page.Width(), m_page.Height(), {}, {}});
}

CBoundingBox PageDocument::Extent(std::size_t index) const {
    return FrameOf(m_page.Items()[index]).GetExtent();
}

void PageDocument::Replace(host::Page page, std::unique_ptr<host::RasterStore> rasters,
                           std::vector<std::string> remarks) {
    PageState state{page.Width(), page.Height(), {}, {}, std::move(remarks)};
    for (const host::PageItem& item : page.Items()) {
        state.items.push_back(TextOf(item, nullptr));
    }
    m_page = std::move(page);
    m_rasters = std::move(rasters);
    m_missing = NotOpen(m_page.Items(), *m_rasters);
    m_history.Reset(std::move(state));
    Q_EMIT PageReplaced();
    Q_EMIT SelectionChanged();
    Q_EMIT HistoryChanged();
}

void PageDocument::Select(Indices selection) {
    std::sort(selection.begin(), selection.end());
    selection.erase(std::unique(selection.begin(), selection.end()), selection.end());
    if (selection != Selection()) {
        m_history.EndMerging();
        m_history.SetSelection(std::move(selection));
        Q_EMIT SelectionChanged();
    }
}

void PageDocument::ChangeItems(const Indices& items, const std::string& label,
                               const std::function<void(host::PageItem&)>& change,
                               const std::string& merge) {
    try {
        for (const std::size_t index : items) {
            change(Item(index));
            OpenOrHatch(Item(index), *m_rasters, m_missing);
        }
    } catch (...) {
        Revert(items);
        throw;
    }
    Commit(label, merge);
}

void PageDocument::Commit(const std::string& label, const std::string& merge) {
    const PageState& before = m_history.Current();
    PageState after{m_page.Width(), m_page.Height(), {}, before.selection};
    Indices legends;
    try {
        after.remarks = host::FitToMap(m_page);
        legends = FitLegends();
        for (std::size_t i = 0; i < Count(); ++i) {
            after.items.push_back(TextOf(Item(i), before.items[i]));
        }
    } catch (...) {
        Revert(Range(0, Count()));
        throw;
    }
    const Indices changed = Differences(before.items, after.items);
    if (!changed.empty()) {
        m_history.Push(std::move(after), label, merge);
        Q_EMIT ItemsChanged(Union(changed, legends));
        Q_EMIT HistoryChanged();
    }
}

void PageDocument::Revert(const Indices& items) {
    for (const std::size_t index : items) {
        Item(index) = Read(*m_history.Current().items[index]);
    }
    Q_EMIT ItemsChanged(items);
}

void PageDocument::Insert(host::PageItem item, const std::string& label,
                          const std::vector<std::string>& remarks) {
    std::vector<host::PageItem> items;
    items.push_back(std::move(item));
    Append(items, label, remarks);
}

void PageDocument::RemoveSelected() {
    if (Selection().empty()) {
        return;
    }
    PageState state = m_history.Current();
    for (auto index = state.selection.rbegin(); index != state.selection.rend();
         ++index) {
        state.items.erase(state.items.begin() + static_cast<std::ptrdiff_t>(*index));
    }
    state.selection.clear();
    state.remarks.clear();  // they may be about something removed
    Do(std::move(state), "Delete");
}

void PageDocument::DuplicateSelected() {
    std::vector<host::PageItem> copies;
    for (const std::size_t index : Selection()) {
        copies.push_back(Read(*m_history.Current().items[index]));
        FrameOf(copies.back()).SetOffset(kCopyOffset, -kCopyOffset);
    }
    Append(copies, "Duplicate");
}

std::string PageDocument::TextOfSelected() const {
    std::string text;
    for (const std::size_t index : Selection()) {
        text += *m_history.Current().items[index] + "\n";
    }
    return text;
}

void PageDocument::Paste(const std::string& text) {
    TryItems(text, Reading());
    std::vector<host::PageItem> items = host::ReadItems(text);
    for (host::PageItem& item : items) {
        FrameOf(item).SetOffset(kCopyOffset, -kCopyOffset);
    }
    TryRastersOf(items, *m_rasters, Reading());
    Append(items, "Paste");
}

void PageDocument::Rearrange(const Indices& order) {
    const PageState& before = m_history.Current();
    PageState state = before;
    state.selection.clear();
    for (std::size_t place = 0; place < order.size(); ++place) {
        const std::size_t from = order[place];
        state.items[place] = before.items[from];
        if (std::binary_search(before.selection.begin(), before.selection.end(), from)) {
            state.selection.push_back(place);
        }
    }
    if (state.items != before.items) {
        Do(std::move(state), "Change order");
    }
}

void PageDocument::SetSheet(double width, double height) {
    PageState state = m_history.Current();
    if (state.width != width || state.height != height) {
        state.width = width;
        state.height = height;
        Do(std::move(state), "Change sheet");
    }
}

void PageDocument::Undo() {
    if (CanUndo()) {
        const PageState before = m_history.Current();
        Show(m_history.Previous());
        m_history.StepBack();
        m_history.EndMerging();
        Announce(before);
    }
}

void PageDocument::Redo() {
    if (CanRedo()) {
        const PageState before = m_history.Current();
        Show(m_history.Next());
        m_history.StepForth();
        Announce(before);
    }
}

std::vector<std::string> PageDocument::Remarks() const {
    std::vector<std::string> remarks = RemarksOfHatched(m_page);
    for (const std::vector<std::string>& more :
         {host::RemarksOfMaps(m_page), m_history.Current().remarks}) {
        for (const std::string& remark : more) {
            if (std::find(remarks.begin(), remarks.end(), remark) == remarks.end()) {
                remarks.push_back(remark);
            }
        }
    }
    return remarks;
}

void PageDocument::MarkSaved() {
    m_history.MarkSaved();
    Q_EMIT HistoryChanged();
}

void PageDocument::MarkUnsaved() {
    m_history.MarkUnsaved();
    Q_EMIT HistoryChanged();
}

/// Legends of missing rasters explain nothing.
Indices PageDocument::FitLegends() {
    try {
        return host::FitLegendsToMaps(m_page, *m_rasters);
    } catch (const host::PageError&) {
        if (m_missing.empty()) {
            throw;
        }
        return {};
    }
}

host::PageItem PageDocument::Read(const std::string& text) {
    host::PageItem item = host::ReadItem(text);
    OpenOrHatch(item, *m_rasters, m_missing);
    return item;
}

/// Brings the page to a state, keeping the items whose texts are the same.
void PageDocument::Show(const PageState& state) {
    const PageState& before = m_history.Current();
    std::vector<host::PageItem> items(state.items.size());
    std::vector<std::size_t> kept(state.items.size(), Count());
    for (std::size_t i = 0; i < items.size(); ++i) {
        const auto found =
            std::find(before.items.begin(), before.items.end(), state.items[i]);
        if (found == before.items.end()) {
            items[i] = Read(*state.items[i]);
        } else {
            kept[i] = static_cast<std::size_t>(found - before.items.begin());
        }
    }
    for (std::size_t i = 0; i < items.size(); ++i) {  // nothing throws from here on
        if (kept[i] < Count()) {
            items[i] = std::move(Item(kept[i]));
        }
    }
    host::Page page(state.width, state.height);
    page.About() = m_page.About();
    page.Items() = std::move(items);
    m_page = std::move(page);
}

/// Emits what differs from an earlier state.
void PageDocument::Announce(const PageState& before) {
    const PageState& now = m_history.Current();
    const Indices legends = FitLegends();
    if (IsSameArrangement(before, now)) {
        Q_EMIT ItemsChanged(Union(Differences(before.items, now.items), legends));
    } else {
        Q_EMIT PageRearranged();
    }
    Q_EMIT SelectionChanged();
    Q_EMIT HistoryChanged();
}

/// Runs a command that leads to a state.
void PageDocument::Do(PageState state, const std::string& label) {
    const PageState before = m_history.Current();
    Show(state);
    m_history.Push(std::move(state), label, {});
    Announce(before);
}

void PageDocument::Append(const std::vector<host::PageItem>& items,
                          const std::string& label,
                          const std::vector<std::string>& remarks) {
    if (items.empty()) {
        return;
    }
    PageState state = m_history.Current();
    state.remarks.insert(state.remarks.end(), remarks.begin(), remarks.end());
    state.selection = Range(Count(), Count() + items.size());
    for (const host::PageItem& item : items) {
        state.items.push_back(TextOf(item, nullptr));
    }
    Do(std::move(state), label);
}

}  // namespace page_editor
