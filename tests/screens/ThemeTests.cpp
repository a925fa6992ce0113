// The looks that all screens share.

#include "screens/Arrangement.h"
#include "screens/Display.h"
#include "screens/SystemText.h"
#include "screens/Theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace tarn {
namespace {

using testing::SystemText;

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

/// Two colours that meet on a screen, where, and the least contrast that they need there.
struct Meeting {
    const char* Where;
    QColor One;
    QColor Other;
    double Least;
};

constexpr double ForText = 4.5;  ///< WCAG 2, level AA
constexpr double ForMarks = 3.0; ///< large text, and what shows that and where a control is

/// Every pair of colours that the style sheet and what draws itself bring together.
std::vector<Meeting> MeetingsOf(const Colours& c) {
    std::vector<Meeting> all;
    for (const QColor& ground : {c.Window, c.Surface, c.Field}) {
        all.insert(all.end(), {{"text", c.Text, ground, 7},
                               {"labels, hints and read-only fields", c.MutedText, ground, ForText},
                               {"marked options", c.Green, ground, ForText},
                               {"warnings", c.Warning, ground, ForText},
                               {"the product's title and links", c.Accent, ground, ForText},
                               {"what cannot be used", c.DisabledText, ground, ForMarks},
                               {"borders of controls", c.ControlBorder, ground, ForMarks},
                               {"the focus ring", c.Accent, ground, ForMarks}});
    }
    all.insert(all.end(), {{"the selection and the main button", c.AccentText, c.Accent, ForText},
                           {"the outer ring of the main button", c.Text, c.Surface, ForMarks},
                           {"a button that is pressed", c.Text, c.Border, ForText},
                           {"the scroll bar", c.ControlBorder, c.Surface, ForMarks}});
    return all;
}

TEST(Theme, ColoursThatMeetStandOutFromEachOther) {
    for (const Colours* colours : {&LightColours(), &DarkColours()}) {
        for (const Meeting& meeting : MeetingsOf(*colours)) {
            EXPECT_GE(Contrast(meeting.One, meeting.Other), meeting.Least)
                << meeting.Where << ": " << qPrintable(meeting.One.name()) << " and "
                << qPrintable(meeting.Other.name());
        }
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

TEST(Theme, FollowsTheSystemsTextBeyondItsOwn) {
    QPushButton button;
    QLabel heading;
    SetRole(heading, TextRole::ProductTitle);
    QLineEdit box;
    KeepTextWidth(box, 900);
    const auto expectScale = [&](double scale) {
        EXPECT_DOUBLE_EQ(TextScale(), scale);
        button.ensurePolished();
        heading.ensurePolished();
        EXPECT_DOUBLE_EQ(button.font().pointSizeF(), Metrics::BaseFont * scale);
        EXPECT_DOUBLE_EQ(heading.font().pointSizeF(), Metrics::ProductTitleFont * scale);
        EXPECT_EQ(box.width(), Pixels(900 * scale));
    };
    box.show();
    expectScale(1);
    for (const double points : {8.0, 9.0, 10.5}) {
        const SystemText text(points);
        expectScale(1);
    }
    {
        const SystemText half(16.5);
        expectScale(1.5);
        const SystemText twice(22);
        expectScale(2);
        const SystemText huge(100);
        expectScale(3);
    }
    expectScale(1);
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
