// Tool tips, cut texts and accessible names of controls.

#include "screens/Controls.h"
#include "screens/ElidedLabel.h"
#include "screens/ScreenTesting.h"

#include <QPushButton>

namespace tarn {
namespace {

using namespace tarn::testing;

constexpr const char* Names[] = {"SMITH & SONS",   "SMITH &amp; SONS", "A \"BIG\" HOUSE",
                                 "<B>MILL</B>",    "<br> & \"END\"",   "A < B > C",
                                 "TWO  BLANKS <I>"};

TEST(SetToolTip, ShowsATextAsItIsWritten) {
    QWidget widget;
    for (const char* name : Names) {
        SetToolTip(widget, ToQt(name));
        EXPECT_EQ(ShownToolTip(widget), name);
    }
    SetToolTip(widget, {});
    EXPECT_EQ(widget.toolTip(), QString());
}

/// A window with a button that Alt+P presses, and how often that happened.
struct ButtonKeys : ::testing::Test {
    ButtonKeys() {
        button = NewButton(&window, QStringLiteral("Button"), "&Press");
        QObject::connect(button, &QPushButton::clicked, [this] { ++pressed; });
        ShowOnDisplay(window);
    }
    /// Alt+P goes down, or is repeated as it is held.
    void KeyDown(bool repeated) {
        qt_sendShortcutOverrideEvent(&window, 0, Qt::Key_P, Qt::AltModifier, {}, repeated);
    }

    QWidget window;
    QPushButton* button = nullptr;
    int pressed = 0;
};

TEST_F(ButtonKeys, PressAtOnce) {
    KeyDown(false);
    EXPECT_EQ(pressed, 1);
    EXPECT_FALSE(button->isDown());
    KeyDown(false);
    EXPECT_EQ(pressed, 2);
}

TEST_F(ButtonKeys, PressOnceHoweverLongTheyAreHeld) {
    KeyDown(false);
    for (int i = 0; i < 30; ++i) {
        KeyDown(true);
    }
    EXPECT_EQ(pressed, 1);
}

TEST_F(ButtonKeys, PressNothingThatIsDisabled) {
    button->setEnabled(false);
    KeyDown(false);
    EXPECT_EQ(pressed, 0);
}

TEST_F(ButtonKeys, PressOnceAfterTheCaptionChanged) {
    SetCaption(*button, "&Press again");
    KeyDown(false);
    EXPECT_EQ(pressed, 1);
}

TEST(ElidedLabels, ShowACutTextWholeAndAsItIsWrittenInTheToolTip) {
    ElidedLabel label;
    label.resize(20, 20);
    for (const char* name : Names) {
        label.setText(ToQt(name));
        label.grab();
        EXPECT_EQ(ShownToolTip(label), name);
    }
    label.resize(2000, 20);
    label.grab();
    EXPECT_EQ(label.toolTip(), QString());
}

TEST(SetText, GivesALabelItsAccessibleName) {
    const std::unique_ptr<QLabel> label(NewLabel(nullptr, QStringLiteral("Label1"), "before"));
    SetText(*label, "5 < 6 & \"7\"");
    EXPECT_EQ(label->text(), QStringLiteral("5 < 6 & \"7\""));
    EXPECT_EQ(label->accessibleName(), label->text());
    EXPECT_EQ(label->objectName(), QStringLiteral("Label1"));
}

} // namespace
} // namespace tarn
