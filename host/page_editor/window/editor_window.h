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

/// The editor's window: the page in the middle, the properties of the selection beside
/// it, every command in the menus. GDI+ must be running.
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

    /// Puts a new element of a type on the page; asks for files if the type needs some
    /// and none are given.
    void Insert(const QString& type, QStringList files = {});
    void Undo();
    void Redo();
    void Duplicate();
    /// Copy puts the selection on the clipboard as text, and Paste takes it from there,
    /// also from another window.
    void Copy();
    void Cut();
    void Paste();
    void Align(AlignTo to);
    void Distribute(Direction direction);
    void Reorder(Order order);
    void TurnSelected();
    /// Sets the language of the legends and scale bars, except for words that the user
    /// wrote.
    void SetLanguage(const host::Language& language);
    void SelectAll();
    /// Moves the keyboard focus to the properties; Escape returns it to the page.
    void EditProperties();
    /// Asks for the size of the sheet.
    void SetUpSheet();
    /// @return false, changing nothing, when the text is not a sheet
    bool SetSheet(const QString& paper);

    /// Shows files that could not be opened, saved or exported, elements that are not
    /// drawn completely, and anything unexpected on the page.
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
