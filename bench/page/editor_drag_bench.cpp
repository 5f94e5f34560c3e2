// A page with a map and twelve elements in the editor's window, at 1600 x 1131 pixels. An
// element is dragged: each step goes from the pointer's event to the painted window.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMouseEvent>
#include <cmath>
#include <memory>

#include "page/twelve_elements.h"
#include "page_editor/editing/resize.h"
#include "page_editor/window/editor_window.h"
#include "run_benchmarks.h"

namespace {

constexpr double kZoom = 1600.0 / 1123.0;

/// The window with the page, and the pointer over it.
class Editor {
public:
    Editor() {
        m_window.Document().Replace(host_tests::TwelveElements(),
                                    std::make_unique<host::RasterStore>());
        m_window.resize(2000, 1300);
        m_window.show();
        QApplication::processEvents();
        m_window.Canvas().SetZoom(kZoom);
        Paint();
    }

    CPoint2D HandleOf(std::size_t item, int handle) {
        return page_editor::HandleAt(BoxOf(item), handle);
    }
    CPoint2D MiddleOf(std::size_t item) {
        const host::Box box = BoxOf(item);
        return {box.MiddleX(), box.MiddleY()};
    }

    void Select(std::size_t item) { m_window.Document().Select({item}); }
    void Press(CPoint2D at) {
        Send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
    }
    void MoveTo(CPoint2D at) {
        Send(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
    }
    void Release(CPoint2D at) {
        Send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
    }
    /// Paints everything that waits for it.
    static void Paint() { QApplication::processEvents(); }

    bool IsDragging() { return m_window.Canvas().IsDragging(); }

private:
    host::Box BoxOf(std::size_t item) {
        return host::BoxOf(m_window.Document().Extent(item));
    }

    void Send(QEvent::Type type, CPoint2D at, Qt::MouseButton button,
              Qt::MouseButtons buttons) {
        page_editor::PageCanvas& canvas = m_window.Canvas();
        const QPointF point = canvas.CurrentView().ToWidget(at);
        QMouseEvent event(type, point, canvas.viewport()->mapToGlobal(point), button,
                          buttons, {});
        QApplication::sendEvent(canvas.viewport(), &event);
    }

    page_editor::EditorWindow m_window;
};

/// Drags what was pressed in circles and drops it where it was.
void Circle(benchmark::State& state, Editor& editor, CPoint2D from) {
    constexpr double kStep = 0.2;
    constexpr double kRadius = 40.0;
    editor.Press(from);
    double angle = 0.0;
    while (state.KeepRunning()) {
        angle += kStep;
        editor.MoveTo({from.x + kRadius * std::sin(angle),
                       from.y + kRadius * (1.0 - std::cos(angle))});
        Editor::Paint();
    }
    if (!editor.IsDragging()) {
        state.SkipWithError("nothing was dragged");
    }
    editor.MoveTo(from);
    editor.Release(from);
    Editor::Paint();
}

void Move(benchmark::State& state) {
    const auto item = static_cast<std::size_t>(state.range(0));
    Editor editor;
    editor.Select(item);
    Circle(state, editor, editor.MiddleOf(item));
}

void Resize(benchmark::State& state) {
    constexpr int kCorner = 2;
    const auto item = static_cast<std::size_t>(state.range(0));
    Editor editor;
    editor.Select(item);
    Circle(state, editor, editor.HandleOf(item, kCorner));
}

void EachElement(benchmark::internal::Benchmark* bench) {
    bench->Unit(benchmark::kMillisecond)->ArgName("item")->DenseRange(1, 12);
}

BENCHMARK(Move)->Apply(EachElement);
BENCHMARK(Resize)->Apply(EachElement);

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    return bench::RunBenchmarks(argc, argv);
}
