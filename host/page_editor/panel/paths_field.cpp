#include "page_editor/panel/paths_field.h"

#include <QFileDialog>
#include <QLayout>
#include <QPushButton>
#include <QToolButton>

namespace page_editor {
PathField::PathField(QWidget* parent)
    : PropertyField(parent), m_line(new QLineEdit(this)) {
    Fill(m_line);
    auto* const browse = new QToolButton(this);
    browse->setText("…");
    layout()->addWidget(browse);
    FinishWith(m_line);
    connect(browse, &QToolButton::clicked, this, [this] {
        const QString path = QFileDialog::getOpenFileName(this, "Choose an image");
        if (!path.isEmpty()) {
            Tell(path.toStdString());
        }
    });
}

void PathField::Show(const host::PropertyValue& value) {
    m_line->setText(QString::fromStdString(std::get<std::string>(value)));
    m_line->setModified(false);
}

void PathField::FinishTyping() { TellChanged(*m_line); }

PathListField::PathListField(QWidget* parent) : LinesField(parent) {
    auto* const add = new QPushButton("Add…", this);
    layout()->addWidget(add);
    connect(add, &QPushButton::clicked, this, [this] {
        for (const QString& path :
             QFileDialog::getOpenFileNames(this, "Choose rasters")) {
            Append(path);
        }
        FinishTyping();
    });
}

void PathListField::Show(const host::PropertyValue& value) {
    QStringList lines;
    for (const std::string& path : std::get<std::vector<std::string>>(value)) {
        lines.append(QString::fromStdString(path));
    }
    ShowText(lines.join('\n'));
}

void PathListField::TellText(const QString& text) {
    std::vector<std::string> paths;
    for (const QString& line : text.split('\n', Qt::SkipEmptyParts)) {
        paths.push_back(line.trimmed().toStdString());
    }
    Tell(std::move(paths));
}

}  // namespace page_editor
