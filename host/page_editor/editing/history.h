#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace page_editor {

/// Items of a page by index, ascending.
using Indices = std::vector<std::size_t>;

/// An item as host::WriteItem writes it. States of a page share the texts of unchanged
/// items, so that the same pointer means the same item.
using ItemText = std::shared_ptr<const std::string>;

/// A page at some time, and what was selected then.
struct PageState {
    double width = 0.0;
    double height = 0.0;
    std::vector<ItemText> items;
    Indices selection;
    /// What could not be made true to the map, one line each.
    std::vector<std::string> remarks = {};
};

/// The states of a page, one after each command, for undo and redo. Beyond a few hundred,
/// the oldest are dropped.
class History {
public:
    static constexpr std::size_t kMostStates = 500;

    /// Starts again at a state, which counts as saved.
    void Reset(PageState state);

    /// The state after a command; what was undone is dropped.
    /// @param label the command, as a menu names it: "Move"
    /// @param merge if it is not empty and the last command had the same, both become
    /// one: a series of small steps is undone at once
    void Push(PageState state, std::string label, std::string merge);

    const PageState& Current() const { return m_entries[m_current].state; }
    /// Keeps the selection of the current state up to date.
    void SetSelection(Indices selection);
    /// Keeps the next command separate from the last.
    void EndMerging() { m_entries[m_current].merge.clear(); }

    bool CanUndo() const { return m_current > 0; }
    bool CanRedo() const { return m_current + 1 < m_entries.size(); }
    /// The states that undo and redo lead to; only if there are any.
    const PageState& Previous() const { return m_entries[m_current - 1].state; }
    const PageState& Next() const { return m_entries[m_current + 1].state; }
    void StepBack() { --m_current; }
    void StepForth() { ++m_current; }

    /// The commands that undo and redo would affect; empty for none.
    std::string UndoLabel() const;
    std::string RedoLabel() const;

    void MarkSaved() { m_saved = m_current; }
    void MarkUnsaved() { m_saved = kForgotten; }
    bool IsSaved() const { return m_saved == m_current; }

private:
    static constexpr std::size_t kForgotten = static_cast<std::size_t>(-1);

    struct Entry {
        PageState state;
        std::string label;  // of the command that led here
        std::string merge;
    };

    void ForgetOldest();

    std::vector<Entry> m_entries = {Entry{}};
    std::size_t m_current = 0;
    std::size_t m_saved = 0;
};

}  // namespace page_editor
