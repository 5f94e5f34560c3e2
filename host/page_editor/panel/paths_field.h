#pragma once

#include <QLineEdit>

#include "page_editor/panel/lines_field.h"

namespace page_editor {

/// The path of an image, with a button that opens a file dialog.
class PathField : public PropertyField {
public:
    explicit PathField(QWidget* parent);

    void Show(const host::PropertyValue& value) override;
    void FinishTyping() override;

private:
    QLineEdit* m_line;
};

/// Paths of rasters, one per line, the first on top, with a button to add some.
class PathListField : public LinesField {
public:
    explicit PathListField(QWidget* parent);

    void Show(const host::PropertyValue& value) override;

protected:
    void TellText(const QString& text) override;
};

}  // namespace page_editor
