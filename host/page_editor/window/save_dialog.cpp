#include "page_editor/window/save_dialog.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <optional>
#include <stdexcept>

#include "page/document/opened_page.h"
#include "page/output/output_format.h"

namespace page_editor {
namespace {

std::optional<host::OutputFormat> FormatOf(const QString& file) {
    try {
        return host::OutputFormatOf(file.toStdString());
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

bool MayReplace(QWidget& window, const QString& title, const QString& file) {
    return QMessageBox::question(
               &window, title,
               QFileInfo(file).fileName() + " already exists. Replace it?",
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace

QString AskForFile(
    QWidget& window, const QString& title, const QString& start,
    const QList<SavedKind>& kinds,
    const std::function<QString(const QString& typed, const QString& ending)>& finished,
    const std::function<QString(const QString& file)>& whyNot) {
    QStringList filters;
    for (const SavedKind& kind : kinds) {
        filters.append(kind.text);
    }
    const QFileInfo proposed(start);
    QFileDialog dialog(&window, title, proposed.path());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters(filters);
    dialog.selectFile(proposed.fileName());
    while (dialog.exec() == QDialog::Accepted) {
        const qsizetype kind = filters.indexOf(dialog.selectedNameFilter());
        QString file = finished(dialog.selectedFiles().constFirst(),
                                kinds[kind < 0 ? 0 : kind].ending);
        const QString why = whyNot(file);
        if (!why.isEmpty()) {
            QMessageBox::warning(&window, title, why);
        } else if (!QFileInfo::exists(file) || MayReplace(window, title, file)) {
            return file;
        }
    }
    return {};
}

QString PageFileName(const QString& typed) {
    return host::IsPageFile(typed.toStdString()) ? typed : typed + ".json";
}

QString ExportFileName(const QString& typed, const QString& ending) {
    const std::optional<host::OutputFormat> format = FormatOf(typed);
    if (!format) {
        return typed + (ending.isEmpty() ? ".png" : ending);
    }
    const bool isAsChosen = ending.isEmpty() || format == FormatOf("page" + ending);
    return isAsChosen ? typed : typed.left(typed.lastIndexOf('.')) + ending;
}

}  // namespace page_editor
