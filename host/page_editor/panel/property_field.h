#pragma once

#include <QLineEdit>
#include <QWidget>
#include <functional>
#include <memory>

#include "page/document/property.h"

namespace page_editor {

/// What edits one property: a widget that shows a value and tells when a person has
/// given another. It does not check values and does not know items.
class PropertyField : public QWidget {
public:
    using QWidget::QWidget;

    /// Shows a value of the property's kind; tells nothing.
    virtual void Show(const host::PropertyValue& value) = 0;

    /// Takes what was typed so far, as leaving the field does.
    virtual void FinishTyping() {}

    /// Called with a value of the property's kind, or with why there is none.
    std::function<void(const host::PropertyValue&)> changed;
    std::function<void(const QString&)> refused;

protected:
    /// Lays one widget out as the whole of the field.
    void Fill(QWidget* widget);
    void Tell(const host::PropertyValue& value) const;
    void Refuse(const QString& why) const;
    /// Has typing finished when a line is left or Enter pressed.
    void FinishWith(const QLineEdit* line) const;
    /// Tells a line as a text, once after it was changed.
    void TellChanged(QLineEdit& line) const;
};

/// The field for a property's kind; its widget to type into is named as the property.
PropertyField* MakeField(const host::Property& property, QWidget* parent);

}  // namespace page_editor
