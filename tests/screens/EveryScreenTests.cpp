// What has to hold on every screen: names for assistive programs, a way to each control by keys
// alone, and whole texts whatever the size of the system's text.

#include "Sanitized.h"
#include "base/Text.h"
#include "files/SpokenLanguage.h"
#include "screens/ControlChecks.h"
#include "screens/ControlNames.h"
#include "screens/Display.h"
#include "screens/ElidedLabel.h"
#include "screens/EveryScreen.h"
#include "screens/ScreenTesting.h"
#include "screens/SystemText.h"
#include "screens/Theme.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>

#include <array>
#include <cstdlib>
#include <set>
#include <utility>
#include <vector>

namespace tarn {
namespace {

using namespace tarn::testing;

std::string NameOf(const QWidget& widget) {
    return FromQt(widget.objectName()) + " (" + widget.metaObject()->className() + ")";
}

/// The widgets of a window that show.
std::vector<QWidget*> ShownIn(const QWidget& window) {
    std::vector<QWidget*> shown;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->window() == &window) {
            shown.push_back(widget);
        }
    }
    return shown;
}

void ResizeTo(ScreenWindow& window, QSize display) {
    window.resize(display.width(), display.height() - Pixels(FreeStrip));
    for (int i = 0; i < 3; ++i) { // what is laid out may lay out more
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

// --- names ---

TEST(EveryScreen, TellsAssistiveProgramsWhatEachControlIs) {
    for (const Units units : {Units::Imperial, Units::Metric}) {
        VisitEveryScreen(units, [](const std::string& state, ScreenWindow& window) {
            int controls = 0;
            for (QWidget* widget : ShownIn(window)) {
                if (widget->focusPolicy() == Qt::NoFocus &&
                    qobject_cast<QAbstractButton*>(widget) == nullptr) {
                    continue;
                }
                ++controls;
                QAccessibleInterface* told = QAccessible::queryAccessibleInterface(widget);
                ASSERT_NE(told, nullptr) << state << ": " << NameOf(*widget);
                const bool isFreePlace =
                    FromQt(widget->objectName()) == Controls::besideSelectProject;
                EXPECT_TRUE(isFreePlace || !told->text(QAccessible::Name).trimmed().isEmpty())
                    << state << ": " << NameOf(*widget) << " has no name";
                EXPECT_NE(told->role(), QAccessible::NoRole) << state << ": " << NameOf(*widget);
                EXPECT_NE(told->role(), QAccessible::Client) << state << ": " << NameOf(*widget);
            }
            EXPECT_GT(controls, 2) << state;
        });
    }
}

// --- keys ---

/// What the Tab key goes to, until it begins again.
std::vector<QWidget*> TabStops(QWidget& window) {
    constexpr int Most = 300;
    std::vector<QWidget*> stops;
    for (int i = 0; i < Most; ++i) {
        Press(window, Qt::Key_Tab);
        QCoreApplication::processEvents(); // what leaving a field changes is laid out
        QWidget* focused = QApplication::focusWidget();
        if (focused == nullptr || (!stops.empty() && focused == stops.front())) {
            return stops;
        }
        stops.push_back(focused);
    }
    ADD_FAILURE() << "the Tab key goes on for ever";
    return stops;
}

/// Whether all of a control shows, or as much as its scroll area has room for.
bool IsInView(const QWidget& widget) {
    const QRect seen = widget.visibleRegion().boundingRect();
    QSize room = widget.window()->size();
    for (QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (qobject_cast<QScrollArea*>(above) != nullptr) {
            room = static_cast<QScrollArea*>(above)->viewport()->size();
            break;
        }
    }
    return seen.width() >= std::min(widget.width(), room.width() / 2) &&
           seen.height() >= std::min(widget.height(), room.height() / 2);
}

void ExpectTabComesEverywhere(const std::string& state, ScreenWindow& window) {
    ResizeTo(window, {800, 600});
    const std::vector<QWidget*> stops = TabStops(window);
    const std::set<QWidget*> reached(stops.begin(), stops.end());
    EXPECT_EQ(reached.size(), stops.size()) << state;
    for (QWidget* widget : ShownIn(window)) {
        if (widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
            widget->focusProxy() == nullptr) {
            EXPECT_TRUE(reached.count(widget) == 1) << state << ": " << NameOf(*widget);
        }
    }
    for (QWidget* stop : stops) {
        stop->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        EXPECT_TRUE(IsInView(*stop)) << state << ": " << NameOf(*stop) << " is out of sight";
    }
    EXPECT_FALSE(stops.empty()) << state;
}

class TextSizes : public ::testing::TestWithParam<double> {};

INSTANTIATE_TEST_SUITE_P(Usual, TextSizes,
                         ::testing::ValuesIn(UnlessSanitized(std::vector{1.0, 1.5, 2.0},
                                                             std::vector{2.0})),
                         [](const auto& each) {
                             return "Percent" + std::to_string(static_cast<int>(each.param * 100));
                         });

TEST_P(TextSizes, LeaveEveryControlInReachOfTheTabKey) {
    const SystemText text(Metrics::BaseFont * GetParam());
    VisitEveryScreen(Units::Imperial, ExpectTabComesEverywhere);
}

// --- whole texts ---

/// Where the words of a widget stand in the one above it.
QRect WordsOf(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && dynamic_cast<const ElidedLabel*>(label) == nullptr) {
        const int flags = static_cast<int>(label->alignment()) |
                          (label->wordWrap() ? Qt::TextWordWrap : 0) |
                          (label->buddy() != nullptr ? Qt::TextShowMnemonic : 0);
        const QRect words = label->style()->itemTextRect(
            label->fontMetrics(), label->contentsRect(), flags, true, label->text());
        return words.translated(label->pos());
    }
    return widget.geometry();
}

void ExpectRoomForItsText(const std::string& where, const QWidget& widget) {
    const QSize size = widget.size();
    QSize least = widget.sizeHint();
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (label->text().isEmpty() || dynamic_cast<const ElidedLabel*>(label) != nullptr) {
            least = {0, label->text().isEmpty() ? 0 : label->minimumSizeHint().height()};
        } else if (label->wordWrap()) {
            least = {0, label->heightForWidth(label->width())};
        }
    } else if (qobject_cast<const QLineEdit*>(&widget) != nullptr) {
        least.setWidth(0); // it scrolls
    } else if (qobject_cast<const QComboBox*>(&widget) != nullptr ||
               qobject_cast<const QGroupBox*>(&widget) != nullptr) {
        least = widget.minimumSizeHint();
    } else if (qobject_cast<const QAbstractButton*>(&widget) == nullptr) {
        return;
    }
    EXPECT_GE(size.width(), least.width()) << where << ": " << NameOf(widget) << " is too narrow";
    EXPECT_GE(size.height(), least.height()) << where << ": " << NameOf(widget) << " is too low";
}

bool HasText(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return (label != nullptr && !label->text().isEmpty()) ||
           qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr;
}

void ExpectApart(const std::string& where, const std::vector<QWidget*>& shown) {
    for (std::size_t i = 0; i < shown.size(); ++i) {
        for (std::size_t j = i + 1; j < shown.size(); ++j) {
            if (shown[i]->parentWidget() == shown[j]->parentWidget() && HasText(*shown[i]) &&
                HasText(*shown[j])) {
                EXPECT_FALSE(WordsOf(*shown[i]).intersects(WordsOf(*shown[j])))
                    << where << ": " << NameOf(*shown[i]) << " runs into " << NameOf(*shown[j]);
            }
        }
    }
}

bool ScrollsItsContent(const QWidget& widget) {
    return qobject_cast<const QAbstractScrollArea*>(widget.parentWidget()) != nullptr;
}

void ExpectWholeTextsOn(QSize display, const std::string& state, ScreenWindow& window) {
    ResizeTo(window, display);
    const std::string where = state + " at " + std::to_string(display.width());
    const std::vector<QWidget*> shown = ShownIn(window);
    for (const QWidget* widget : shown) {
        ExpectRoomForItsText(where, *widget);
        const QWidget& above = *widget->parentWidget();
        if (HasText(*widget) && !ScrollsItsContent(above)) {
            EXPECT_TRUE(above.rect().contains(WordsOf(*widget)))
                << where << ": " << NameOf(*widget) << " runs out of " << NameOf(above);
        }
    }
    ExpectApart(where, shown);
}

void ExpectWholeTexts(const std::string& state, ScreenWindow& window) {
    constexpr std::array Displays{QSize(800, 600), QSize(1366, 768), QSize(1920, 1080)};
    for (const QSize& display : Displays) {
        ExpectWholeTextsOn(display, state, window);
    }
}

TEST_P(TextSizes, KeepEveryTextWhole) {
    const SystemText text(Metrics::BaseFont * GetParam());
    for (const Units units : {Units::Imperial, Units::Metric}) {
        VisitEveryScreen(units, ExpectWholeTexts);
    }
}

// --- languages ---

class Spoken : public ::testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Languages, Spoken,
                         ::testing::ValuesIn(UnlessSanitized(std::vector{"pseudo", "de", "es"},
                                                             std::vector{"pseudo"})),
                         [](const auto& each) { return std::string(each.param); });

/// What the screen itself scrolls: lists, tables and pictures have bars of their own.
void ExpectNothingBesideTheDisplay(const std::string& state, ScreenWindow& window) {
    const auto* area = window.Front()->findChild<QScrollArea*>();
    ASSERT_NE(area, nullptr) << state;
    if (area->horizontalScrollBar()->maximum() == 0) {
        return;
    }
    std::string beside;
    for (const QWidget* widget : ShownIn(window)) {
        if (area->widget()->isAncestorOf(widget) &&
            widget->mapTo(area->widget(), widget->rect().topRight()).x() >=
                area->viewport()->width()) {
            beside += " " + NameOf(*widget);
        }
    }
    ADD_FAILURE() << state << " at " << window.width() << ": "
                  << area->horizontalScrollBar()->maximum() << " pixels, with" << beside;
}

TEST_P(Spoken, NeedsNoScrollingSidewaysOnTheSmallestDisplay) {
    const SpokenLanguage language(GetParam());
    for (const Units units : {Units::Imperial, Units::Metric}) {
        VisitEveryScreen(units, [](const std::string& state, ScreenWindow& window) {
            ResizeTo(window, {800, 600});
            ExpectNothingBesideTheDisplay(state, window);
        });
    }
}

TEST_P(TextSizes, NeedNoScrollingSidewaysOnTheSmallestDisplay) {
    const SystemText text(Metrics::BaseFont * GetParam());
    for (const Units units : {Units::Imperial, Units::Metric}) {
        VisitEveryScreen(units, [](const std::string& state, ScreenWindow& window) {
            ResizeTo(window, {800, 600});
            ExpectNothingBesideTheDisplay(state, window);
        });
    }
}

// --- widths of the window ---

/// How often a widget was laid out or became another size.
class LayoutCount : public QObject {
  public:
    explicit LayoutCount(QWidget& widget) { widget.installEventFilter(this); }

    int Taken() { return std::exchange(count_, 0); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        count_ += event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest ? 1 : 0;
        return false;
    }

  private:
    int count_ = 0;
};

void ExpectControlsWithinTheirParents(const std::string& where, const ScreenWindow& window) {
    for (const QWidget* widget : ShownIn(window)) {
        const QWidget& above = *widget->parentWidget();
        if (HasText(*widget) && !ScrollsItsContent(above)) {
            EXPECT_TRUE(above.rect().contains(WordsOf(*widget)))
                << where << ": " << NameOf(*widget) << " runs out of " << NameOf(above);
        }
    }
}

/// The window from narrow to wide and back, at a height at which screens scroll up and down at some
/// widths and at others do not.
void ExpectRestAtEveryWidth(const std::string& state, ScreenWindow& window) {
    constexpr int Narrowest = 800;
    constexpr int Widest = 1920;
    constexpr int Step = UnlessSanitized(112, 560);
    constexpr int MostLayouts = 40; // of a change that comes to rest
    LayoutCount layouts(*window.Front()->findChild<QScrollArea*>()->widget());
    for (int way = -Widest; way <= Widest; way += Step) {
        const int width = std::max(Narrowest, std::abs(way));
        window.resize(width, 584);
        for (int i = 0; i < 3; ++i) { // what is laid out may lay out more
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
        const std::string where = state + " at " + std::to_string(width);
        EXPECT_LE(layouts.Taken(), MostLayouts) << where;
        EXPECT_TRUE(QTest::qWaitFor([&] { return layouts.Taken() == 0; })) << where;
        ExpectNothingBesideTheDisplay(state, window);
        ExpectControlsWithinTheirParents(where, window);
    }
}

TEST(EveryScreen, ComesToRestAtEveryWidth) {
    VisitEveryScreen(Units::Imperial, ExpectRestAtEveryWidth);
}

TEST(EveryScreen, ComesToRestAtEveryWidthWithLargeText) {
    const SystemText text(2 * Metrics::BaseFont);
    VisitEveryScreen(Units::Imperial, ExpectRestAtEveryWidth);
}

TEST(EveryScreen, ComesToRestAtEveryWidthWithLongTexts) {
    const SpokenLanguage language("pseudo");
    VisitEveryScreen(Units::Metric, ExpectRestAtEveryWidth);
}

/// On the smallest display: the others leave more room.
TEST_P(Spoken, KeepsTextsWholeMnemonicsApartAndControlsInReach) {
    const SpokenLanguage language(GetParam());
    for (const Units units : {Units::Imperial, Units::Metric}) {
        VisitEveryScreen(units, [units](const std::string& state, ScreenWindow& window) {
            ExpectWholeTextsOn({800, 600}, state, window);
            ExpectMnemonicsOnce(*window.Front(), state);
            if (units == Units::Imperial) {
                ExpectTabComesEverywhere(state, window);
            }
        });
    }
}

TEST(RightToLeft, KeepsEveryTextWhole) {
    const SpokenLanguage language("pseudo");
    QApplication::setLayoutDirection(Qt::RightToLeft);
    VisitEveryScreen(Units::Imperial, [](const std::string& state, ScreenWindow& window) {
        ExpectWholeTextsOn({800, 600}, state, window);
    });
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

/// Texts that stand on the screens as the language has them not: in no brackets.
TEST(PseudoLanguage, IsSpokenByEveryControl) {
    const SpokenLanguage language("pseudo");
    VisitEveryScreen(Units::Imperial, [](const std::string& state, ScreenWindow& window) {
        for (const QWidget* widget : ShownIn(window)) {
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            const auto* label = qobject_cast<const QLabel*>(widget);
            const QString text = button != nullptr  ? button->text()
                                 : label != nullptr ? label->text()
                                                    : QString();
            const bool hasWords = text.contains(QRegularExpression(QStringLiteral("[A-Za-z]{3}")));
            const bool isTitle = text == ToQt(ApplicationTitle);
            EXPECT_TRUE(!hasWords || isTitle || text.contains(QLatin1Char('[')))
                << state << ": " << FromQt(text);
        }
    });
}

// --- context menus ---

TEST(EveryScreen, OpensContextMenusByKeysToo) {
    std::set<std::string> seen;
    VisitEveryScreen(Units::Imperial, [&](const std::string& state, ScreenWindow& window) {
        const char* owner = state == "report"   ? Controls::reportText
                            : state == "result" ? Controls::layoutPicture
                                                : nullptr;
        if (owner == nullptr) {
            return;
        }
        Find(*window.Front(), owner).setFocus();
        Press(window, Qt::Key_F10, Qt::ShiftModifier);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr) << state;
        for (const QAction* action : menu->actions()) {
            EXPECT_TRUE(action->isSeparator() || !action->text().isEmpty()) << state;
        }
        EXPECT_TRUE(window.geometry().contains(menu->pos())) << state;
        menu->close();
        seen.insert(state);
    });
    EXPECT_EQ(seen, (std::set<std::string>{"report", "result"}));
}

} // namespace
} // namespace tarn
