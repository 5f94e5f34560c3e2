#pragma once

#include <QLabel>
#include <QScrollArea>
#include <vector>

#include "page/document/item_type.h"
#include "page_editor/editing/page_document.h"
#include "page_editor/panel/property_field.h"

namespace page_editor {

/// Every property of the selection, made from the tables of properties: for one item its
/// own and its frame's, for several of one type the same, otherwise their frames'. A
/// change applies to all selected items.
class PropertyPanel : public QScrollArea {
    Q_OBJECT
public:
    /// @param document outlives this
    explicit PropertyPanel(PageDocument& document, QWidget* parent = nullptr);

    /// The field of a property shown; null for none.
    PropertyField* Field(const char* name) const;

    /// Moves the keyboard focus to the first field.
    void FocusFirst();
    /// Takes what is being typed, as leaving its field does.
    void FinishTyping();
    /// Shows the present values; what was being typed is lost.
    void ShowValues();

Q_SIGNALS:
    /// A value was refused; one line says why.
    void Failed(const QString& why);

private:
    struct Row {
        const host::Property* property;
        PropertyField* field;
    };

    const host::ItemType* SharedType() const;
    void Rebuild();
    void AddRows(const QString& title, const std::vector<host::Property>& properties,
                 QWidget* panel);
    void Change(const host::Property& property, const host::PropertyValue& value);
    void Refuse(const host::Property& property, const QString& why);

    PageDocument& m_document;
    const host::ItemType* m_type = nullptr;
    bool m_isEmpty = false;
    std::vector<Row> m_rows;
};

}  // namespace page_editor
