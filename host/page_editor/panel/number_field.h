#pragma once

#include <QLineEdit>
#include <optional>

#include "page_editor/panel/property_field.h"

namespace page_editor {

/// A number as text that reads back exactly, in any locale.
QString NumberText(double value);

/// A number as text with six digits, or with all its integer digits: the rest is of no
/// use on screen, and is kept behind it.
QString ShortNumberText(double value);

/// The finite number that a whole text stands for.
std::optional<double> NumberIn(const QString& text);

/// A number to type, shown with six digits; up and down change it by one. An unknown
/// ratio is empty.
class NumberField : public PropertyField {
public:
    NumberField(const host::Property& property, QWidget* parent);

    void Show(const host::PropertyValue& value) override;
    void FinishTyping() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Step(double by);

    std::optional<double> ValueOfText() const;

    QLineEdit* m_line;
    double m_value = 0.0;  // as last shown
    bool m_mayBeUnknown;
};

}  // namespace page_editor
