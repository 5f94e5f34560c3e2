#include "page_editor/window/waiting.h"

#include <QCoreApplication>
#include <limits>

namespace page_editor {

Waiting::Waiting(const QString& what, int delay, QWidget& window)
    : m_dialog(what, "Cancel", 0, 100, &window), m_delay(delay) {
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setAutoClose(false);
    m_dialog.setMinimumDuration(std::numeric_limits<int>::max());  // shown by Show
    m_clock.start();
}

bool Waiting::Show(double part) {
    if (m_clock.elapsed() >= m_delay) {
        m_dialog.show();
        m_dialog.setValue(static_cast<int>(part * 100.0));
        QCoreApplication::processEvents();
    }
    return !m_dialog.wasCanceled();
}

}  // namespace page_editor
