#include "page_editor/window/file_commands.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <exception>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "page/paper.h"
#include "page_editor/editing/page_export.h"
#include "page_editor/editing/page_files.h"
#include "page_editor/window/recent_files.h"
#include "page_editor/window/waiting.h"
#include "system/errors.h"
#include "system/one_line.h"

namespace page_editor {
namespace {

constexpr const char* kPageFilter = "Page files (*.json)";
constexpr const char* kOpenFilter =
    "Pages and rasters (*.json *.tif *.tiff *.img *.vrt *.png *.jpg);;All files (*)";
constexpr const char* kImageFilter =
    "PNG (*.png);;PDF (*.pdf);;PostScript (*.ps);;JPEG (*.jpg);;TIFF (*.tif);;"
    "BMP (*.bmp)";
constexpr double kPrintDpi = 300.0;
constexpr double kLeastDpi = 10.0;
constexpr double kMostDpi = 2400.0;
constexpr int kExportPatience = 500;  // milliseconds

/// While it lives the pointer says that something takes time.
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

QString WithEnding(const QString& path, const QString& ending) {
    return QFileInfo(path).suffix().isEmpty() ? path + ending : path;
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
        SetPath({});
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

bool FileCommands::OpenFiles(const QStringList& paths) {
    const QString first = paths.front();
    const bool isPage = host::IsPageFile(first.toStdString());
    const bool isOpen = Attempt([&] {
        const WaitCursor waiting;
        host::OpenedPage opened =
            isPage ? OpenPageFile(
                         first.toStdString(),
                         [this](const std::string& what) { return MayRead(what); },
                         m_document.Reading())
                   : LayOutRasters(Standard(paths), m_document.Reading());
        m_document.Replace(std::move(opened.page), std::move(opened.rasters));
        for (const std::string& remark : opened.remarks) {
            Q_EMIT Told(QString::fromStdString(remark));
        }
    });
    if (isOpen) {
        SetPath(isPage ? first : QString());
    } else if (isPage && !QFileInfo::exists(first)) {
        RemoveRecentFile(first);
    }
    return isOpen;
}

bool FileCommands::MayRead(const std::string& what) {
    QMessageBox box(QMessageBox::Warning, "Files of others",
                    "This page has more read than the rasters and pictures beside it:",
                    QMessageBox::Yes | QMessageBox::No, &m_window);
    box.setInformativeText(QString::fromStdString(host::OneLine(what)) +
                           "\n\nAllow it to have anything read? Say no to a page that "
                           "you do not trust.");
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

bool FileCommands::Save() { return m_path.isEmpty() ? SaveAs() : SaveTo(m_path); }

bool FileCommands::SaveAs() {
    const QString path =
        QFileDialog::getSaveFileName(&m_window, "Save the page", m_path, kPageFilter);
    return !path.isEmpty() && SaveTo(WithEnding(path, ".json"));
}

bool FileCommands::SaveTo(const QString& path) {
    return Attempt([&] {
        host::SavePageFile(m_document.Page(), path.toStdString());
        m_document.MarkSaved();
        SetPath(path);
        Q_EMIT Told("Saved " + path);
    });
}

void FileCommands::Export() {
    const QString path =
        QFileDialog::getSaveFileName(&m_window, "Export the page", {}, kImageFilter);
    if (path.isEmpty()) {
        return;
    }
    bool isGiven = false;
    const double dpi =
        QInputDialog::getDouble(&m_window, "Resolution", "Pixels an inch:", kPrintDpi,
                                kLeastDpi, kMostDpi, 1, &isGiven);
    if (isGiven) {
        ExportTo(WithEnding(path, ".png"), dpi);
    }
}

bool FileCommands::ExportTo(const QString& path, double dpi) {
    return Attempt([&] {
        Waiting waiting("Drawing " + QFileInfo(path).fileName(), kExportPatience,
                        m_window);
        ExportPage(m_document.Page(), m_document.Rasters(), path.toStdString(), dpi,
                   m_path.toStdString(),
                   [&waiting](double part) { return waiting.Show(part); });
        Q_EMIT Told("Exported " + path);
    });
}

bool FileCommands::Attempt(const std::function<void()>& step) {
    try {
        step();
        return true;
    } catch (const std::exception& error) {
        Q_EMIT Failed(QString::fromStdString(host::LineFor(error)));
        return false;
    }
}

void FileCommands::SetPath(const QString& path) {
    m_path = path;
    if (!path.isEmpty()) {
        AddRecentFile(path);
    }
    Q_EMIT PathChanged();
}

}  // namespace page_editor
