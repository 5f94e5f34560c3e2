#include "page_editor/window/autosave.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <exception>
#include <utility>

#include "page_editor/window/editor_window.h"
#include "system/errors.h"

namespace page_editor {
namespace {

constexpr int kSoon = 2000;  // milliseconds

enum class Wanted { Back, Gone, Later };

Wanted Ask(const Recovery& lost, QWidget& window) {
    const QString name = lost.File().isEmpty() ? QString("A page without a file")
                                               : QFileInfo(lost.File()).fileName();
    QMessageBox box(QMessageBox::Question, "Unsaved work",
                    name + " was being worked on when the editor ended, last at " +
                        QLocale().toString(lost.KeptAt(), QLocale::ShortFormat) + ".",
                    QMessageBox::NoButton, &window);
    box.setInformativeText(lost.File().isEmpty()
                               ? "The work is not saved. Recover it?"
                               : "The work is not saved. Recover it? The file stays as "
                                 "it is until you save.\n" +
                                     lost.File());
    box.setTextFormat(Qt::PlainText);
    QPushButton* const back = box.addButton("&Recover", QMessageBox::AcceptRole);
    const QPushButton* const gone =
        box.addButton("&Discard", QMessageBox::DestructiveRole);
    QPushButton* const later = box.addButton("&Later", QMessageBox::RejectRole);
    box.setDefaultButton(back);
    box.setEscapeButton(later);
    box.exec();
    return box.clickedButton() == back   ? Wanted::Back
           : box.clickedButton() == gone ? Wanted::Gone
                                         : Wanted::Later;
}

bool IsFor(EditorWindow& window, const Recovery& lost) {
    const QString& path = window.Files().Path();
    const bool isEmpty = path.isEmpty() && window.Document().Count() == 0;
    const bool isSame =
        !path.isEmpty() && QFileInfo(path).absoluteFilePath() == lost.File();
    return !window.Document().IsModified() && (isEmpty || isSame);
}

}  // namespace

Autosave::Autosave(PageDocument& document, FileCommands& files, const QString& folder)
    : m_document(document),
      m_files(files),
      m_recovery(std::make_unique<Recovery>(folder)) {
    m_soon.setSingleShot(true);
    m_soon.setInterval(kSoon);
    connect(&m_soon, &QTimer::timeout, this, &Autosave::Keep);
    connect(&document, &PageDocument::HistoryChanged, this, &Autosave::Follow);
}

void Autosave::Follow() {
    if (!m_document.IsModified()) {
        Forget();
    } else if (!m_soon.isActive()) {  // so that continuous work is kept too
        m_soon.start();
    }
}

void Autosave::Forget() {
    m_soon.stop();
    m_recovery->Forget();
}

/// While a dialog shows that files are being read, the page may be in the middle of a
/// change.
void Autosave::Keep() {
    if (QApplication::activeModalWidget() != nullptr) {
        m_soon.start();
        return;
    }
    const QString& path = m_files.Path();
    try {
        m_recovery->Keep(m_document.Page(),
                         path.isEmpty() ? path : QFileInfo(path).absoluteFilePath(),
                         m_files.Stamp());
        m_isTold = false;
    } catch (const std::exception& error) {
        if (!std::exchange(m_isTold, true)) {
            Q_EMIT Failed("unsaved work is not kept for recovery: " +
                          QString::fromStdString(host::LineFor(error)));
        }
    }
}

bool Autosave::Recover(std::unique_ptr<Recovery> lost) {
    const bool isOpen = m_files.OpenLost(*lost);
    if (isOpen) {
        m_recovery->Forget();
        m_recovery = std::move(lost);
    }
    return isOpen;
}

void OfferLostWork(EditorWindow& window, const QString& folder) {
    for (std::unique_ptr<Recovery>& lost : Recovery::Lost(folder)) {
        const Wanted wanted = Ask(*lost, window);
        if (wanted == Wanted::Gone) {
            lost->Forget();
        } else if (wanted == Wanted::Back) {
            EditorWindow* shown = &window;
            if (!IsFor(window, *lost)) {
                shown = new EditorWindow(folder);
                shown->setAttribute(Qt::WA_DeleteOnClose);
                shown->show();
            }
            shown->Saving().Recover(std::move(lost));
        }
    }
}

}  // namespace page_editor
