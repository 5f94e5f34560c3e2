#include "page_editor/window/file_commands.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "page/output/output_format.h"
#include "page/paper.h"
#include "page_editor/editing/file_stamp.h"
#include "page_editor/editing/page_export.h"
#include "page_editor/editing/page_files.h"
#include "page_editor/window/export_dialog.h"
#include "page_editor/window/recent_files.h"
#include "page_editor/window/save_dialog.h"
#include "page_editor/window/waiting.h"
#include "system/errors.h"
#include "system/one_line.h"

namespace page_editor {
namespace {

constexpr const char* kOpenFilter =
    "Pages and rasters (*.json *.tif *.tiff *.img *.vrt *.png *.jpg);;All files (*)";
const SavedKind kPage = {"Page files (*.json)", ".json"};
constexpr int kExportPatience = 500;  // milliseconds

/// By the ending of the name, then each kind by itself.
QList<SavedKind> ExportKinds() {
    QList<SavedKind> kinds = {{}};
    QStringList all;
    for (const host::OutputFormatFacts& facts : host::OutputFormats()) {
        QStringList patterns;
        for (const char* const ending : facts.endings) {
            patterns.append(QString("*") + ending);
        }
        kinds.append({QString("%1 (%2)").arg(facts.name, patterns.join(' ')),
                      facts.endings.front()});
        all += patterns;
    }
    kinds.front().text = "By the ending (" + all.join(' ') + ")";
    return kinds;
}

/// Shows a busy pointer while it lives.
class WaitCursor {
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

std::vector<std::string> Standard(const QStringList& paths) {
    std::vector<std::string> standard;
    for (const QString& path : paths) {
        standard.push_back(path.toStdString());
    }
    return standard;
}

/// Adds a remark to what was done.
QString With(const QString& done, const std::string& remark) {
    return remark.empty() ? done : done + "; " + QString::fromStdString(remark);
}

}  // namespace

FileCommands::FileCommands(PageDocument& document, QWidget& window)
    : QObject(&window), m_document(document), m_window(window) {}

bool FileCommands::MayDiscard() {
    if (!m_document.IsModified()) {
        return true;
    }
    const QMessageBox::StandardButton answer = QMessageBox::question(
        &m_window, "Unsaved changes", "Save the changes of this page first?",
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && Save());
}

void FileCommands::New() {
    if (MayDiscard()) {
        const host::PaperSize paper;
        m_document.Replace(host::Page(paper.width, paper.height),
                           std::make_unique<host::RasterStore>());
        SetPath({}, {});
    }
}

void FileCommands::Open() {
    if (!MayDiscard()) {
        return;
    }
    const QStringList paths =
        QFileDialog::getOpenFileNames(&m_window, "Open", {}, kOpenFilter);
    if (!paths.isEmpty()) {
        OpenFiles(paths);
    }
}

bool FileCommands::OpenFiles(const QStringList& paths, bool mayAsk) {
    const QString first = paths.front();
    const bool isPage = host::IsPageFile(first.toStdString());
    const std::string stamp = isPage ? StampOf(first.toStdString()) : "";
    const bool isOpen = Show([&] {
        return isPage
                   ? OpenPageFile(
                         first.toStdString(),
                         [&](const std::string& what) { return mayAsk && MayRead(what); },
                         m_document.Reading())
                   : LayOutRasters(Standard(paths), m_document.Reading());
    });
    if (isOpen) {
        SetPath(isPage ? first : QString(), stamp);
    } else if (isPage && !QFileInfo::exists(first)) {
        RemoveRecentFile(first);
    }
    return isOpen;
}

bool FileCommands::OpenLost(const Recovery& lost) {
    const bool isOpen = Show([&] {
        return OpenPageFile(
            lost.PageFile().toStdString(), [](const std::string&) { return true; },
            m_document.Reading());
    });
    if (isOpen) {
        SetPath(lost.File(), lost.Stamp());
        m_document.MarkUnsaved();
    }
    return isOpen;
}

/// Opens a page in place of the present one.
bool FileCommands::Show(const std::function<host::OpenedPage()>& open) {
    return Attempt([&] {
        const WaitCursor waiting;
        host::OpenedPage opened = open();
        m_document.Replace(std::move(opened.page), std::move(opened.rasters),
                           std::move(opened.remarks));
    });
}

bool FileCommands::MayRead(const std::string& what) {
    QMessageBox box(
        QMessageBox::Warning, "Files of others",
        "This page reads more than the rasters and pictures below its folder:",
        QMessageBox::Yes | QMessageBox::No, &m_window);
    box.setInformativeText(
        QString::fromStdString(host::OneLine(what)) +
        "\n\nAllow it to read anything? Answer No for a page that you do not trust.");
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

bool FileCommands::Save() {
    if (m_path.isEmpty()) {
        return SaveAs();
    }
    const std::string now = StampOf(m_path.toStdString());
    if (now.empty() || now == m_stamp) {
        return SaveTo(m_path);
    }
    QMessageBox box(QMessageBox::Warning, "Save the page",
                    QFileInfo(m_path).fileName() +
                        " has been changed by another program or window since it was "
                        "opened or saved here.",
                    QMessageBox::Cancel, &m_window);
    box.setInformativeText("Replace its present contents?");
    const QAbstractButton* const replace =
        box.addButton("&Replace", QMessageBox::DestructiveRole);
    const QAbstractButton* const other =
        box.addButton("Save &as…", QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return (box.clickedButton() == replace && SaveTo(m_path)) ||
           (box.clickedButton() == other && SaveAs());
}

bool FileCommands::SaveAs() {
    const QString path = AskForFile(
        m_window, "Save the page", m_path, {kPage},
        [](const QString& typed, const QString&) { return PageFileName(typed); },
        [this](const QString& file) { return WhyNot(file); });
    return !path.isEmpty() && SaveTo(path);
}

bool FileCommands::SaveTo(const QString& path) {
    return Attempt([&] {
        const std::string file = path.toStdString();
        host::Naming(file, [&] {
            host::CheckReplacesNoInput(file, m_document.Page(), m_document.Rasters());
        });
        const std::string remark = host::SavePageFile(m_document.Page(), file);
        m_document.MarkSaved();
        SetPath(path, StampOf(file));
        Q_EMIT Told(With("Saved " + path, remark));
    });
}

void FileCommands::Export() {
    const QFileInfo page(m_path);
    const QString path = AskForFile(
        m_window, "Export the page",
        m_path.isEmpty() ? QString() : page.path() + '/' + page.completeBaseName(),
        ExportKinds(), ExportFileName,
        [this](const QString& file) { return WhyNot(file); });
    if (path.isEmpty()) {
        return;
    }
    const std::optional<ExportChoices> choices =
        AskHowToExport(m_window, host::OutputFormatOf(path.toStdString()));
    if (choices) {
        ExportTo(path, choices->dpi, choices->mapImages);
    }
}

bool FileCommands::ExportTo(const QString& path, double dpi, host::MapImages mapImages) {
    return Attempt([&] {
        Waiting waiting("Drawing " + QFileInfo(path).fileName(), kExportPatience,
                        m_window);
        const std::string remark = ExportPage(
            m_document.Page(), m_document.Rasters(), path.toStdString(), dpi,
            m_path.toStdString(), [&waiting](double part) { return waiting.Show(part); },
            mapImages);
        Q_EMIT Told(With("Exported " + path, remark));
    });
}

/// Why a file must stay; empty when it may be replaced. The page's own file may be
/// replaced by saving, which its ending distinguishes from exporting.
QString FileCommands::WhyNot(const QString& file) {
    try {
        host::CheckReplacesNoInput(file.toStdString(), m_document.Page(),
                                   m_document.Rasters());
        return {};
    } catch (const std::exception& error) {
        return file + ": " + QString::fromStdString(host::LineFor(error));
    }
}

bool FileCommands::Attempt(const std::function<void()>& step) {
    try {
        step();
        Q_EMIT Succeeded();
        return true;
    } catch (const std::exception& error) {
        Q_EMIT Failed(QString::fromStdString(host::LineFor(error)));
        return false;
    }
}

void FileCommands::SetPath(const QString& path, const std::string& stamp) {
    m_path = path;
    m_stamp = stamp;
    if (!path.isEmpty()) {
        AddRecentFile(path);
    }
    Q_EMIT PathChanged();
}

}  // namespace page_editor
