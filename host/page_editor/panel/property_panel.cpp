#include "page_editor/panel/property_panel.h"

#include <QApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <exception>
#include <string>

#include "page_editor/editing/property_change.h"
#include "system/errors.h"

namespace page_editor {
namespace {

constexpr int kNextTry = 100;  // milliseconds

/// "borderWidth" in plain words: "Border width".
QString LabelFor(const host::Property& property) {
    QString label;
    for (const QChar c : QString::fromUtf8(property.name)) {
        label += c.isUpper() ? QString(' ') + c.toLower() : QString(c);
    }
    label[0] = label[0].toUpper();
    return label;
}

}  // namespace

PropertyPanel::PropertyPanel(PageDocument& document, QWidget* parent)
    : QScrollArea(parent), m_document(document) {
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Rebuild();
    const auto refresh = [this] {
        const bool isEmpty = m_document.Selection().empty();
        if (SharedType() != m_type || isEmpty != m_isEmpty) {
            Rebuild();
        }
        ShowValues();
    };
    connect(&document, &PageDocument::SelectionChanged, this, refresh);
    connect(&document, &PageDocument::HistoryChanged, this, [this] { ShowValues(); });
}

PropertyField* PropertyPanel::Field(const char* name) const {
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&](const Row& row) {
        return std::string_view(row.property->name) == name;
    });
    return found == m_rows.end() ? nullptr : found->field;
}

void PropertyPanel::FocusFirst() {
    if (!m_rows.empty()) {
        m_rows.front().field->setFocus();
        ensureWidgetVisible(m_rows.front().field);
    }
}

void PropertyPanel::FinishTyping() {
    const std::vector<Row> rows = m_rows;
    for (const Row& row : rows) {
        row.field->FinishTyping();
    }
}

/// The type of all selected items; null where they differ, or nothing is selected.
const host::ItemType* PropertyPanel::SharedType() const {
    const host::ItemType* shared = nullptr;
    for (const std::size_t index : m_document.Selection()) {
        const host::ItemType* const type = host::TypeOf(m_document.Page().Items()[index]);
        if (shared != nullptr && type != shared) {
            return nullptr;
        }
        shared = type;
    }
    return shared;
}

void PropertyPanel::Rebuild() {
    m_rows.clear();
    m_type = SharedType();
    m_isEmpty = m_document.Selection().empty();
    if (QWidget* const old = takeWidget()) {
        old->hide();
        old->deleteLater();  // one of its fields may have brought us here
    }
    auto* const panel = new QWidget;
    auto* const column = new QVBoxLayout(panel);
    if (m_isEmpty) {
        auto* const hint = new QLabel("Select an element to see its properties.", panel);
        hint->setWordWrap(true);
        column->addWidget(hint);
    } else {
        if (m_type != nullptr) {
            AddRows(QString::fromUtf8(m_type->about), m_type->properties, panel);
        }
        AddRows("Frame", host::FrameProperties(), panel);
    }
    column->addStretch();
    setWidget(panel);
}

void PropertyPanel::AddRows(const QString& title,
                            const std::vector<host::Property>& properties,
                            QWidget* panel) {
    if (properties.empty()) {
        return;
    }
    auto* const group = new QGroupBox(title, panel);
    auto* const form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    for (const host::Property& property : properties) {
        PropertyField* const field = MakeField(property, group);
        field->changed = [this, &property](const host::PropertyValue& value) {
            Change(property, value);
        };
        field->refused = [this, &property](const QString& why) { Refuse(property, why); };
        form->addRow(LabelFor(property), field);
        m_rows.push_back({&property, field});
    }
    panel->layout()->addWidget(group);
}

/// For several items, those of the last.
void PropertyPanel::ShowValues() {
    const Indices& selection = m_document.Selection();
    if (selection.empty()) {
        return;
    }
    const host::PageItem& item = m_document.Page().Items()[selection.back()];
    for (const Row& row : m_rows) {
        row.field->Show(row.property->read(item));
    }
}

/// A dialog takes the focus from a field, which then reports its value. While a dialog
/// shows that files are being read, the page is in use, so the value waits until it
/// closes, and is dropped if the selection changes meanwhile.
void PropertyPanel::Change(const host::Property& property,
                           const host::PropertyValue& value) {
    if (QApplication::activeModalWidget() != nullptr) {
        QTimer::singleShot(kNextTry, this,
                           [this, &property, value, asked = m_document.Selection()] {
                               if (m_document.Selection() == asked) {
                                   Change(property, value);
                               }
                           });
        return;
    }
    const std::string label = "Change " + LabelFor(property).toLower().toStdString();
    try {
        m_document.ChangeItems(m_document.Selection(), label, [&](host::PageItem& item) {
            SetProperty(item, property, value, m_document.Rasters(),
                        m_document.Reading());
        });
        ShowValues();
    } catch (const std::exception& error) {
        Q_EMIT Failed(QString::fromStdString(host::LineFor(error)));
        ShowValues();
    }
}

void PropertyPanel::Refuse(const host::Property& property, const QString& why) {
    Q_EMIT Failed(QString::fromUtf8(property.name) + ": " + why);
    ShowValues();
}

}  // namespace page_editor
