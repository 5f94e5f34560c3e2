#include "page_editor/panel/paths_field.h"

#include <QEvent>
#include <QFileDialog>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace page_editor {
namespace {

constexpr int kLinesHeight = 64;

}  // namespace

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

PathListField::PathListField(QWidget* parent)
    : PropertyField(parent), m_lines(new QPlainTextEdit(this)) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_lines);
    auto* const add = new QPushButton("Add…", this);
    column->addWidget(add);
    m_lines->setFixedHeight(kLinesHeight);
    m_lines->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_lines->setTabChangesFocus(true);
    m_lines->installEventFilter(this);
    connect(add, &QPushButton::clicked, this, [this] {
        for (const QString& path :
             QFileDialog::getOpenFileNames(this, "Choose rasters")) {
            m_lines->appendPlainText(path);
        }
        FinishTyping();
    });
}

void PathListField::Show(const host::PropertyValue& value) {
    QStringList lines;
    for (const std::string& path : std::get<std::vector<std::string>>(value)) {
        lines.append(QString::fromStdString(path));
    }
    if (m_lines->toPlainText() != lines.join('\n')) {
        m_lines->setPlainText(lines.join('\n'));
    }
    m_lines->document()->setModified(false);
}

/// A list is done when one leaves it.
bool PathListField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        FinishTyping();
    }
    return PropertyField::eventFilter(watched, event);
}

void PathListField::FinishTyping() {
    if (!m_lines->document()->isModified()) {
        return;
    }
    m_lines->document()->setModified(false);
    std::vector<std::string> paths;
    for (const QString& line : m_lines->toPlainText().split('\n', Qt::SkipEmptyParts)) {
        paths.push_back(line.trimmed().toStdString());
    }
    Tell(std::move(paths));
}

}  // namespace page_editor
