#include "page_editor/panel/lines_field.h"

#include <QEvent>
#include <QVBoxLayout>

namespace page_editor {
namespace {

constexpr int kLinesHeight = 64;

}  // namespace

LinesField::LinesField(QWidget* parent)
    : PropertyField(parent), m_lines(new QPlainTextEdit(this)) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_lines);
    m_lines->setFixedHeight(kLinesHeight);
    m_lines->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_lines->setTabChangesFocus(true);
    m_lines->installEventFilter(this);
}

void LinesField::Show(const host::PropertyValue& value) {
    ShowText(QString::fromStdString(std::get<std::string>(value)));
}

void LinesField::ShowText(const QString& text) {
    if (m_lines->toPlainText() != text) {
        m_lines->setPlainText(text);
    }
    m_lines->document()->setModified(false);
}

bool LinesField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        FinishTyping();
    }
    return PropertyField::eventFilter(watched, event);
}

void LinesField::FinishTyping() {
    if (m_lines->document()->isModified()) {
        m_lines->document()->setModified(false);
        TellText(m_lines->toPlainText());
    }
}

}  // namespace page_editor
