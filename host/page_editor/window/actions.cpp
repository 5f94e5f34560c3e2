#include "page_editor/window/actions.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <functional>
#include <initializer_list>

#include "page/document/item_type.h"
#include "page/language.h"
#include "page_editor/window/editor_window.h"
#include "page_editor/window/recent_files.h"

namespace page_editor {
namespace {

constexpr double kZoomStep = 1.25;

/// A menu command; without a text, a separator.
struct Command {
    const char* name;
    const char* text;
    QKeySequence keys;
    std::function<void(EditorWindow&)> run;
};

using Commands = std::initializer_list<Command>;

const Command kLine = {"", "", {}, {}};

/// Cancels any drag and takes what is being typed, before anything else happens to the
/// page.
void Prepare(EditorWindow& window) {
    window.Canvas().CancelDrag();
    window.Panel().FinishTyping();
}

QAction* AddAction(EditorWindow& window, QMenu& menu, const Command& command) {
    auto* const action = menu.addAction(QString::fromUtf8(command.text));
    action->setObjectName(QString::fromUtf8(command.name));
    action->setShortcut(command.keys);
    QObject::connect(action, &QAction::triggered, &window, [&window, run = command.run] {
        Prepare(window);
        run(window);
    });
    return action;
}

QMenu& AddMenu(EditorWindow& window, const char* title, Commands commands) {
    QMenu& menu = *window.menuBar()->addMenu(QString::fromUtf8(title));
    for (const Command& command : commands) {
        if (command.run) {
            AddAction(window, menu, command);
        } else {
            menu.addSeparator();
        }
    }
    return menu;
}

void AddRecentMenu(EditorWindow& window, QMenu& file, QAction* before) {
    auto* const recent = new QMenu("Open &recent", &window);
    recent->setObjectName("recent");
    file.insertMenu(before, recent);
    QObject::connect(recent, &QMenu::aboutToShow, recent, [&window, recent] {
        recent->clear();
        for (const QString& path : RecentFiles()) {
            QAction* const action = recent->addAction(path);
            QObject::connect(action, &QAction::triggered, &window, [&window, path] {
                Prepare(window);
                if (window.Files().MayDiscard()) {
                    window.Files().OpenFiles({path});
                }
            });
        }
        recent->setEnabled(true);
    });
}

void AddFileMenu(EditorWindow& window) {
    QMenu& menu = AddMenu(
        window, "&File",
        {
            {"new", "&New", QKeySequence::New, [](EditorWindow& w) { w.Files().New(); }},
            {"open", "&Open…", QKeySequence::Open,
             [](EditorWindow& w) { w.Files().Open(); }},
            kLine,
            {"save", "&Save", QKeySequence::Save,
             [](EditorWindow& w) { w.Files().Save(); }},
            {"saveAs", "Save &as…", QKeySequence::SaveAs,
             [](EditorWindow& w) { w.Files().SaveAs(); }},
            {"export", "&Export…", QKeySequence("Ctrl+E"),
             [](EditorWindow& w) { w.Files().Export(); }},
            kLine,
            {"sheet", "S&heet…", {}, [](EditorWindow& w) { w.SetUpSheet(); }},
            kLine,
            {"quit", "&Quit", QKeySequence::Quit, [](EditorWindow& w) { w.close(); }},
        });
    AddRecentMenu(window, menu, menu.actions().at(2));
}

void AddLanguageMenu(EditorWindow& window, QMenu& edit) {
    auto* const menu = new QMenu("&Language of the page", &window);
    edit.addMenu(menu);
    for (const host::Language& language : host::Languages()) {
        const std::string name = std::string("language-") + language.code;
        AddAction(window, *menu,
                  {name.c_str(), language.name, {}, [&language](EditorWindow& w) {
                       w.SetLanguage(language);
                   }});
    }
}

void AddEditMenu(EditorWindow& window) {
    QMenu& menu = AddMenu(
        window, "&Edit",
        {
            {"undo", "&Undo", QKeySequence("Ctrl+Z"), [](EditorWindow& w) { w.Undo(); }},
            {"redo", "&Redo", QKeySequence("Ctrl+Shift+Z"),
             [](EditorWindow& w) { w.Redo(); }},
            kLine,
            {"cut", "Cu&t", QKeySequence::Cut, [](EditorWindow& w) { w.Cut(); }},
            {"copy", "&Copy", QKeySequence::Copy, [](EditorWindow& w) { w.Copy(); }},
            {"paste", "&Paste", QKeySequence::Paste, [](EditorWindow& w) { w.Paste(); }},
            {"delete", "&Delete", QKeySequence::Delete,
             [](EditorWindow& w) { w.Document().RemoveSelected(); }},
            {"duplicate", "D&uplicate", QKeySequence("Ctrl+D"),
             [](EditorWindow& w) { w.Duplicate(); }},
            {"selectAll", "Select &all", QKeySequence::SelectAll,
             [](EditorWindow& w) { w.SelectAll(); }},
            kLine,
            {"properties", "P&roperties", QKeySequence("F2"),
             [](EditorWindow& w) { w.EditProperties(); }},
        });
    AddLanguageMenu(window, menu);
}

void AddInsertMenu(EditorWindow& window) {
    QMenu& menu = *window.menuBar()->addMenu("&Add");
    for (const host::ItemType& type : host::ItemTypes()) {
        const QString name = QString::fromUtf8(type.name);
        QAction* const action = AddAction(
            window, menu,
            {type.name, type.name, {}, [name](EditorWindow& w) { w.Insert(name); }});
        QString text = name;
        text.replace('-', ' ');
        text[0] = text[0].toUpper();
        action->setText(text);
        action->setStatusTip(QString::fromUtf8(type.about));
    }
}

void AddArrangeMenu(EditorWindow& window) {
    const auto align = [](AlignTo to) { return [to](EditorWindow& w) { w.Align(to); }; };
    const auto order = [](Order to) { return [to](EditorWindow& w) { w.Reorder(to); }; };
    const auto distribute = [](Direction to) {
        return [to](EditorWindow& w) { w.Distribute(to); };
    };
    AddMenu(
        window, "A&rrange",
        {
            {"up", "&Up", QKeySequence("Ctrl+]"), order(Order::Up)},
            {"down", "&Down", QKeySequence("Ctrl+["), order(Order::Down)},
            {"toFront", "To the &front", QKeySequence("Ctrl+Shift+]"),
             order(Order::ToFront)},
            {"toBack", "To the &back", QKeySequence("Ctrl+Shift+["),
             order(Order::ToBack)},
            kLine,
            {"alignLeft", "Align &left", {}, align(AlignTo::Left)},
            {"alignCentre", "Align &centre", {}, align(AlignTo::Centre)},
            {"alignRight", "Align ri&ght", {}, align(AlignTo::Right)},
            {"alignTop", "Align &top", {}, align(AlignTo::Top)},
            {"alignMiddle", "Align &middle", {}, align(AlignTo::Middle)},
            {"alignBottom", "Align b&ottom", {}, align(AlignTo::Bottom)},
            kLine,
            {"distributeAcross", "Distribute across", {}, distribute(Direction::Across)},
            {"distributeUpwards",
             "Distribute upwards",
             {},
             distribute(Direction::Upwards)},
            kLine,
            {"rotate", "&Rotate by 90°", QKeySequence("Ctrl+R"),
             [](EditorWindow& w) { w.TurnSelected(); }},
        });
}

void AddViewMenu(EditorWindow& window) {
    const auto zoom = [](double factor) {
        return
            [factor](EditorWindow& w) { w.Canvas().SetZoom(w.Canvas().Zoom() * factor); };
    };
    AddMenu(window, "&View",
            {
                {"zoomIn", "Zoom &in", QKeySequence("Ctrl++"), zoom(kZoomStep)},
                {"zoomOut", "Zoom &out", QKeySequence("Ctrl+-"), zoom(1.0 / kZoomStep)},
                {"zoomFit", "Whole &sheet", QKeySequence("Ctrl+0"),
                 [](EditorWindow& w) { w.Canvas().ZoomToFit(); }},
                {"zoomFull", "&100 %", QKeySequence("Ctrl+1"),
                 [](EditorWindow& w) { w.Canvas().SetZoom(1.0); }},
            });
}

void AddToolBar(EditorWindow& window) {
    QToolBar& bar = *window.addToolBar("Tools");
    bar.setObjectName("tools");
    bar.setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (const char* name :
         {"new", "open", "save", "export", "", "undo", "redo", "", "delete", "duplicate",
          "rotate", "", "up", "down", "", "zoomOut", "zoomIn", "zoomFit"}) {
        auto* const action = window.findChild<QAction*>(QString::fromUtf8(name));
        if (*name == '\0') {
            bar.addSeparator();
        } else {
            bar.addAction(action);
        }
    }
}

/// Undo and redo name the commands that they affect.
void FollowHistory(EditorWindow& window) {
    auto* const undo = window.findChild<QAction*>("undo");
    auto* const redo = window.findChild<QAction*>("redo");
    const auto follow = [&window, undo, redo] {
        const PageDocument& document = window.Document();
        undo->setEnabled(document.CanUndo());
        redo->setEnabled(document.CanRedo());
        undo->setToolTip("Undo " +
                         QString::fromStdString(document.UndoLabel()).toLower());
        redo->setToolTip("Redo " +
                         QString::fromStdString(document.RedoLabel()).toLower());
    };
    QObject::connect(&window.Document(), &PageDocument::HistoryChanged, &window, follow);
    follow();
}

/// Commands on the selection are enabled when there is one.
void FollowSelection(EditorWindow& window) {
    const auto follow = [&window] {
        const std::size_t count = window.Document().Selection().size();
        for (const char* name :
             {"cut", "copy", "delete", "duplicate", "properties", "rotate", "up", "down",
              "toFront", "toBack", "alignLeft", "alignCentre", "alignRight", "alignTop",
              "alignMiddle", "alignBottom"}) {
            window.findChild<QAction*>(QString::fromUtf8(name))->setEnabled(count > 0);
        }
        for (const char* name : {"distributeAcross", "distributeUpwards"}) {
            window.findChild<QAction*>(QString::fromUtf8(name))->setEnabled(count > 2);
        }
    };
    QObject::connect(&window.Document(), &PageDocument::SelectionChanged, &window,
                     follow);
    follow();
}

}  // namespace

void AddActions(EditorWindow& window) {
    AddFileMenu(window);
    AddEditMenu(window);
    AddInsertMenu(window);
    AddArrangeMenu(window);
    AddViewMenu(window);
    AddToolBar(window);
    FollowHistory(window);
    FollowSelection(window);
}

}  // namespace page_editor
