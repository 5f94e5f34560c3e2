#pragma once

#include <QLineEdit>
#include <QWidget>
#include <functional>
#include <memory>

#include "page/document/property.h"

namespace page_editor {

/// Edits one property: a widget that shows a value and reports the one that the user
/// enters. It does not check values and knows nothing of items.
class PropertyField : public QWidget {
public:
    using QWidget::QWidget;

    /// Shows a value of the property's kind, without reporting it.
    virtual void Show(const host::PropertyValue& value) = 0;

    /// Takes what has been typed, as leaving the field does.
    virtual void FinishTyping() {}

    /// Whether something was typed that has not been taken yet.
    bool IsBeingTyped() const;

    /// Passes on events that are not for this field: the wheel while it has no focus,
    /// which then scrolls the panel; and the shortcuts of undo, redo and export while
    /// nothing is being typed, which then reach the page.
    void LeaveToOthers();

    /// Called with a value of the property's kind, or with what is wrong with the entry.
    std::function<void(const host::PropertyValue&)> changed;
    std::function<void(const QString&)> refused;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Fills the field with one widget.
    void Fill(QWidget* widget);
    void Tell(const host::PropertyValue& value) const;
    void Refuse(const QString& why) const;
    /// Ends typing when the line loses focus or Enter is pressed.
    void FinishWith(const QLineEdit* line) const;
    /// Reports a line as text, once after each change.
    void TellChanged(QLineEdit& line) const;
};

/// The field for a property's kind; its input widget is named as the property.
PropertyField* MakeField(const host::Property& property, QWidget* parent);

}  // namespace page_editor
