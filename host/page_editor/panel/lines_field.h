#pragma once

#include <QPlainTextEdit>
#include <QString>

#include "page_editor/panel/property_field.h"

namespace page_editor {

/// A text of several lines, taken when the field loses focus.
class LinesField : public PropertyField {
public:
    explicit LinesField(QWidget* parent);

    void Show(const host::PropertyValue& value) override;
    void FinishTyping() override;

protected:
    void ShowText(const QString& text);
    void Append(const QString& line) { m_lines->appendPlainText(line); }
    virtual void TellText(const QString& text) { Tell(text.toStdString()); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPlainTextEdit* m_lines;
};

}  // namespace page_editor
