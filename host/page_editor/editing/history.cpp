#include "page_editor/editing/history.h"

#include <utility>

namespace page_editor {

void History::Reset(PageState state) {
    m_entries.clear();
    m_entries.push_back({std::move(state), {}, {}});
    m_current = 0;
    m_saved = 0;
}

void History::Push(PageState state, std::string label, std::string merge) {
    if (m_saved != kForgotten && m_saved > m_current) {
        m_saved = kForgotten;
    }
    m_entries.resize(m_current + 1);
    Entry& last = m_entries.back();
    if (!merge.empty() && last.merge == merge && m_saved != m_current) {
        last.state = std::move(state);
        return;
    }
    m_entries.push_back({std::move(state), std::move(label), std::move(merge)});
    ++m_current;
    ForgetOldest();
}

void History::ForgetOldest() {
    if (m_entries.size() <= kMostStates) {
        return;
    }
    m_entries.erase(m_entries.begin());
    --m_current;
    m_saved = m_saved == 0 || m_saved == kForgotten ? kForgotten : m_saved - 1;
}

void History::SetSelection(Indices selection) {
    m_entries[m_current].state.selection = std::move(selection);
}

std::string History::UndoLabel() const {
    return CanUndo() ? m_entries[m_current].label : std::string();
}

std::string History::RedoLabel() const {
    return CanRedo() ? m_entries[m_current + 1].label : std::string();
}

}  // namespace page_editor
