#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

#include "page_editor/editing/page_document.h"
#include "page_editor/editing/recovery.h"
#include "page_editor/window/file_commands.h"

namespace page_editor {

class EditorWindow;

/// Keeps a window's unsaved work for recovery, a moment after each change.
class Autosave : public QObject {
    Q_OBJECT
public:
    /// @param document, files outlive this
    Autosave(PageDocument& document, FileCommands& files, const QString& folder);

    /// The window closes, and its work is not wanted any more.
    void Forget();

    /// Shows lost work in this window, in place of its page, and goes on keeping it
    /// there.
    /// @return whether it could be opened; otherwise it stays lost
    bool Recover(std::unique_ptr<Recovery> lost);

Q_SIGNALS:
    /// The work cannot be kept; emitted once.
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

/// Offers the work lost when windows ended unexpectedly: it is restored in this window,
/// if that has no work of its own or the same file, or in a new one.
void OfferLostWork(EditorWindow& window, const QString& folder);

}  // namespace page_editor
