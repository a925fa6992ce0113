// Controls that make do with less width than they would like.

#include "screens/Arrangement.h"
#include "screens/Controls.h"
#include "screens/Narrowing.h"
#include "screens/ScreenTesting.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gmock/gmock.h>

#include <array>
#include <limits>
#include <memory>
#include <vector>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;

constexpr int Unbounded = std::numeric_limits<int>::max() / 2;

// --- columns ---

struct Columns : ::testing::Test {
    Columns() {
        columns.addWidget(first);
        columns.addWidget(second);
        first->setMinimumWidth(200);
        second->setMinimumWidth(300);
    }

    QWidget panel;
    QHBoxLayout columns{&panel};
    QLineEdit* first = new QLineEdit;
    QLineEdit* second = new QLineEdit;
};

TEST_F(Columns, AskForTheSameWidthHoweverTheyStand) {
    for (const bool stacked : {false, true, false}) {
        SetStacked(columns, stacked);
        EXPECT_EQ(LeastWidth(columns), 500 + columns.spacing());
        EXPECT_EQ(NaturalWidth(columns), 500 + columns.spacing());
        EXPECT_EQ(columns.direction() == QBoxLayout::TopToBottom, stacked);
    }
    first->setMinimumWidth(0);
    EXPECT_GT(NaturalWidth(columns), LeastWidth(columns)) << "a field likes to be wider";
}

// --- captions ---

int WidthOf(const QLabel& label, const char* text) {
    return label.fontMetrics().size(Qt::TextShowMnemonic, QString::fromUtf8(text)).width();
}

TEST(WrapWithin, BreaksACaptionOnlyWhereItIsTooWide) {
    QWidget window;
    QLineEdit field(&window);
    QLabel& label = *NewLabelFor(field, &window, "Caption", "MOST   PIECES PER &FILL");
    const QString whole = label.text();
    WrapWithin(label, Unbounded);
    EXPECT_EQ(label.text(), whole);
    WrapWithin(label, label.sizeHint().width());
    EXPECT_EQ(label.text(), whole);
    WrapWithin(label, label.sizeHint().width() - 1);
    EXPECT_EQ(FromQt(label.text()), "MOST   PIECES PER\n&FILL");
    WrapWithin(label, WidthOf(label, "PIECES PER"));
    EXPECT_EQ(FromQt(label.text()), "MOST  \nPIECES PER\n&FILL");
    WrapWithin(label, 1);
    EXPECT_LE(label.sizeHint().width(), WidthOf(label, "PIECES")) << "a word is not broken";
    EXPECT_EQ(FromQt(label.accessibleName()), "MOST   PIECES PER FILL");
    WrapWithin(label, Unbounded);
    EXPECT_EQ(label.text(), whole);
}

TEST(WrapWithin, BreaksTheCaptionOfAnOption) {
    QWidget window;
    QCheckBox box(&window);
    SetCaption(box, "&JOIN ROOMS NO WIDER THAN THE ROLL");
    const QString whole = box.text();
    const int width = box.sizeHint().width();
    WrapWithin(box, width);
    EXPECT_EQ(box.text(), whole);
    WrapWithin(box, width - 1);
    EXPECT_EQ(FromQt(box.text()), "&JOIN ROOMS NO WIDER THAN THE\nROLL");
    EXPECT_LT(box.sizeHint().width(), width);
    WrapWithin(box, width / 2);
    EXPECT_LE(box.sizeHint().width(), width / 2);
    EXPECT_EQ(FromQt(box.accessibleName()), "JOIN ROOMS NO WIDER THAN THE ROLL");
    WrapWithin(box, width);
    EXPECT_EQ(box.text(), whole);
}

// --- buttons ---

/// Five buttons, the last two at the end, and the same in a row of the toolkit.
struct WrappingRows : ::testing::Test {
    static constexpr std::array<const char*, 5> Captions{"NEXT", "PREVIOUS ROOM", "DELETE", "E",
                                                         "REPORT OF ALL"};

    WrappingRows() {

        window.setLayout(row);
        SetSpacing(*plain, 0);
        for (std::size_t i = 0; i < Captions.size(); ++i) {
            const bool isAtTheEnd = i == 3;
            QPushButton* button = NewButton(&window, Captions[i], Captions[i]);
            button->ensurePolished(); // gives it its size
            row->Add(*button, isAtTheEnd);
            if (isAtTheEnd) {
                plain->addStretch();
            }
            QPushButton* other = NewButton(&beside, Captions[i], Captions[i]);
            other->ensurePolished();
            plain->addWidget(other);
        }
    }
    void Show(int width) {
        for (QWidget* each : {&beside, &window}) {
            each->resize(width, each->sizeHint().height());
            each->show();
        }
        QCoreApplication::processEvents();
    }
    static std::vector<QRect> Places(const QWidget& panel) {
        std::vector<QRect> places;
        places.reserve(std::size(Captions));
        for (const char* caption : Captions) {
            places.push_back(Find(panel, caption).geometry());
        }
        return places;
    }
    std::vector<int> Tops() {
        std::vector<int> tops;
        tops.reserve(std::size(Captions));
        for (const QRect& place : Places(window)) {
            tops.push_back(place.top());
        }
        return tops;
    }

    QWidget beside;
    QWidget window;
    QHBoxLayout* plain = new QHBoxLayout(&beside);
    WrappingRow* row = new WrappingRow;
};

TEST_F(WrappingRows, StandAsInAnyRowWhereTheyFit) {
    const int natural = plain->sizeHint().width();
    EXPECT_EQ(row->sizeHint().width(), natural);
    for (const int width : {natural, natural + 57, natural + 400}) {
        row->SetRoom(width);
        Show(width);
        EXPECT_EQ(Places(window), Places(beside)) << width;
    }
}

TEST_F(WrappingRows, GoOnBelowWhereTheyDoNot) {
    const int natural = row->sizeHint().width();
    const int high = row->sizeHint().height();
    row->SetRoom(natural - 1);
    Show(natural - 1);
    EXPECT_LT(row->sizeHint().width(), natural);
    EXPECT_GT(row->sizeHint().height(), 2 * high - 1);
    const std::vector<int> tops = Tops();
    EXPECT_THAT(tops, ElementsAre(tops[0], tops[0], tops[0], tops[0], tops[4]));
    EXPECT_GT(tops[4], tops[0]);
    const auto places = Places(window);
    EXPECT_EQ(places[4].right(), places[3].right()) << "at the end of its row, too";
    EXPECT_EQ(places[4].width(), Find(window, Captions[4]).sizeHint().width());
    for (const QRect& place : places) {
        EXPECT_TRUE(window.rect().contains(place));
    }
    row->SetRoom(natural);
    EXPECT_EQ(row->sizeHint(), QSize(natural, high)) << "and back";
}

TEST_F(WrappingRows, HaveAtLeastOneButtonInEach) {
    row->SetRoom(0);
    Show(row->sizeHint().width());
    const std::vector<int> tops = Tops();
    for (std::size_t i = 1; i < tops.size(); ++i) {
        EXPECT_GT(tops[i], tops[i - 1]);
    }
}

TEST_F(WrappingRows, KeepTheFocusOfAButtonThatMoves) {
    Show(row->sizeHint().width());
    auto& last = Find(window, Captions[4]);
    Focus(last);
    row->SetRoom(0);
    QCoreApplication::processEvents();
    EXPECT_TRUE(last.hasFocus());
    EXPECT_EQ(row->count(), 5);
}

} // namespace
} // namespace tarn
