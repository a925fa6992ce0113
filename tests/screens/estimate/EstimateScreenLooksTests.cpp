// How the carpet estimate looks where it is dark or small.

#include "screens/Display.h"
#include "screens/Theme.h"
#include "screens/estimate/EstimateScreenTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

/// Dresses the application for a dark desktop, and as before at the end.
struct EstimateScreenLooks : EstimateScreenTest {
    ~EstimateScreenLooks() override { QApplication::setPalette(before); }

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

TEST_F(EstimateScreenLooks, HaveWhitePaperInDarkSurroundings) {
    TurnDark();
    Open({{288, 120}});
    PressOk();
    EXPECT_EQ(form->grab().toImage().pixelColor(3, 3), DarkColours().Window);
    const QImage paper = Paper().grab().toImage();
    EXPECT_EQ(paper.pixelColor(2, 2), QColor(Qt::white));
    EXPECT_EQ(paper.pixelColor(paper.width() - 3, paper.height() - 3), QColor(Qt::white));
}

TEST_F(EstimateScreenLooks, ShowCarpetsWithoutRoomsAsDisabledInDarkSurroundings) {
    TurnDark();
    Open({{288, 120}});
    ASSERT_TRUE(Option(Controls::carpets[0]).isEnabled());
    ASSERT_FALSE(Option(Controls::carpets[1]).isEnabled());
    const int behindIndicator = Option(Controls::carpets[0]).height() + 4;
    const QColor surface = DarkColours().Surface;
    const QColor enabled = StrongestOn(Option(Controls::carpets[0]), surface, behindIndicator);
    const QColor disabled = StrongestOn(Option(Controls::carpets[1]), surface, behindIndicator);
    EXPECT_NEAR(enabled.lightness(), DarkColours().Text.lightness(), 30);
    EXPECT_LE(disabled.lightness(), DarkColours().DisabledText.lightness() + 10);
    EXPECT_GT(disabled.lightness(), surface.lightness());
}

TEST_F(EstimateScreenLooks, FitADisplayOfLargeLettersInHalf) {
    Open({{200, 120}});
    form->resize(960, 524);
    const auto isInside = [&](const char* name) {
        QWidget& widget = Control(name);
        return form->rect().contains(QRect(widget.mapTo(form.get(), QPoint(0, 0)), widget.size()));
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInside(Controls::choicePanel); }));
    EXPECT_TRUE(isInside(Controls::cancelChoices));
    PressOk();
    Search();
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInside(Controls::layoutPicture); }));
    for (const char* name :
         {Controls::formTitle, Controls::estimatedProject, Controls::zoomHint,
          Controls::leaveEstimate, Controls::openChoices, Controls::pasteCuts,
          Controls::printEstimate, Controls::saveFromEstimate, Controls::redrawLayout}) {
        EXPECT_TRUE(isInside(name)) << name;
        EXPECT_FALSE(Control(name).geometry().intersects(Picture().geometry())) << name;
        EXPECT_GE(Control(name).height(), Control(name).minimumSizeHint().height()) << name;
    }
    EXPECT_FALSE(Control(Controls::estimatedProject)
                     .geometry()
                     .intersects(Control(Controls::zoomHint).geometry()));
}

TEST_F(EstimateScreenLooks, SayBesideTheTitleThatOtherUnitsAreInForce) {
    open.Shown = Units::Metric;
    Open({{288, 120}});
    const QLabel& title = Control<QLabel>(Controls::formTitle);
    const QLabel& words = Control<QLabel>(Controls::titleWarning);
    EXPECT_TRUE(words.isVisible());
    EXPECT_EQ(words.text(), QStringLiteral("ENTERED IN FEET"));
    EXPECT_GT(words.geometry().left(), title.geometry().right());
    EXPECT_LT(words.geometry().left() - title.geometry().right(), Pixels(600));
    EXPECT_GE(title.width(), title.sizeHint().width()) << "the title is whole";
    open.Shown = Units::Imperial;
    Open({});
    EXPECT_FALSE(Control<QLabel>(Controls::titleWarning).isVisible());
}

} // namespace
} // namespace tarn
