#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>

namespace page_editor {

/// A kind of file to save as, in a dialog's list of kinds.
struct SavedKind {
    QString text;    ///< "PDF (*.pdf)"
    QString ending;  ///< ".pdf"; empty for what the name's ending says
};

/// Asks for the name of a file to write. The name is finished before anything is asked
/// about it: a file of that name is only replaced after a question, and one that must
/// stay is refused.
/// @param start what is proposed
/// @param kinds at least one
/// @param finished the name as it will be, of what was typed and the ending chosen
/// @param whyNot why a file must stay, in one line; empty when it may be replaced
/// @return empty when none is wanted
QString AskForFile(
    QWidget& window, const QString& title, const QString& start,
    const QList<SavedKind>& kinds,
    const std::function<QString(const QString& typed, const QString& ending)>& finished,
    const std::function<QString(const QString& file)>& whyNot);

/// A page file's name, which ends in .json: "plan.v2" is "plan.v2.json".
QString PageFileName(const QString& typed);

/// The name of a file that a page is drawn into. The ending that was chosen decides its
/// format: "plan.png" as ".pdf" is "plan.pdf", and "plan.v2" is "plan.v2.pdf". With none
/// chosen the typed one does, and ".png" where it is no format's.
QString ExportFileName(const QString& typed, const QString& ending);

}  // namespace page_editor
