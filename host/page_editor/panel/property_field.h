#pragma once

#include <QLineEdit>
#include <QWidget>
#include <functional>
#include <memory>

#include "page/document/property.h"

namespace page_editor {

/// Edits one property: a widget that shows a value and reports the one that a person
/// enters. It does not check values and knows nothing of items.
class PropertyField : public QWidget {
public:
    using QWidget::QWidget;

    /// Shows a value of the property's kind, without reporting it.
    virtual void Show(const host::PropertyValue& value) = 0;

    /// Takes what was typed so far, as leaving the field does.
    virtual void FinishTyping() {}

    /// Whether something was typed that is not taken yet.
    bool IsBeingTyped() const;

    /// Leaves to others what is not for this: the wheel while it has not the keyboard,
    /// which then scrolls the panel; and the keys of undoing, redoing and exporting while
    /// nothing is being typed, which then reach the page.
    void LeaveToOthers();

    /// Called with a value of the property's kind, or with what is wrong with the entry.
    std::function<void(const host::PropertyValue&)> changed;
    std::function<void(const QString&)> refused;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Lays one widget out as the whole of the field.
    void Fill(QWidget* widget);
    void Tell(const host::PropertyValue& value) const;
    void Refuse(const QString& why) const;
    /// Ends typing when the line loses focus or Enter is pressed.
    void FinishWith(const QLineEdit* line) const;
    /// Reports a line as text, once after it was changed.
    void TellChanged(QLineEdit& line) const;
};

/// The field for a property's kind; its widget to type into is named as the property.
PropertyField* MakeField(const host::Property& property, QWidget* parent);

}  // namespace page_editor
