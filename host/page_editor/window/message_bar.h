#pragma once

#include <QFrame>
#include <QLabel>
#include <QStringList>

namespace page_editor {

/// A bar across the window that shows a message until it no longer applies or is closed:
/// a few lines, with the rest in its tooltip.
class MessageBar : public QFrame {
public:
    enum class Kind { Failure, Remark };

    MessageBar(Kind kind, QWidget* parent);

    /// @param lines plain text; none hides the bar
    void Show(const QStringList& lines);
    /// The same, unless the lines are those of the last time: a bar that was closed stays
    /// closed.
    void Follow(const QStringList& lines);

    QString Text() const { return m_text->text(); }

private:
    QLabel* m_text;
    QStringList m_followed;
};

}  // namespace page_editor
