#pragma once

#include <QObject>
#include <cstddef>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "page/document/raster_store.h"
#include "page/page.h"
#include "page_editor/editing/history.h"

namespace page_editor {

/// A page that is being edited: its items, the selection, and every earlier state,
/// without any user interface.
///
/// A command changes items and ends in Commit, or is cancelled with Revert; ChangeItems
/// does both. A change that no page file can hold, or that names a file that cannot be
/// opened, throws host::PageError and leaves the page as it was.
class PageDocument : public QObject {
    Q_OBJECT
public:
    /// An empty A4 sheet.
    PageDocument();

    const host::Page& Page() const { return m_page; }
    std::size_t Count() const { return m_page.Items().size(); }
    /// For changes that end in Commit; also for HitTest, which stores the handle it
    /// found.
    host::PageItem& Item(std::size_t index) { return m_page.Items()[index]; }
    CFrameBase& Frame(std::size_t index) { return host::FrameOf(Item(index)); }
    CBoundingBox Extent(std::size_t index) const;
    host::RasterStore& Rasters() { return *m_rasters; }

    /// Files are read in processes of their own, and a disk or a decoder may be slow.
    /// @param watch called a few times a second while one takes long, and with 1 at the
    /// end; returning false cancels the reading
    void WatchReading(host::Progress watch) { m_watch = std::move(watch); }
    /// The progress to hand to whatever reads files for the page.
    host::Progress Reading() {
        return [this](double part) { return !m_watch || m_watch(part); };
    }

    /// Replaces the page by another, whose rasters are open in the store, or missing (see
    /// OpenOrHatch); it counts as saved.
    /// @param remarks what could not be done as asked, one line each
    void Replace(host::Page page, std::unique_ptr<host::RasterStore> rasters,
                 std::vector<std::string> remarks = {});

    /// What is not as one would expect on the page, one line each.
    std::vector<std::string> Remarks() const;

    /// The selected items; after a command, those it changed.
    const Indices& Selection() const { return m_history.Current().selection; }
    void Select(Indices selection);
    /// Keeps the next command separate when undoing, even if it is like the last.
    void EndMerging() { m_history.EndMerging(); }

    /// One command: changes items, opens the files that they name, and commits.
    /// @param merge see History::Push
    void ChangeItems(const Indices& items, const std::string& label,
                     const std::function<void(host::PageItem&)>& change,
                     const std::string& merge = {});
    /// Makes the changes a command, if there are any. Scale bars and arrows of the map
    /// then follow it (see host::FitToMap).
    void Commit(const std::string& label, const std::string& merge = {});
    /// Restores items to their state after the last command.
    void Revert(const Indices& items);

    /// Puts an item on top and selects it.
    /// @param remarks what could not be done as asked
    void Insert(host::PageItem item, const std::string& label,
                const std::vector<std::string>& remarks = {});
    /// Removes the selected items from the page.
    void RemoveSelected();
    /// Puts copies of the selected items on top, slightly offset, and selects them.
    void DuplicateSelected();
    /// The selected items as text, one per line; empty for none.
    std::string TextOfSelected() const;
    /// Puts the items of such a text on top, slightly offset from their place, and
    /// selects them. Throws host::PageError, changing nothing, for any other text.
    void Paste(const std::string& text);
    /// @param order the item that will stand at each place
    void Rearrange(const Indices& order);
    void SetSheet(double width, double height);

    bool CanUndo() const { return m_history.CanUndo(); }
    bool CanRedo() const { return m_history.CanRedo(); }
    std::string UndoLabel() const { return m_history.UndoLabel(); }
    std::string RedoLabel() const { return m_history.RedoLabel(); }
    void Undo();
    void Redo();

    bool IsModified() const { return !m_history.IsSaved(); }
    void MarkSaved();
    /// Marks every state of the page as unsaved.
    void MarkUnsaved();

Q_SIGNALS:
    /// Items were changed, but not their number and order.
    void ItemsChanged(const page_editor::Indices& items);
    /// Items were added, removed or reordered, or the sheet has another size.
    void PageRearranged();
    /// The page was replaced by another.
    void PageReplaced();
    void SelectionChanged();
    /// What can be undone, and whether the page is saved, may have changed.
    void HistoryChanged();

private:
    Indices FitLegends();
    host::PageItem Read(const std::string& text);
    void Show(const PageState& state);
    void Announce(const PageState& before);
    void Do(PageState state, const std::string& label);
    void Append(const std::vector<host::PageItem>& items, const std::string& label,
                const std::vector<std::string>& remarks = {});

    std::unique_ptr<host::RasterStore> m_rasters;
    std::set<std::string> m_missing;  // rasters, when the page was opened
    host::Progress m_watch;
    host::Page m_page;
    History m_history;
};

}  // namespace page_editor
