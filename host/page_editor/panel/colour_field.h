#pragma once

#include <QLineEdit>
#include <QToolButton>

#include "page_editor/panel/property_field.h"

namespace page_editor {

/// A colour as text, #RRGGBB or #RRGGBBAA, and a button that shows it and opens a colour
/// dialog.
class ColourField : public PropertyField {
public:
    explicit ColourField(QWidget* parent);

    void Show(const host::PropertyValue& value) override;
    void FinishTyping() override;

private:
    void Ask();

    QLineEdit* m_line;
    QToolButton* m_button;
    Gdiplus::ARGB m_colour = 0;
};

}  // namespace page_editor
