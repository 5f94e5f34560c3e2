#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <array>

#include "page_editor/panel/property_field.h"

namespace page_editor {

/// A part of the map, given by its four edges, or all of it.
class ExtentField : public PropertyField {
public:
    explicit ExtentField(QWidget* parent);

    void Show(const host::PropertyValue& value) override;
    void FinishTyping() override;

private:
    void TellEdges();

    QCheckBox* m_all;
    std::array<QLineEdit*, 4> m_edges = {};
};

}  // namespace page_editor
