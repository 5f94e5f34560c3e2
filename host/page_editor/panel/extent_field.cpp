#include "page_editor/panel/extent_field.h"

#include <QFormLayout>
#include <algorithm>

#include "page_editor/panel/number_field.h"

namespace page_editor {
namespace {

constexpr const char* kNames[] = {"left", "bottom", "right", "top"};

std::array<double, 4> EdgesOf(const host::Box& extent) {
    return {extent.left, extent.bottom, extent.right, extent.top};
}

}  // namespace

ExtentField::ExtentField(QWidget* parent)
    : PropertyField(parent), m_all(new QCheckBox("All of it", this)) {
    auto* const form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(m_all);
    for (std::size_t i = 0; i < m_edges.size(); ++i) {
        m_edges[i] = new QLineEdit(this);
        m_edges[i]->setObjectName(kNames[i]);
        form->addRow(kNames[i], m_edges[i]);
        FinishWith(m_edges[i]);
    }
    connect(m_all, &QCheckBox::clicked, this, [this](bool all) {
        for (QLineEdit* const edge : m_edges) {
            edge->setEnabled(!all);
        }
        if (all) {
            Tell(std::optional<host::Box>());
        }
    });
}

void ExtentField::Show(const host::PropertyValue& value) {
    const auto& extent = std::get<std::optional<host::Box>>(value);
    m_all->setChecked(!extent);
    const std::array<double, 4> edges = EdgesOf(extent.value_or(host::Box()));
    for (std::size_t i = 0; i < m_edges.size(); ++i) {
        m_edges[i]->setText(extent ? NumberText(edges[i]) : QString());
        m_edges[i]->setEnabled(extent.has_value());
        m_edges[i]->setModified(false);
    }
}

void ExtentField::FinishTyping() {
    if (std::any_of(m_edges.begin(), m_edges.end(),
                    [](const QLineEdit* edge) { return edge->isModified(); })) {
        TellEdges();
    }
}

/// Only once all four are numbers; until then the user is still typing.
void ExtentField::TellEdges() {
    std::array<double, 4> values = {};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const QString text = m_edges[i]->text();
        const std::optional<double> value = NumberIn(text);
        if (!value && text.trimmed().isEmpty()) {
            return;
        }
        if (!value) {
            return Refuse(QString("%1 must be a number").arg(kNames[i]));
        }
        values[i] = *value;
    }
    Tell(std::optional(host::Box{values[0], values[1], values[2], values[3]}));
}

}  // namespace page_editor
