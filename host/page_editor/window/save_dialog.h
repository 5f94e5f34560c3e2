#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>

namespace page_editor {

/// A file format in the list of a save dialog.
struct SavedKind {
    QString text;    ///< "PDF (*.pdf)"
    QString ending;  ///< ".pdf"; empty to go by the name's ending
};

/// Asks for the name of a file to write. The name is completed before any question about
/// it: an existing file is replaced only after confirmation, and one that must stay is
/// refused.
/// @param start the suggested name
/// @param kinds at least one
/// @param finished the final name, from what was typed and the ending chosen
/// @param whyNot why a file must stay, on one line; empty when it may be replaced
/// @return empty when cancelled
QString AskForFile(
    QWidget& window, const QString& title, const QString& start,
    const QList<SavedKind>& kinds,
    const std::function<QString(const QString& typed, const QString& ending)>& finished,
    const std::function<QString(const QString& file)>& whyNot);

/// A page file's name, which ends in .json: "plan.v2" is "plan.v2.json".
QString PageFileName(const QString& typed);

/// The name of a file that a page is drawn into. The ending that was chosen decides its
/// format: "plan.png" as ".pdf" is "plan.pdf", and "plan.v2" is "plan.v2.pdf". With none
/// chosen the typed ending does, and ".png" where that is not a format's.
QString ExportFileName(const QString& typed, const QString& ending);

}  // namespace page_editor
