#include "page_editor/panel/colour_field.h"

#include <QColorDialog>
#include <QHBoxLayout>
#include <QPainter>
#include <QPixmap>

namespace page_editor {
namespace {

constexpr int kSwatch = 16;

QString TextOf(const QColor& colour) {
    return colour.name(colour.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb)
        .toUpper();
}

/// Half of it over white, so that one sees how transparent it is.
QIcon Swatch(const QColor& colour) {
    QPixmap pixmap(kSwatch, kSwatch);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), colour);
    painter.setPen(Qt::darkGray);
    painter.drawRect(pixmap.rect().adjusted(0, 0, -1, -1));
    return pixmap;
}

/// The texts of page files only: no names of colours, no short forms.
bool IsColourText(const QString& text) {
    const auto isHex = [](QChar c) {
        return (c >= '0' && c <= '9') || (c.toLower() >= 'a' && c.toLower() <= 'f');
    };
    return (text.size() == 7 || text.size() == 9) && text[0] == '#' &&
           std::all_of(text.begin() + 1, text.end(), isHex);
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
    const QColor colour = QColor::fromRgba(m_colour);
    m_line->setText(TextOf(colour));
    m_line->setModified(false);
    m_button->setIcon(Swatch(colour));
}

void ColourField::FinishTyping() {
    if (!m_line->isModified()) {
        return;
    }
    m_line->setModified(false);
    const QString text = m_line->text().trimmed();
    if (IsColourText(text)) {
        Tell(Gdiplus::ARGB{QColor(text).rgba()});
    } else {
        Refuse("must be a colour as #RRGGBB or #AARRGGBB");
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
