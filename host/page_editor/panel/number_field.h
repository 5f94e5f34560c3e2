#pragma once

#include <QLineEdit>
#include <optional>

#include "page_editor/panel/property_field.h"

namespace page_editor {

/// A number as text that is read back to the same bits, whatever the locale.
QString NumberText(double value);

/// A number as text of six digits, or of all that it has where it is a large one: more
/// are of no use to a person, and are kept behind it.
QString ShortNumberText(double value);

/// The finite number that a whole text is.
std::optional<double> NumberIn(const QString& text);

/// A number to type, of which six digits are shown; up and down change it by one. A ratio
/// that is unknown is empty.
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
    double m_value = 0.0;  // as it was shown last
    bool m_mayBeUnknown;
};

}  // namespace page_editor
