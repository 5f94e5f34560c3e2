#include "page_editor/panel/property_field.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <algorithm>

#include "page_editor/panel/colour_field.h"
#include "page_editor/panel/extent_field.h"
#include "page_editor/panel/lines_field.h"
#include "page_editor/panel/number_field.h"
#include "page_editor/panel/paths_field.h"

namespace page_editor {
namespace {

using host::PropertyKind;

class SwitchField : public PropertyField {
public:
    explicit SwitchField(QWidget* parent)
        : PropertyField(parent), m_box(new QCheckBox(this)) {
        Fill(m_box);
        connect(m_box, &QCheckBox::clicked, this, [this](bool on) { Tell(on); });
    }
    void Show(const host::PropertyValue& value) override {
        m_box->setChecked(std::get<bool>(value));
    }

private:
    QCheckBox* m_box;
};

class IntegerField : public PropertyField {
public:
    IntegerField(const host::NumberRange& range, QWidget* parent)
        : PropertyField(parent), m_box(new QSpinBox(this)) {
        Fill(m_box);
        m_box->setKeyboardTracking(false);
        m_box->setRange(static_cast<int>(range.lowest), static_cast<int>(range.highest));
        connect(m_box, &QSpinBox::valueChanged, this,
                [this](int value) { Tell(std::int32_t{value}); });
    }
    void Show(const host::PropertyValue& value) override {
        const QSignalBlocker blocker(m_box);
        m_box->setValue(std::get<std::int32_t>(value));
        m_box->findChild<QLineEdit*>()->setModified(false);
    }
    void FinishTyping() override { m_box->interpretText(); }

private:
    QSpinBox* m_box;
};

class TextField : public PropertyField {
public:
    explicit TextField(QWidget* parent)
        : PropertyField(parent), m_line(new QLineEdit(this)) {
        Fill(m_line);
        m_line->setMaxLength(static_cast<int>(host::kLongestText));
        FinishWith(m_line);
    }
    void Show(const host::PropertyValue& value) override {
        const QString text = QString::fromStdString(std::get<std::string>(value));
        if (text != m_line->text()) {
            m_line->setText(text);
        }
        m_line->setModified(false);
    }
    void FinishTyping() override { TellChanged(*m_line); }

private:
    QLineEdit* m_line;
};

class FontField : public PropertyField {
public:
    explicit FontField(QWidget* parent)
        : PropertyField(parent), m_box(new QComboBox(this)) {
        Fill(m_box);
        m_box->setEditable(true);
        m_box->setInsertPolicy(QComboBox::NoInsert);
        m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        m_box->setMinimumContentsLength(12);
        m_box->addItems(QFontDatabase::families());
        connect(m_box, &QComboBox::textActivated, this, &FontField::FinishTyping);
        FinishWith(m_box->lineEdit());
    }
    void Show(const host::PropertyValue& value) override {
        m_shown = QString::fromStdString(std::get<std::string>(value));
        m_box->setEditText(m_shown);
    }
    void FinishTyping() override {
        if (m_box->currentText() != m_shown) {
            m_shown = m_box->currentText();
            Tell(m_shown.toStdString());
        }
    }

private:
    QComboBox* m_box;
    QString m_shown;
};

class ChoiceField : public PropertyField {
public:
    ChoiceField(const host::Choices& choices, QWidget* parent)
        : PropertyField(parent), m_box(new QComboBox(this)) {
        Fill(m_box);
        m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        for (const host::Choice& choice : choices) {
            m_box->addItem(QString::fromUtf8(choice.name), choice.value);
        }
        connect(m_box, &QComboBox::activated, this, [this](int index) {
            Tell(std::int32_t{m_box->itemData(index).toInt()});
        });
    }
    void Show(const host::PropertyValue& value) override {
        m_box->setCurrentIndex(m_box->findData(std::get<std::int32_t>(value)));
    }

private:
    QComboBox* m_box;
};

/// A line edit would take Ctrl+E to go to its end.
bool IsForThePage(const QKeyEvent& key, bool isBeingTyped) {
    const bool isExport =
        key.modifiers() == Qt::ControlModifier && key.key() == Qt::Key_E;
    const bool isHistory =
        key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
    return isExport || (isHistory && !isBeingTyped);
}

PropertyField* FieldFor(const host::Property& property, QWidget* parent) {
    switch (property.kind) {
        case PropertyKind::Switch:
            return new SwitchField(parent);
        case PropertyKind::Integer:
            return new IntegerField(property.range, parent);
        case PropertyKind::Number:
        case PropertyKind::Ratio:
        case PropertyKind::Angle:
            return new NumberField(property, parent);
        case PropertyKind::Colour:
            return new ColourField(parent);
        case PropertyKind::Text:
            if (property.hasLines) {
                return new LinesField(parent);
            }
            return new TextField(parent);
        case PropertyKind::Font:
            return new FontField(parent);
        case PropertyKind::File:
            return new PathField(parent);
        case PropertyKind::Rasters:
            return new PathListField(parent);
        case PropertyKind::MapExtent:
            return new ExtentField(parent);
        case PropertyKind::Choice:
            return new ChoiceField(property.choices, parent);
    }
    return nullptr;
}

}  // namespace

bool PropertyField::IsBeingTyped() const {
    const auto lines = findChildren<QLineEdit*>();
    const auto texts = findChildren<QPlainTextEdit*>();
    return std::any_of(lines.begin(), lines.end(),
                       [](const QLineEdit* line) { return line->isModified(); }) ||
           std::any_of(texts.begin(), texts.end(), [](const QPlainTextEdit* text) {
               return text->document()->isModified();
           });
}

void PropertyField::LeaveToOthers() {
    for (QWidget* const widget : findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::WheelFocus) {
            widget->setFocusPolicy(Qt::StrongFocus);
        }
        widget->installEventFilter(this);
    }
}

bool PropertyField::eventFilter(QObject* watched, QEvent* event) {
    const bool isForOthers =
        event->type() == QEvent::Wheel
            ? !static_cast<QWidget*>(watched)->hasFocus()
            : event->type() == QEvent::ShortcutOverride &&
                  IsForThePage(*static_cast<QKeyEvent*>(event), IsBeingTyped());
    if (isForOthers) {
        event->ignore();
    }
    return isForOthers || QWidget::eventFilter(watched, event);
}

void PropertyField::Fill(QWidget* widget) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);
    widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusProxy(widget);
}

void PropertyField::Tell(const host::PropertyValue& value) const {
    if (changed) {
        changed(value);
    }
}

void PropertyField::Refuse(const QString& why) const {
    if (refused) {
        refused(why);
    }
}

void PropertyField::FinishWith(const QLineEdit* line) const {
    connect(line, &QLineEdit::editingFinished, this, &PropertyField::FinishTyping);
}

void PropertyField::TellChanged(QLineEdit& line) const {
    if (line.isModified()) {
        line.setModified(false);
        Tell(line.text().toStdString());
    }
}

PropertyField* MakeField(const host::Property& property, QWidget* parent) {
    PropertyField* const field = FieldFor(property, parent);
    field->setObjectName(QString::fromUtf8(property.name));
    field->setToolTip(QString::fromUtf8(property.about));
    field->LeaveToOthers();
    return field;
}

}  // namespace page_editor
