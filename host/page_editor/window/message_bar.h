#pragma once

#include <QFrame>
#include <QLabel>
#include <QStringList>

namespace page_editor {

/// A bar across the window that says something until it no longer holds or is closed: a
/// few lines, and the others as its tooltip.
class MessageBar : public QFrame {
public:
    enum class Kind { Failure, Remark };

    MessageBar(Kind kind, QWidget* parent);

    /// @param lines plain text; none hides the bar
    void Show(const QStringList& lines);
    /// The same, but nothing when the lines are those of the last time: a bar that was
    /// closed stays so.
    void Follow(const QStringList& lines);

    QString Text() const { return m_text->text(); }

private:
    QLabel* m_text;
    QStringList m_followed;
};

}  // namespace page_editor
