#include "page_editor/editor_fixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMouseEvent>
#include <QProgressDialog>
#include <QTimer>
#include <QWheelEvent>
#include <QtTest>
#include <algorithm>
#include <cstdlib>
#include <set>

#include "page/document/item_type.h"
#include "page/made_raster.h"
#include "page/output/page_image.h"

namespace editor_tests {

using host::Box;

namespace {

/// Where the edge of what is drawn anew cuts through a smoothed outline, a pixel may be
/// covered by a hair more or less.
constexpr int kHair = 6;

int MostDifference(const QImage& a, const QImage& b) {
    int most = a.size() == b.size() ? 0 : 255;
    for (int y = 0; y < a.height() && most < 255; ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y);
            const QRgb other = b.pixel(x, y);
            most = std::max({most, std::abs(qRed(one) - qRed(other)),
                             std::abs(qGreen(one) - qGreen(other)),
                             std::abs(qBlue(one) - qBlue(other))});
        }
    }
    return most;
}

}  // namespace

EditorTest::EditorTest() {
    window.show();
    QApplication::processEvents();
    canvas.SetZoom(1.0);
}

std::size_t EditorTest::Add(const char* type, const host::Box& box,
                            const QStringList& named) {
    window.Insert(type, named);
    EXPECT_EQ(window.LastFailure().toStdString(), "");
    const std::size_t item = document.Count() - 1;
    Place(item, box);
    document.Select({});
    return item;
}

void EditorTest::Place(std::size_t item, const host::Box& box) {
    document.ChangeItems({item}, "Place", [&](host::PageItem& placed) {
        host::FrameOf(placed).SetExtent(BoundingBoxOf(box));
    });
}

host::Box EditorTest::BoxOf(std::size_t item) {
    return host::BoxOf(document.Extent(item));
}

host::PropertyValue EditorTest::ValueOf(std::size_t index, const char* name) {
    const host::PageItem& item = document.Page().Items()[index];
    const host::Property* property =
        host::FindProperty(host::TypeOf(item)->properties, name);
    if (property == nullptr) {
        property = host::FindProperty(host::FrameProperties(), name);
    }
    EXPECT_NE(property, nullptr) << name;
    return property->read(item);
}

void EditorTest::Send(QEvent::Type type, CPoint2D at, Qt::MouseButton button,
                      Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers) {
    const QPointF point = canvas.CurrentView().ToWidget(at);
    QMouseEvent event(type, point, canvas.viewport()->mapToGlobal(point), button, buttons,
                      modifiers);
    QApplication::sendEvent(canvas.viewport(), &event);
}

void EditorTest::Press(CPoint2D at, Qt::KeyboardModifiers modifiers) {
    Send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton, modifiers);
}

void EditorTest::MoveTo(CPoint2D at, Qt::KeyboardModifiers modifiers) {
    Send(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton, modifiers);
}

void EditorTest::Hover(CPoint2D at) {
    Send(QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton, {});
}

void EditorTest::Release(CPoint2D at, Qt::KeyboardModifiers modifiers) {
    Send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton, modifiers);
}

void EditorTest::Click(CPoint2D at, Qt::KeyboardModifiers modifiers) {
    Press(at, modifiers);
    Release(at, modifiers);
}

void EditorTest::DragTo(CPoint2D from, CPoint2D to, Qt::KeyboardModifiers modifiers) {
    constexpr int kSteps = 5;
    Press(from, modifiers);
    for (int step = 1; step <= kSteps; ++step) {
        const double part = static_cast<double>(step) / kSteps;
        MoveTo(CPoint2D(from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part),
               modifiers);
    }
    Release(to, modifiers);
}

void EditorTest::TurnTheWheel(QWidget& widget, QPointF at, bool up,
                              Qt::KeyboardModifiers modifiers) {
    QWheelEvent turn(at, widget.mapToGlobal(at), {}, QPoint(0, up ? 120 : -120),
                     Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&turn);
    qApp->notify(&widget, &turn);
}

void EditorTest::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&canvas, key, modifiers);
}

void EditorTest::Command(const char* name, std::vector<Answers::Answer> answers) {
    const Answers given(std::move(answers));
    auto* const action = window.findChild<QAction*>(name);
    ASSERT_NE(action, nullptr) << name;
    EXPECT_TRUE(action->isEnabled()) << name;
    action->trigger();
}

QString EditorTest::Scene(const char* name) const {
    WriteScene(folder.Path(name), 60, 40);
    return Path(name);
}

QString EditorTest::Logo(const char* name) const {
    QFile::copy(MAP_SURROUND_PICTURE, Path(name));
    return Path(name);
}

QStringList EditorTest::FilesFor(const std::string& type) const {
    return type == "map"       ? QStringList(Scene())
           : type == "picture" ? QStringList(Logo())
                               : QStringList();
}

bool EditorTest::IsHatched(std::size_t item) {
    const host::Box box = BoxOf(item);
    // Where nothing lies on it.
    const QPoint place(static_cast<int>(box.left + box.Width() / 8.0),
                       static_cast<int>(document.Page().Height() - box.MiddleY()));
    constexpr int kPeriod = 16;  // two stripes along the other diagonal
    std::set<QRgb> colours;
    for (int x = 0; x < kPeriod; ++x) {
        const auto pixel = [&](int dx, int dy) {
            return canvas.Image().pixel(place + QPoint(x + dx, dy));
        };
        if (pixel(kPeriod, 0) != pixel(0, 0) ||
            pixel(kPeriod / 2, kPeriod / 2) != pixel(0, 0)) {
            return false;
        }
        colours.insert(pixel(0, 0));
    }
    return colours.size() > 1;
}

void EditorTest::ExpectImageIsThePage() {
    const double dpi = canvas.Zoom() * 96.0;
    EXPECT_LE(MostDifference(canvas.Image(), DrawnWhole(document.Page(), dpi)), kHair);
}

Answers::Answers(std::vector<Answer> answers) : m_answers(std::move(answers)) {
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || m_isAnswering ||
            qobject_cast<QProgressDialog*>(dialog) != nullptr) {
            return;
        }
        if (m_next == m_answers.size()) {
            ADD_FAILURE() << "not expected: " << dialog->windowTitle().toStdString();
            dialog->reject();
            return;
        }
        m_isAnswering = true;
        m_answers[m_next++](*dialog);
        m_isAnswering = false;
    });
    m_timer.start(20);
}

Answers::~Answers() { EXPECT_EQ(m_next, m_answers.size()) << "dialogs that came"; }

Answers::Answer Answers::Press(const QString& text) {
    return [text](QDialog& dialog) {
        for (QAbstractButton* const button : dialog.findChildren<QAbstractButton*>()) {
            if (button->text().remove('&') == text) {
                button->click();
                return;
            }
        }
        ADD_FAILURE() << "no button " << text.toStdString();
        dialog.reject();
    };
}

Answers::Answer Answers::Name(const QString& name, const QString& kind) {
    return [name, kind](QDialog& dialog) {
        auto* const files = qobject_cast<QFileDialog*>(&dialog);
        ASSERT_NE(files, nullptr);
        for (const QString& filter : files->nameFilters()) {
            if (!kind.isEmpty() && filter.startsWith(kind)) {
                files->selectNameFilter(filter);
            }
        }
        // It shows what was proposed once it has looked at its folder.
        QTest::qWait(200);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            files->findChild<QLineEdit*>("fileNameEdit")->setText(name);
            if (files->selectedFiles() != QStringList(name)) {
                return false;
            }
            dialog.accept();
            return !dialog.isVisible();
        }));
    };
}

Answers::Answer Answers::Accept() {
    return [](QDialog& dialog) { dialog.accept(); };
}

Answers::Answer Answers::Cancel() {
    return [](QDialog& dialog) { dialog.reject(); };
}

void ExpectBox(const host::Box& box, const host::Box& expected) {
    EXPECT_NEAR(box.left, expected.left, 1e-6);
    EXPECT_NEAR(box.bottom, expected.bottom, 1e-6);
    EXPECT_NEAR(box.right, expected.right, 1e-6);
    EXPECT_NEAR(box.top, expected.top, 1e-6);
}

QImage DrawnWhole(const host::Page& page, double dpi) {
    host::PageImage image(host::PixelSize(page, dpi));
    {
        Gdiplus::Graphics graphics(&image.Bitmap());
        page.Draw(graphics, dpi);
    }
    const host::PixelRows rows = image.Rows();
    return QImage(rows.first, rows.width, rows.height, rows.stride, QImage::Format_RGB32)
        .copy();
}

}  // namespace editor_tests
