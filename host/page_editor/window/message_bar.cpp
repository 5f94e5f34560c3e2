#include "page_editor/window/message_bar.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>

namespace page_editor {
namespace {

constexpr qsizetype kMostLines = 4;

}  // namespace

MessageBar::MessageBar(Kind kind, QWidget* parent)
    : QFrame(parent), m_text(new QLabel(this)) {
    const bool isFailure = kind == Kind::Failure;
    auto* const row = new QHBoxLayout(this);
    auto* const sign = new QLabel(this);
    const QIcon icon = style()->standardIcon(
        isFailure ? QStyle::SP_MessageBoxCritical : QStyle::SP_MessageBoxInformation);
    sign->setPixmap(icon.pixmap(style()->pixelMetric(QStyle::PM_SmallIconSize)));
    row->addWidget(sign, 0, Qt::AlignTop);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    row->addWidget(m_text, 1);
    auto* const close = new QToolButton(this);
    close->setText("×");
    close->setToolTip("Close");
    close->setAutoRaise(true);
    row->addWidget(close, 0, Qt::AlignTop);
    row->setContentsMargins(8, 4, 4, 4);
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window,
                     isFailure ? QColor(0xFD, 0xE0, 0xDD) : QColor(0xFF, 0xF4, 0xCC));
    colours.setColor(QPalette::WindowText, Qt::black);
    colours.setColor(QPalette::ButtonText, Qt::black);
    setPalette(colours);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void MessageBar::Show(const QStringList& lines) {
    QString text = lines.mid(0, kMostLines).join('\n');
    if (lines.size() > kMostLines) {
        text += QString("\n… and %1 more").arg(lines.size() - kMostLines);
    }
    m_text->setText(text);
    m_text->setToolTip(lines.size() > kMostLines ? lines.join('\n') : QString());
    setVisible(!lines.isEmpty());
}

void MessageBar::Follow(const QStringList& lines) {
    if (lines != m_followed) {
        m_followed = lines;
        Show(lines);
    }
}

}  // namespace page_editor
