#include "page_editor/panel/colour_field.h"

#include <QColorDialog>
#include <QHBoxLayout>
#include <QPainter>
#include <QPixmap>
#include <optional>

#include "page/colour_text.h"

namespace page_editor {
namespace {

constexpr int kSwatch = 16;

/// Half of it over white, to show its transparency.
QIcon Swatch(const QColor& colour) {
    QPixmap pixmap(kSwatch, kSwatch);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), colour);
    painter.setPen(Qt::darkGray);
    painter.drawRect(pixmap.rect().adjusted(0, 0, -1, -1));
    return pixmap;
}

}  // namespace

ColourField::ColourField(QWidget* parent)
    : PropertyField(parent),
      m_line(new QLineEdit(this)),
      m_button(new QToolButton(this)) {
    Fill(m_line);
    layout()->addWidget(m_button);
    FinishWith(m_line);
    connect(m_button, &QToolButton::clicked, this, [this] { Ask(); });
}

void ColourField::Show(const host::PropertyValue& value) {
    m_colour = std::get<Gdiplus::ARGB>(value);
    m_line->setText(QString::fromStdString(host::ColourText(m_colour)));
    m_line->setModified(false);
    m_button->setIcon(Swatch(QColor::fromRgba(m_colour)));
}

void ColourField::FinishTyping() {
    if (!m_line->isModified()) {
        return;
    }
    m_line->setModified(false);
    const std::optional<Gdiplus::ARGB> colour =
        host::ColourFromText(m_line->text().trimmed().toStdString());
    if (colour) {
        Tell(*colour);
    } else {
        Refuse("must be a colour as #RRGGBB or #RRGGBBAA");
    }
}

void ColourField::Ask() {
    const QColor chosen = QColorDialog::getColor(
        QColor::fromRgba(m_colour), this, QString(), QColorDialog::ShowAlphaChannel);
    if (chosen.isValid()) {
        Tell(Gdiplus::ARGB{chosen.rgba()});
    }
}

}  // namespace page_editor
