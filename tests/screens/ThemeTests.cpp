// The looks that all screens share.

#include "screens/Theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <cmath>

namespace tarn {
namespace {

double Linear(double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// Relative luminance of a colour, as contrast is defined for web pages (WCAG 2).
double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
    const double brighter = std::max(Luminance(a), Luminance(b));
    const double darker = std::min(Luminance(a), Luminance(b));
    return (brighter + 0.05) / (darker + 0.05);
}

TEST(Theme, TextsStandOutFromWhatTheyStandOn) {
    for (const Colours* colours : {&LightColours(), &DarkColours()}) {
        for (const QColor& ground : {colours->Window, colours->Surface, colours->Field}) {
            EXPECT_GE(Contrast(colours->Text, ground), 7) << qPrintable(ground.name());
            EXPECT_GE(Contrast(colours->MutedText, ground), 4.5) << qPrintable(ground.name());
            EXPECT_GE(Contrast(colours->Green, ground), 4.5) << qPrintable(ground.name());
            EXPECT_GE(Contrast(colours->Warning, ground), 4.5) << qPrintable(ground.name());
            EXPECT_GE(Contrast(colours->Accent, ground), 4.5) << qPrintable(ground.name());
        }
        EXPECT_GE(Contrast(colours->AccentText, colours->Accent), 4.5);
    }
}

/// A palette as a dark desktop has it, and the old one back at the end.
class DarkDesktop {
  public:
    DarkDesktop() {
        QPalette dark;
        dark.setColor(QPalette::Window, Qt::black);
        dark.setColor(QPalette::WindowText, Qt::white);
        QApplication::setPalette(dark);
    }
    ~DarkDesktop() { QApplication::setPalette(before_); }
    DarkDesktop(const DarkDesktop&) = delete;
    DarkDesktop& operator=(const DarkDesktop&) = delete;

  private:
    QPalette before_ = QApplication::palette();
};

QColor MiddleOf(QWidget& widget) {
    widget.resize(100, 60);
    return widget.grab().toImage().pixelColor(4, 30);
}

TEST(Theme, FollowsTheDesktopBetweenLightAndDark) {
    QPushButton button;
    SetPrimary(button);
    EXPECT_EQ(CurrentColours().Text, LightColours().Text);
    EXPECT_EQ(MiddleOf(button), LightColours().Accent);
    {
        const DarkDesktop dark;
        EXPECT_EQ(CurrentColours().Text, DarkColours().Text);
        EXPECT_EQ(MiddleOf(button), DarkColours().Accent);
    }
    EXPECT_EQ(MiddleOf(button), LightColours().Accent);
}

int PixelsOf(const QImage& image, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == colour ? 1 : 0;
        }
    }
    return count;
}

template <class Button>
void ExpectAVisibleMark() {
    Button button;
    button.resize(40, 40);
    const int before = PixelsOf(button.grab().toImage(), LightColours().Accent);
    button.setChecked(true);
    const int after = PixelsOf(button.grab().toImage(), LightColours().Accent);
    EXPECT_GT(after, before + 20);
    button.setEnabled(false);
    EXPECT_EQ(PixelsOf(button.grab().toImage(), LightColours().Accent), 0);
    EXPECT_GT(PixelsOf(button.grab().toImage(), LightColours().DisabledText), 20);
}

TEST(Theme, AFieldThatOnlyShowsLooksSo) {
    QLineEdit field(QStringLiteral("MMMM"));
    EXPECT_EQ(MiddleOf(field), LightColours().Field);
    EXPECT_EQ(PixelsOf(field.grab().toImage(), LightColours().MutedText), 0);
    field.setReadOnly(true);
    EXPECT_EQ(MiddleOf(field), LightColours().Window);
    EXPECT_GT(PixelsOf(field.grab().toImage(), LightColours().MutedText), 5);
    EXPECT_EQ(PixelsOf(field.grab().toImage(), LightColours().Text), 0);
    field.setReadOnly(false);
    EXPECT_EQ(MiddleOf(field), LightColours().Field);
    EXPECT_GT(PixelsOf(field.grab().toImage(), LightColours().Text), 5);
}

TEST(Theme, MarksAreDrawnInItsColours) {
    ExpectAVisibleMark<QRadioButton>();
    ExpectAVisibleMark<QCheckBox>();
}

TEST(Theme, MarkedOptionsAreGreen) {
    QRadioButton option(QStringLiteral("CARPET WIDTH 12 FT."));
    EXPECT_FALSE(IsMarked(option));
    option.resize(option.sizeHint());
    EXPECT_EQ(PixelsOf(option.grab().toImage(), LightColours().Green), 0);
    SetMarked(option, true);
    EXPECT_TRUE(IsMarked(option));
    EXPECT_GT(PixelsOf(option.grab().toImage(), LightColours().Green), 5);
}

} // namespace
} // namespace tarn
