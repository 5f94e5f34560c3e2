#include "page_editor/panel/number_field.h"

#include <QKeyEvent>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace page_editor {

namespace {

constexpr int kDigits = 6;
constexpr double kLarge = 1.0e5;

/// @param form for std::to_chars; none for the shortest text that reads back exactly
template <typename... Form>
QString TextOf(double value, Form... form) {
    if (!std::isfinite(value)) {
        return {};
    }
    char text[32];
    const std::to_chars_result end =
        std::to_chars(std::begin(text), std::end(text), value, form...);
    return QString::fromLatin1(text, end.ptr - text);
}

}  // namespace

QString NumberText(double value) { return TextOf(value); }

QString ShortNumberText(double value) {
    return std::fabs(value) < kLarge ? TextOf(value, std::chars_format::general, kDigits)
                                     : TextOf(value);
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
      m_mayBeUnknown(property.kind == host::PropertyKind::Ratio) {
    Fill(m_line);
    m_line->installEventFilter(this);
    if (m_mayBeUnknown) {
        m_line->setPlaceholderText("unknown");
    }
    FinishWith(m_line);
}

void NumberField::Show(const host::PropertyValue& value) {
    m_value = std::get<double>(value);
    m_line->setText(ShortNumberText(m_value));
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

void NumberField::FinishTyping() {
    if (!m_line->isModified()) {
        return;
    }
    const std::optional<double> value = ValueOfText();
    m_line->setModified(false);
    if (value) {
        Tell(*value);
    } else if (m_mayBeUnknown && m_line->text().trimmed().isEmpty()) {
        Tell(std::numeric_limits<double>::quiet_NaN());
    } else {
        Refuse("must be a number");
    }
}

void NumberField::Step(double by) {
    if (const std::optional<double> value = ValueOfText()) {
        Tell(*value + by);
    }
}

/// Unchanged text stands for the exact number, which has more digits.
std::optional<double> NumberField::ValueOfText() const {
    return m_line->isModified() || m_line->text().isEmpty() ? NumberIn(m_line->text())
                                                            : std::optional(m_value);
}

}  // namespace page_editor
