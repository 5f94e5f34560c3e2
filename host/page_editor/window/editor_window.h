#pragma once

#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QStringList>
#include <functional>
#include <memory>

#include "page_editor/canvas/page_canvas.h"
#include "page_editor/editing/arrange.h"
#include "page_editor/editing/page_document.h"
#include "page_editor/panel/property_panel.h"
#include "page_editor/window/autosave.h"
#include "page_editor/window/file_commands.h"
#include "page_editor/window/message_bar.h"
#include "page_editor/window/waiting.h"

namespace page_editor {

/// The editor's window: the page in the middle, the properties of what is selected beside
/// it, every command in the menus. GDI+ must have been started.
class EditorWindow : public QMainWindow {
    Q_OBJECT
public:
    /// @param recovery the folder where unsaved work is kept
    explicit EditorWindow(const QString& recovery = Recovery::Folder());

    PageDocument& Document() { return m_document; }
    PageCanvas& Canvas() { return *m_canvas; }
    PropertyPanel& Panel() { return *m_panel; }
    FileCommands& Files() { return *m_files; }
    Autosave& Saving() { return *m_autosave; }

    /// Puts a new element of a type on the page; asks for files where none are given and
    /// the type needs some.
    void Insert(const QString& type, QStringList files = {});
    void Undo();
    void Redo();
    void Duplicate();
    /// What is selected goes to the clipboard as text, and comes from there, also into
    /// another window.
    void Copy();
    void Cut();
    void Paste();
    void Align(AlignTo to);
    void Distribute(Direction direction);
    void Reorder(Order order);
    void TurnSelected();
    /// Has the legends and scale bars speak it, but for what somebody wrote.
    void SetLanguage(const host::Language& language);
    void SelectAll();
    /// Puts the keyboard into the properties; Escape brings it back to the page.
    void EditProperties();
    /// Asks for the size of the sheet.
    void SetUpSheet();
    /// @return false, and nothing is changed, when the text is no sheet
    bool SetSheet(const QString& paper);

    /// What is shown of files that could not be opened, saved or exported, of elements
    /// that are not drawn whole, and of what on the page is not as one would expect.
    MessageBar& Failures() { return *m_failures; }
    MessageBar& Undrawn() { return *m_undrawn; }
    MessageBar& Remarks() { return *m_remarks; }

    /// The last error message shown.
    const QString& LastFailure() const { return m_lastFailure; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void ShowTitle();
    void ShowFailure(const QString& why);
    void ShowRemarks();
    bool ShowReading(double part);
    void Attempt(const std::function<void()>& step);
    std::vector<host::Box> SelectedBoxes() const;
    void MoveSelectedBy(const std::vector<CPoint2D>& offsets, const std::string& label);

    PageDocument m_document;
    PageCanvas* m_canvas;
    PropertyPanel* m_panel;
    FileCommands* m_files;
    Autosave* m_autosave;
    QDockWidget* m_properties;
    MessageBar* m_failures;
    MessageBar* m_undrawn;
    MessageBar* m_remarks;
    std::shared_ptr<Waiting> m_waiting;
    QString m_lastFailure;
};

}  // namespace page_editor
