#pragma once

#include <QLineEdit>
#include <optional>

#include "page_editor/panel/property_field.h"

namespace page_editor {

/// A number as text that is read back to the same bits, whatever the locale.
QString NumberText(double value, bool isFloat = false);

/// The finite number that a whole text is.
std::optional<double> NumberIn(const QString& text);

/// A number to type; up and down change it by one. A ratio that is unknown is empty.
class NumberField : public PropertyField {
public:
    NumberField(const host::Property& property, QWidget* parent);

    void Show(const host::PropertyValue& value) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void TellText();
    void Step(double by);

    QLineEdit* m_line;
    bool m_isFloat;
    bool m_mayBeUnknown;
};

}  // namespace page_editor
