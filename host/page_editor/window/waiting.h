#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>
#include <QString>
#include <QWidget>

namespace page_editor {

/// A progress dialog with a Cancel button, shown once something takes long. The window
/// accepts no other commands meanwhile.
class Waiting {
public:
    /// @param what what the user waits for, in a few words
    /// @param delay milliseconds from now until the dialog is shown
    Waiting(const QString& what, int delay, QWidget& window);

    /// @param part from 0 to 1; call it several times a second, so that the dialog
    /// responds
    /// @return whether to continue
    bool Show(double part);

private:
    QProgressDialog m_dialog;
    int m_delay;
    QElapsedTimer m_clock;
};

}  // namespace page_editor
