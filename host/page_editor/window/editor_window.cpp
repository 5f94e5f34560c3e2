#include "page_editor/window/editor_window.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QInputDialog>
#include <QShortcut>
#include <QStatusBar>
#include <QVBoxLayout>
#include <exception>
#include <initializer_list>
#include <numeric>
#include <stdexcept>
#include <utility>

#include "page/document/item_type.h"
#include "page/document/page_language.h"
#include "page/paper.h"
#include "page_editor/editing/new_item.h"
#include "page_editor/editing/property_change.h"
#include "page_editor/window/actions.h"
#include "system/errors.h"
#include "system/one_line.h"

namespace page_editor {
namespace {

constexpr int kPanelWidth = 300;
constexpr int kTold = 8000;             // milliseconds
constexpr int kReadingPatience = 2000;  // milliseconds

Indices Everything(const PageDocument& document) {
    Indices all(document.Count());
    std::iota(all.begin(), all.end(), 0);
    return all;
}

}  // namespace

EditorWindow::EditorWindow(const QString& recovery)
    : m_canvas(new PageCanvas(m_document)),
      m_panel(new PropertyPanel(m_document)),
      m_files(new FileCommands(m_document, *this)),
      m_autosave(new Autosave(m_document, *m_files, recovery)),
      m_properties(new QDockWidget("Properties", this)),
      m_failures(new MessageBar(MessageBar::Kind::Failure, this)),
      m_undrawn(new MessageBar(MessageBar::Kind::Failure, this)),
      m_remarks(new MessageBar(MessageBar::Kind::Remark, this)) {
    auto* const middle = new QWidget(this);
    auto* const column = new QVBoxLayout(middle);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{m_failures, m_undrawn, m_remarks, m_canvas}) {
        column->addWidget(widget);
    }
    setCentralWidget(middle);
    m_properties->setObjectName("propertiesDock");
    m_properties->setWidget(m_panel);
    m_panel->setMinimumWidth(kPanelWidth);
    addDockWidget(Qt::RightDockWidgetArea, m_properties);
    auto* const back = new QShortcut(Qt::Key_Escape, m_panel);
    back->setContext(Qt::WidgetWithChildrenShortcut);
    connect(back, &QShortcut::activated, m_canvas, [this] {
        m_panel->ShowValues();
        m_canvas->setFocus();
    });
    AddActions(*this);
    m_document.WatchReading([this](double part) { return ShowReading(part); });

    auto* const zoom = new QLabel(this);
    statusBar()->addPermanentWidget(zoom);
    connect(m_canvas, &PageCanvas::ZoomChanged, zoom, [zoom](double value) {
        zoom->setText(QString("%1 %").arg(value * 100.0, 0, 'f', 0));
    });
    connect(m_canvas, &PageCanvas::Failed, this, &EditorWindow::ShowFailure);
    connect(m_canvas, &PageCanvas::Undrawn, m_undrawn, &MessageBar::Follow);
    // Only drawing shows whether a map has data.
    connect(m_canvas, &PageCanvas::Undrawn, this, &EditorWindow::ShowRemarks);
    connect(m_panel, &PropertyPanel::Failed, this, &EditorWindow::ShowFailure);
    connect(m_files, &FileCommands::Failed, this, [this](const QString& why) {
        ShowFailure(why);
        m_failures->Show({why});
    });
    m_autosave->setParent(this);
    connect(m_autosave, &Autosave::Failed, this,
            [this](const QString& why) { m_failures->Show({why}); });
    connect(m_files, &FileCommands::Succeeded, this, [this] { m_failures->Show({}); });
    connect(m_files, &FileCommands::Told, this,
            [this](const QString& what) { statusBar()->showMessage(what, kTold); });
    connect(m_files, &FileCommands::PathChanged, this, &EditorWindow::ShowTitle);
    connect(&m_document, &PageDocument::HistoryChanged, this, [this] {
        ShowTitle();
        ShowRemarks();
    });
    ShowTitle();
    resize(1280, 860);
    m_canvas->setFocus();
}

void EditorWindow::Insert(const QString& type, QStringList files) {
    if (files.isEmpty() && type == host::kMapType) {
        files = QFileDialog::getOpenFileNames(this, "Choose rasters, the first on top");
    } else if (files.isEmpty() && type == "picture") {
        files.append(QFileDialog::getOpenFileName(this, "Choose an image"));
    }
    const bool needsFiles = type == host::kMapType || type == "picture";
    if (needsFiles && (files.isEmpty() || files.front().isEmpty())) {
        return;
    }
    Attempt([&] {
        std::vector<std::string> paths;
        for (const QString& file : files) {
            paths.push_back(file.toStdString());
        }
        const host::ItemType* const found = host::FindItemType(type.toStdString());
        if (found == nullptr) {
            throw std::invalid_argument(type.toStdString() +
                                        ": is not a type of element");
        }
        std::vector<std::string> remarks;
        host::PageItem item = NewItem(*found, m_document.Page(), m_document.Rasters(),
                                      paths, m_document.Reading(), &remarks);
        m_document.Insert(std::move(item), std::string("Add ") + found->name, remarks);
    });
}

void EditorWindow::Undo() {
    Attempt([this] { m_document.Undo(); });
}

void EditorWindow::Redo() {
    Attempt([this] { m_document.Redo(); });
}

void EditorWindow::Duplicate() {
    Attempt([this] { m_document.DuplicateSelected(); });
}

void EditorWindow::Copy() {
    if (!m_document.Selection().empty()) {
        QGuiApplication::clipboard()->setText(
            QString::fromStdString(m_document.TextOfSelected()));
    }
}

void EditorWindow::Cut() {
    Copy();
    m_document.RemoveSelected();
}

void EditorWindow::Paste() {
    const std::string text = QGuiApplication::clipboard()->text().toStdString();
    try {
        m_document.Paste(text);
    } catch (const std::exception& error) {
        ShowFailure(QString("the clipboard: %1")
                        .arg(QString::fromStdString(host::LineFor(error))));
    }
}

void EditorWindow::Align(AlignTo to) {
    const std::vector<host::Box> boxes = SelectedBoxes();
    if (boxes.empty()) {
        return;
    }
    const host::Page& page = m_document.Page();
    const host::Box sheet = {0.0, 0.0, page.Width(), page.Height()};
    MoveSelectedBy(AlignOffsets(boxes, to, boxes.size() == 1 ? sheet : Around(boxes)),
                   "Align");
}

void EditorWindow::Distribute(Direction direction) {
    MoveSelectedBy(DistributeOffsets(SelectedBoxes(), direction), "Distribute");
}

void EditorWindow::Reorder(Order order) {
    m_document.Rearrange(Reordered(m_document.Count(), m_document.Selection(), order));
}

void EditorWindow::TurnSelected() {
    Attempt([this] {
        m_document.ChangeItems(
            m_document.Selection(), "Rotate",
            [this](host::PageItem& item) { TurnByQuarter(item, m_document.Rasters()); });
    });
}

void EditorWindow::SetLanguage(const host::Language& language) {
    Attempt([this, &language] {
        m_document.ChangeItems(
            Everything(m_document), "Language", [this, &language](host::PageItem& item) {
                for (const auto& [property, value] : host::WordsIn(language, item)) {
                    SetProperty(item, *property, value, m_document.Rasters(),
                                m_document.Reading());
                }
            });
    });
}

void EditorWindow::SelectAll() { m_document.Select(Everything(m_document)); }

void EditorWindow::EditProperties() {
    m_properties->show();
    m_panel->FocusFirst();
}

void EditorWindow::SetUpSheet() {
    bool isGiven = false;
    const QString paper = QInputDialog::getText(
        this, "Sheet", QString::fromStdString(host::PaperNames() + ", or millimetres:"),
        QLineEdit::Normal, "297x210", &isGiven);
    if (isGiven) {
        SetSheet(paper);
    }
}

bool EditorWindow::SetSheet(const QString& paper) {
    host::PaperSize size;
    if (!host::ParsePaperSize(paper.trimmed().toStdString(), size)) {
        ShowFailure(paper +
                    ": is not a sheet size: give a name, or width and height from 20 to "
                    "5000 mm, as 297x210");
        return false;
    }
    m_document.SetSheet(size.width, size.height);
    return true;
}

void EditorWindow::closeEvent(QCloseEvent* event) {
    m_panel->FinishTyping();
    if (m_files->MayDiscard()) {
        m_autosave->Forget();
        event->accept();
    } else {
        event->ignore();
    }
}

void EditorWindow::ShowTitle() {
    const QString name =
        m_files->Path().isEmpty() ? "New page" : QFileInfo(m_files->Path()).fileName();
    setWindowTitle(name + "[*] – Page editor");
    setWindowModified(m_document.IsModified());
}

void EditorWindow::ShowFailure(const QString& why) {
    m_lastFailure = why;
    statusBar()->showMessage(why);
}

void EditorWindow::ShowRemarks() {
    QStringList remarks;
    for (const std::string& remark : m_document.Remarks()) {
        remarks.append(QString::fromStdString(host::OneLine(remark)));
    }
    m_remarks->Follow(remarks);
}

/// Nothing else is done until the file is read or the reading is cancelled. Meanwhile the
/// window may have to be drawn, with a map that has to be read: that comes back here, and
/// may end first.
bool EditorWindow::ShowReading(double part) {
    if (part >= 1.0) {
        m_waiting.reset();
        statusBar()->clearMessage();
        return true;
    }
    if (m_waiting == nullptr) {
        m_waiting = std::make_shared<Waiting>("Reading files", kReadingPatience, *this);
    }
    const std::shared_ptr<Waiting> waiting = m_waiting;
    statusBar()->showMessage(QString("Reading files: %1 %").arg(part * 100.0, 0, 'f', 0));
    statusBar()->repaint();
    return waiting->Show(part);
}

void EditorWindow::Attempt(const std::function<void()>& step) {
    try {
        step();
    } catch (const std::exception& error) {
        ShowFailure(QString::fromStdString(host::LineFor(error)));
    }
}

std::vector<host::Box> EditorWindow::SelectedBoxes() const {
    std::vector<host::Box> boxes;
    for (const std::size_t item : m_document.Selection()) {
        boxes.push_back(host::BoxOf(m_document.Extent(item)));
    }
    return boxes;
}

void EditorWindow::MoveSelectedBy(const std::vector<CPoint2D>& offsets,
                                  const std::string& label) {
    Attempt([&] {
        const Indices& selection = m_document.Selection();
        for (std::size_t i = 0; i < selection.size(); ++i) {
            m_document.Frame(selection[i]).SetOffset(offsets[i].x, offsets[i].y);
        }
        m_document.Commit(label);
    });
}

}  // namespace page_editor
