#include "page_editor/panel/number_field.h"

#include <QKeyEvent>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace page_editor {

QString NumberText(double value, bool isFloat) {
    if (!std::isfinite(value)) {
        return {};
    }
    char text[32];
    const std::to_chars_result end =
        isFloat
            ? std::to_chars(std::begin(text), std::end(text), static_cast<float>(value))
            : std::to_chars(std::begin(text), std::end(text), value);
    return QString::fromLatin1(text, end.ptr - text);
}

std::optional<double> NumberIn(const QString& text) {
    const std::string trimmed = text.trimmed().toStdString();
    double value = 0.0;
    const char* const end = trimmed.data() + trimmed.size();
    const std::from_chars_result read = std::from_chars(trimmed.data(), end, value);
    return read.ec == std::errc() && read.ptr == end && std::isfinite(value)
               ? std::optional(value)
               : std::nullopt;
}

NumberField::NumberField(const host::Property& property, QWidget* parent)
    : PropertyField(parent),
      m_line(new QLineEdit(this)),
      m_isFloat(property.isFloat),
      m_mayBeUnknown(property.kind == host::PropertyKind::Ratio) {
    Fill(m_line);
    m_line->installEventFilter(this);
    if (m_mayBeUnknown) {
        m_line->setPlaceholderText("unknown");
    }
    connect(m_line, &QLineEdit::editingFinished, this, [this] {
        if (m_line->isModified()) {
            TellText();
        }
    });
}

void NumberField::Show(const host::PropertyValue& value) {
    m_line->setText(NumberText(std::get<double>(value), m_isFloat));
    m_line->setModified(false);
}

bool NumberField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            Step(key == Qt::Key_Up ? 1.0 : -1.0);
            return true;
        }
    }
    return PropertyField::eventFilter(watched, event);
}

void NumberField::TellText() {
    m_line->setModified(false);
    const std::optional<double> value = NumberIn(m_line->text());
    if (value) {
        Tell(*value);
    } else if (m_mayBeUnknown && m_line->text().trimmed().isEmpty()) {
        Tell(std::numeric_limits<double>::quiet_NaN());
    } else {
        Refuse("must be a number");
    }
}

void NumberField::Step(double by) {
    if (const std::optional<double> value = NumberIn(m_line->text())) {
        Tell(*value + by);
    }
}

}  // namespace page_editor
