#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

#include "page_editor/editing/page_document.h"
#include "page_editor/editing/recovery.h"
#include "page_editor/window/file_commands.h"

namespace page_editor {

class EditorWindow;

/// Keeps the work of a window for recovery, a moment after each change, as long as it is
/// not saved.
class Autosave : public QObject {
    Q_OBJECT
public:
    /// @param document, files outlive this
    Autosave(PageDocument& document, FileCommands& files, const QString& folder);

    /// The window ends, and nothing of its work is wanted any more.
    void Forget();

    /// Shows lost work in the window of this, in place of its page, and goes on keeping
    /// it there.
    /// @return whether it could be opened; it stays lost otherwise
    bool Recover(std::unique_ptr<Recovery> lost);

Q_SIGNALS:
    /// The work cannot be kept; told once.
    void Failed(const QString& why);

private:
    void Follow();
    void Keep();

    PageDocument& m_document;
    FileCommands& m_files;
    std::unique_ptr<Recovery> m_recovery;
    QTimer m_soon;
    bool m_isTold = false;
};

/// Offers the work that was lost when windows ended without their leave: it comes back in
/// this window, where that has no work of its own or the same file, or in a new one.
void OfferLostWork(EditorWindow& window, const QString& folder);

}  // namespace page_editor
