#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "page_editor/panel/property_field.h"

namespace page_editor {

/// The path of an image, with a button that asks for one.
class PathField : public PropertyField {
public:
    explicit PathField(QWidget* parent);

    void Show(const host::PropertyValue& value) override;
    void FinishTyping() override;

private:
    QLineEdit* m_line;
};

/// Paths of rasters, one a line, the first on top, with a button that adds some.
class PathListField : public PropertyField {
public:
    explicit PathListField(QWidget* parent);

    void Show(const host::PropertyValue& value) override;
    void FinishTyping() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPlainTextEdit* m_lines;
};

}  // namespace page_editor
