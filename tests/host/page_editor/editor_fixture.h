#pragma once

#include <gtest/gtest.h>

#include <QEvent>
#include <QImage>
#include <QTimer>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "page_editor/window/editor_window.h"
#include "scratch_folder.h"
#include "system/helper_process.h"

namespace editor_tests {

/// Answers the dialogs that come, one after the other; every one has to come.
class Answers {
public:
    /// Deals with a dialog of its kind.
    using Answer = std::function<void(QDialog&)>;

    explicit Answers(std::vector<Answer> answers);
    ~Answers();

    /// Presses the button of a question with that text, without the underlined letter's
    /// mark.
    static Answer Press(const QString& text);
    /// Types a name into a dialog for files, chooses the kind that begins so, and
    /// accepts.
    static Answer Name(const QString& name, const QString& kind = {});
    static Answer Accept();
    static Answer Cancel();

private:
    std::vector<Answer> m_answers;
    std::size_t m_next = 0;
    bool m_isAnswering = false;
    QTimer m_timer;
};

/// What comes of an action during whose dialogs these answers are given.
template <class Action>
auto Answering(std::vector<Answers::Answer> answers, Action action) {
    const Answers given(std::move(answers));
    return action();
}

/// An editor's window at 100 % with an empty A4 sheet, and what a person does to it.
class EditorTest : public ::testing::Test {
protected:
    EditorTest();

    /// Adds an element of a type whose frame is the box, and lets nothing be selected.
    std::size_t Add(const char* type, const host::Box& box,
                    const QStringList& named = {});

    void Place(std::size_t item, const host::Box& box);
    host::Box BoxOf(std::size_t item);
    template <class Type>
    Type Value(std::size_t item, const char* property) {
        return std::get<Type>(ValueOf(item, property));
    }
    host::PropertyValue ValueOf(std::size_t item, const char* property);

    /// The pointer, at points of the page.
    void Press(CPoint2D at, Qt::KeyboardModifiers modifiers = {});
    void MoveTo(CPoint2D at, Qt::KeyboardModifiers modifiers = {});
    /// Moves it with no button down.
    void Hover(CPoint2D at);
    void Release(CPoint2D at, Qt::KeyboardModifiers modifiers = {});
    void Click(CPoint2D at, Qt::KeyboardModifiers modifiers = {});
    /// Presses, moves there in a few steps, and lets go.
    void DragTo(CPoint2D from, CPoint2D to, Qt::KeyboardModifiers modifiers = {});

    /// As the window system sends it, to whatever is there; upwards, or down.
    static void TurnTheWheel(QWidget& widget, QPointF at, bool up,
                             Qt::KeyboardModifiers modifiers = {});

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// Runs the command of a menu; the dialogs that come get these answers.
    void Command(const char* name, std::vector<Answers::Answer> answers = {});

    /// Files in a folder of the test's own, by their names there.
    QString Path(const char* name) const {
        return QString::fromStdString(folder.Path(name));
    }
    /// A raster of 60 x 40 pixels and a picture, written there.
    QString Scene(const char* name = "scene.tif") const;
    QString Logo(const char* name = "logo.png") const;
    /// Those that an element of a type is made with.
    QStringList FilesFor(const std::string& type) const;
    std::string Bytes(const char* name) const { return folder.Contents(name); }
    void Write(const char* name, const std::string& text) const {
        folder.Write(name, text);
    }

    std::string LastFailure() const { return window.LastFailure().toStdString(); }

    /// Whether an item's place is hatched, as that of a map that cannot be read.
    bool IsHatched(std::size_t item);

    /// Fails unless the canvas shows what drawing the whole page gives.
    void ExpectImageIsThePage();

    ScratchFolder folder;
    page_editor::EditorWindow window;
    page_editor::PageDocument& document = window.Document();
    page_editor::PageCanvas& canvas = window.Canvas();
    page_editor::PropertyPanel& panel = window.Panel();
    page_editor::FileCommands& files = window.Files();

private:
    void Send(QEvent::Type type, CPoint2D at, Qt::MouseButton button,
              Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);
};

void ExpectBox(const host::Box& box, const host::Box& expected);

/// Jobs of the tests' helper that end in every way (see helper_process_test.cpp).
host::Jobs TestJobs();

/// Drawn anew, without anything of an editor.
QImage DrawnWhole(const host::Page& page, double dpi);

}  // namespace editor_tests
