// How the carpet estimate looks where it is dark or small.

#include "app/Theme.h"
#include "estimate/EstimateScreenTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

/// Dresses the application for a dark desktop, and as before at the end.
struct ESCarpFormLooks : EstimateScreenTest {
    ~ESCarpFormLooks() override { QApplication::setPalette(before); }

    static void TurnDark() {
        QPalette dark;
        dark.setColor(QPalette::Window, Qt::black);
        dark.setColor(QPalette::WindowText, Qt::white);
        QApplication::setPalette(dark);
        QCoreApplication::processEvents();
    }
    /// The pixel of a widget that is farthest from what is behind it.
    static QColor StrongestOn(QWidget& widget, const QColor& behind, int fromX) {
        const QImage image = widget.grab().toImage();
        QColor strongest = behind;
        const auto distance = [&](const QColor& color) {
            return std::abs(color.lightness() - behind.lightness());
        };
        for (int x = fromX; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                const QColor color = image.pixelColor(x, y);
                if (distance(color) > distance(strongest)) {
                    strongest = color;
                }
            }
        }
        return strongest;
    }

    const QPalette before = QApplication::palette();
};

TEST_F(ESCarpFormLooks, HaveWhitePaperInDarkSurroundings) {
    TurnDark();
    Open({{288, 120}});
    PressOk();
    EXPECT_EQ(form->grab().toImage().pixelColor(3, 3), DarkColours().Window);
    const QImage paper = Paper().grab().toImage();
    EXPECT_EQ(paper.pixelColor(2, 2), QColor(Qt::white));
    EXPECT_EQ(paper.pixelColor(paper.width() - 3, paper.height() - 3), QColor(Qt::white));
}

TEST_F(ESCarpFormLooks, ShowCarpetsWithoutRoomsAsDisabledInDarkSurroundings) {
    TurnDark();
    Open({{288, 120}});
    ASSERT_TRUE(Option("Option1(0)").isEnabled());
    ASSERT_FALSE(Option("Option1(1)").isEnabled());
    const int behindIndicator = Option("Option1(0)").height() + 4;
    const QColor surface = DarkColours().Surface;
    const QColor enabled = StrongestOn(Option("Option1(0)"), surface, behindIndicator);
    const QColor disabled = StrongestOn(Option("Option1(1)"), surface, behindIndicator);
    EXPECT_NEAR(enabled.lightness(), DarkColours().Text.lightness(), 30);
    EXPECT_LE(disabled.lightness(), DarkColours().DisabledText.lightness() + 10);
    EXPECT_GT(disabled.lightness(), surface.lightness());
}

TEST_F(ESCarpFormLooks, FitADisplayOfLargeLettersInHalf) {
    Open({{200, 120}});
    form->resize(960, 524);
    const auto isInside = [&](const char* name) {
        QWidget& widget = Control(name);
        return form->rect().contains(QRect(widget.mapTo(form.get(), QPoint(0, 0)), widget.size()));
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInside("Frame7"); }));
    EXPECT_TRUE(isInside("Command1(1)"));
    PressOk();
    Search();
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInside("Picture1"); }));
    for (const char* name : {"FTitle", "Label2", "Label5", "Command2", "Command3", "Command4",
                             "Command5", "Command6", "Command7"}) {
        EXPECT_TRUE(isInside(name)) << name;
        EXPECT_FALSE(Control(name).geometry().intersects(Picture1().geometry())) << name;
        EXPECT_GE(Control(name).height(), Control(name).minimumSizeHint().height()) << name;
    }
    EXPECT_FALSE(Control("Label2").geometry().intersects(Control("Label5").geometry()));
}

} // namespace
} // namespace tarn
