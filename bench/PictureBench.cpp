// Painting the pictures of an estimate of 3,000 parts on a display of 1920x1080: all of it, and one
// step of scrolling and zooming.

#include "drawing/Drawing.h"
#include "screens/Dialogs.h"
#include "screens/Theme.h"
#include "screens/estimate/PictureBox.h"
#include "screens/roll/RollView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <benchmark/benchmark.h>

#include <stdexcept>
#include <string>

namespace {

using namespace tarn;

constexpr int Parts = 3000;
constexpr int PartsAcross = 28;
constexpr double PartWidth = 5; ///< inches
constexpr double PartLength = 10;

/// Which row of parts along the roll a part is in; how many rows, for the number of parts.
int Row(int part) {
    return part / PartsAcross;
}

/// A benchmark has nobody to tell.
class NoBoxes : public Dialogs {
  public:
    void Message(const std::string& text, const std::string& /*informative*/) override {
        throw std::runtime_error(text);
    }
    bool AskYesNo(const std::string& text) override { throw std::runtime_error(text); }
    std::optional<std::size_t> Choose(const std::string& text,
                                      const std::vector<std::string>& /*actions*/) override {
        throw std::runtime_error(text);
    }
    std::optional<std::string> Input(const std::string& prompt,
                                     const std::string& /*initial*/) override {
        throw std::runtime_error(prompt);
    }
    std::optional<std::string> SaveFileName(const std::string& suggestedName,
                                            const std::string& /*suffix*/) override {
        throw std::runtime_error(suggestedName);
    }
};

RollChart ChartOfParts() {
    RollChart chart;
    chart.RollWidth = PartWidth * PartsAcross + 6;
    for (int i = 0; i < Parts; ++i) {
        ChartPiece piece;
        piece.Label =
            std::string(1, static_cast<char>('A' + i % 26)) + static_cast<char>('A' + i / 26 % 26);
        piece.Size = "2'0\" X 2'6\"";
        piece.Room = std::to_string(100 + i % 500);
        piece.Tint = static_cast<std::size_t>(i % 8);
        piece.X = PartWidth * (i % PartsAcross);
        piece.Y = PartLength * Row(i);
        piece.Width = PartWidth;
        piece.Length = PartLength;
        chart.Pieces.push_back(piece);
        chart.LeftOver.push_back({piece.X, piece.Y + PartLength - 2, PartWidth, 2});
    }
    chart.Length = PartLength * Row(Parts);
    return chart;
}

Drawing DrawingOfParts() {
    constexpr double TwipsPerInch = 24;
    Drawing drawing;
    for (int i = 0; i < Parts; ++i) {
        const double x = 7500 + TwipsPerInch * PartWidth * (i % PartsAcross);
        const double y = 500 + TwipsPerInch * PartLength * Row(i);
        drawing.AddBox(x, y, x + TwipsPerInch * PartWidth, y + TwipsPerInch * PartLength,
                       DrawingColor::Red, "AA: 2'0\" X 2'6\"");
        drawing.PenX = x + 300;
        drawing.PenY = y + 300;
        drawing.WriteLine("AA");
    }
    drawing.PenY = 100;
    for (int i = 0; i < Parts; ++i) {
        drawing.PenX = 100;
        drawing.WriteLine("AA: 2'0\" X 2'6\"");
    }
    drawing.Visible = true;
    return drawing;
}

/// A view of 1920x1080, painted without a display.
template <class View>
class Surface {
  public:
    explicit Surface(View& view)
        : view_(view)
        , image_(1920, 1080, QImage::Format_ARGB32_Premultiplied) {
        view_.resize(image_.size());
        view_.setAttribute(Qt::WA_DontShowOnScreen);
        view_.show();
        QCoreApplication::processEvents();
    }
    void Paint() {
        view_.viewport()->render(&image_);
        benchmark::DoNotOptimize(image_.constBits());
    }
    void Press(Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&view_, &event);
    }
    /// Zoom in about the middle until single parts can be read.
    void ZoomIn(int steps) {
        for (int i = 0; i < steps; ++i) {
            Press(Qt::Key_Plus);
        }
        view_.horizontalScrollBar()->setValue(view_.horizontalScrollBar()->maximum() / 2);
        view_.verticalScrollBar()->setValue(view_.verticalScrollBar()->maximum() / 2);
        Paint();
    }

  private:
    View& view_;
    QImage image_;
};

template <class View>
void ScrollSteps(benchmark::State& state, View& view, Surface<View>& surface) {
    QScrollBar& bar = *view.verticalScrollBar();
    int step = 40;
    for ([[maybe_unused]] auto each : state) {
        if (bar.value() + step > bar.maximum() || bar.value() + step < bar.minimum()) {
            step = -step;
        }
        bar.setValue(bar.value() + step);
        surface.Paint();
    }
}

template <class View>
void ZoomSteps(benchmark::State& state, Surface<View>& surface) {
    bool in = true;
    for ([[maybe_unused]] auto each : state) {
        surface.Press(in ? Qt::Key_Plus : Qt::Key_Minus);
        surface.Paint();
        in = !in;
    }
}

struct RollScene {
    RollScene() { view.Show(chart); }
    NoBoxes boxes;
    RollChart chart = ChartOfParts();
    RollView view{nullptr, boxes};
    Surface<RollView> surface{view};
};

struct DrawingScene {
    DrawingScene() { view.ShowFromStart(DrawingOfParts()); }
    NoBoxes boxes;
    PictureBox view{nullptr, boxes};
    Surface<PictureBox> surface{view};
};

void RollWhole(benchmark::State& state) {
    RollScene scene;
    for ([[maybe_unused]] auto each : state) {
        scene.view.Show(scene.chart);
        scene.surface.Paint();
    }
}
void RollScroll(benchmark::State& state) {
    RollScene scene;
    scene.surface.ZoomIn(static_cast<int>(state.range(0)));
    ScrollSteps(state, scene.view, scene.surface);
}
void RollZoom(benchmark::State& state) {
    RollScene scene;
    scene.surface.ZoomIn(static_cast<int>(state.range(0)));
    ZoomSteps(state, scene.surface);
}
void DrawingWhole(benchmark::State& state) {
    DrawingScene scene;
    for ([[maybe_unused]] auto each : state) {
        scene.view.ShowChanged(scene.view.Shown());
        scene.surface.Paint();
    }
}
void DrawingSmall(benchmark::State& state) {
    DrawingScene scene;
    for (int i = 0; i < state.range(0); ++i) {
        scene.surface.Press(Qt::Key_Minus);
    }
    for ([[maybe_unused]] auto each : state) {
        scene.view.ShowChanged(scene.view.Shown());
        scene.surface.Paint();
    }
}
void DrawingScroll(benchmark::State& state) {
    DrawingScene scene;
    for (int i = 0; i < state.range(0); ++i) {
        scene.surface.Press(Qt::Key_Minus);
    }
    scene.surface.Paint();
    ScrollSteps(state, scene.view, scene.surface);
}
void DrawingZoom(benchmark::State& state) {
    DrawingScene scene;
    for (int i = 0; i < state.range(0); ++i) {
        scene.surface.Press(Qt::Key_Minus);
    }
    scene.surface.Paint();
    ZoomSteps(state, scene.surface);
}

BENCHMARK(RollWhole)->Unit(benchmark::kMillisecond);
BENCHMARK(RollScroll)->Arg(3)->Arg(8)->Unit(benchmark::kMillisecond);
BENCHMARK(RollZoom)->Arg(0)->Arg(3)->Arg(8)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawingWhole)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawingSmall)->Arg(4)->Arg(8)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawingScroll)->Arg(0)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawingZoom)->Arg(0)->Arg(4)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const tarn::Theme theme(application);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
