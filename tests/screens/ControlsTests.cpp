// Tool tips, cut texts and accessible names of controls.

#include "screens/Controls.h"
#include "screens/ElidedLabel.h"
#include "screens/ScreenTesting.h"

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
