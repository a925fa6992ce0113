// The real message, question, input and file boxes.

#include "screens/Controls.h"
#include "screens/MessageBoxes.h"
#include "screens/ScreenTesting.h"
#include "store/TestDatabase.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace tarn {
namespace {

using namespace tarn::testing;

/// The boxes themselves, each looked at and closed while it stands.
struct MessageBoxesTest : ::testing::Test {
    /// Do `action` once a box stands. A box that it leaves open is closed.
    template <class Box>
    void WhenOpen(std::function<void(Box&)> action) {
        timer.setInterval(1);
        QObject::connect(&timer, &QTimer::timeout, [this, action = std::move(action)] {
            QWidget* top = QApplication::activeModalWidget();
            if (top == nullptr || !top->isVisible() || QApplication::activeWindow() != top) {
                return;
            }
            timer.stop();
            timer.disconnect();
            auto* box = qobject_cast<Box*>(top);
            EXPECT_NE(box, nullptr) << "another kind of box";
            const QPointer<QWidget> open = top;
            if (box != nullptr) {
                ++shown;
                EXPECT_EQ(box->windowTitle(), QStringLiteral("SOLVANE 2040"));
                action(*box);
            }
            if (open && open->isVisible()) {
                open->close();
            }
        });
        timer.start();
    }
    bool AskAndDo(std::function<void(QMessageBox&)> action) {
        WhenOpen<QMessageBox>(std::move(action));
        return boxes.AskYesNo("Delete <b>it</b>?\r\nReally?");
    }

    MessageBoxes real;
    Dialogs& boxes = real;
    QTimer timer;
    int shown = 0;
};

using RealBoxes = MessageBoxesTest;

TEST_F(RealBoxes, ShowAMessageAsItIsWritten) {
    WhenOpen<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), QStringLiteral("<b>P</b> is & stays\nlocked"));
        EXPECT_EQ(box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))->textFormat(),
                  Qt::PlainText);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    });
    boxes.Message("<b>P</b> is & stays\r\nlocked");
    EXPECT_EQ(shown, 1);
}

TEST_F(RealBoxes, ShowWhatBelongsToAMessageBelowIt) {
    WhenOpen<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), QStringLiteral("It failed."));
        EXPECT_EQ(box.informativeText(), QStringLiteral("<b>Why</b> & how\nto mend"));
        EXPECT_EQ(
            box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))->textFormat(),
            Qt::PlainText);
    });
    boxes.Message("It failed.", "<b>Why</b> & how\r\nto mend");
    WhenOpen<QMessageBox>([](QMessageBox& box) { EXPECT_EQ(box.informativeText(), QString()); });
    boxes.Message("It failed.");
    EXPECT_EQ(shown, 2);
}

TEST_F(RealBoxes, TakeOneLineOfWhatIsPastedIntoAnInput) {
    WhenOpen<QInputDialog>([](QInputDialog& box) {
        auto& line = *box.findChild<QLineEdit*>();
        line.selectAll();
        line.insert(QStringLiteral("old\tmill\x01\r\nhouse\uFFFE\n"));
        box.accept();
    });
    EXPECT_EQ(boxes.Input("Name?"), "old mill house");
    EXPECT_EQ(shown, 1);
}

TEST_F(RealBoxes, AskAsItIsWritten) {
    AskAndDo([](QMessageBox& box) {
        EXPECT_EQ(box.text(), QStringLiteral("Delete <b>it</b>?\nReally?"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
    });
    EXPECT_EQ(shown, 1);
}

TEST_F(RealBoxes, TakeReturnEscapeAndClosingForNo) {
    EXPECT_FALSE(AskAndDo([](QMessageBox& box) { Press(box, Qt::Key_Return); }));
    EXPECT_FALSE(AskAndDo([](QMessageBox& box) { Press(box, Qt::Key_Escape); }));
    EXPECT_FALSE(AskAndDo([](QMessageBox& box) { box.close(); }));
    EXPECT_FALSE(AskAndDo([](QMessageBox& box) { Click(*box.button(QMessageBox::No)); }));
    EXPECT_EQ(shown, 4);
}

TEST_F(RealBoxes, TakeAClickOnYesForYes) {
    EXPECT_TRUE(AskAndDo([](QMessageBox& box) { Click(*box.button(QMessageBox::Yes)); }));
}

TEST_F(RealBoxes, OfferActionsByTheirNames) {
    const auto choose = [this](std::function<void(QMessageBox&)> action) {
        WhenOpen<QMessageBox>(std::move(action));
        return boxes.Choose("Changed <b>it</b>.\r\nAnd now?", {"Replace it", "This & that"});
    };
    const auto button = [](const QMessageBox& box, const char* caption) -> QAbstractButton& {
        for (QAbstractButton* each : box.buttons()) {
            if (CaptionOf(*each) == QLatin1String(caption)) {
                return *each;
            }
        }
        throw std::runtime_error(std::string("there is no button ") + caption);
    };
    EXPECT_EQ(choose([&](QMessageBox& box) {
                  EXPECT_EQ(box.text(), QStringLiteral("Changed <b>it</b>.\nAnd now?"));
                  EXPECT_EQ(box.textFormat(), Qt::PlainText);
                  EXPECT_EQ(box.buttons().size(), 3);
                  Click(button(box, "Replace it"));
              }),
              0U);
    EXPECT_EQ(choose([&](QMessageBox& box) { Click(button(box, "This & that")); }), 1U);
    EXPECT_EQ(choose([](QMessageBox& box) { Click(*box.button(QMessageBox::Cancel)); }),
              std::nullopt);
    EXPECT_EQ(choose([](QMessageBox& box) { Press(box, Qt::Key_Return); }), std::nullopt);
    EXPECT_EQ(choose([](QMessageBox& box) { Press(box, Qt::Key_Escape); }), std::nullopt);
    EXPECT_EQ(choose([](QMessageBox& box) { box.close(); }), std::nullopt);
    EXPECT_EQ(shown, 6);
}

TEST_F(RealBoxes, GiveBackWhatIsTyped) {
    WhenOpen<QInputDialog>([](QInputDialog& box) {
        EXPECT_EQ(box.labelText(), QStringLiteral("Name?"));
        auto& field = Find<QLineEdit>(box, "");
        EXPECT_EQ(field.text(), QString());
        Type(field, " a \"b\" ");
        Press(box, Qt::Key_Return);
    });
    EXPECT_EQ(boxes.Input("Name?"), " a \"b\" ");
    EXPECT_EQ(shown, 1);
}

TEST_F(RealBoxes, BeginWithTheInitialTextSelected) {
    WhenOpen<QInputDialog>([](QInputDialog& box) {
        EXPECT_EQ(box.textValue(), QStringLiteral("houses?"));
        EXPECT_EQ(Find<QLineEdit>(box, "").selectedText(), QStringLiteral("houses?"));
        Press(box, Qt::Key_Return);
    });
    EXPECT_EQ(boxes.Input("Name?", "houses?"), "houses?");
}

TEST_F(RealBoxes, GiveNothingWhenAnInputIsCancelled) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_unknown}) {
        WhenOpen<QInputDialog>([key](QInputDialog& box) {
            Type(Find<QLineEdit>(box, ""), "typed");
            if (key == Qt::Key_Escape) {
                Press(box, key);
            } else {
                box.close();
            }
        });
        EXPECT_EQ(boxes.Input("Name?"), std::nullopt);
    }
    EXPECT_EQ(shown, 2);
}

TEST_F(RealBoxes, AddTheSuffixToAFilesName) {
    const TestFolder folder;
    WhenOpen<QFileDialog>([&](QFileDialog& box) {
        auto& field = Find<QLineEdit>(box, "fileNameEdit");
        EXPECT_EQ(field.text(), QStringLiteral("HOUSE.csv"));
        field.setText(ToQt(folder.Path("plan")));
        Click(*box.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save));
    });
    EXPECT_EQ(boxes.SaveFileName("HOUSE", "csv"), folder.Path("plan.csv"));
    WhenOpen<QFileDialog>([](QFileDialog& box) { Press(box, Qt::Key_Escape); });
    EXPECT_EQ(boxes.SaveFileName("HOUSE", "csv"), std::nullopt);
    EXPECT_EQ(shown, 2);
}

TEST_F(RealBoxes, AddTheSuffixToAFilesNameThatHoldsPoints) {
    const TestFolder folder;
    WhenOpen<QFileDialog>([](QFileDialog& box) {
        EXPECT_EQ(Find<QLineEdit>(box, "fileNameEdit").text(), QStringLiteral("ST. MARY 4.csv"));
    });
    EXPECT_EQ(boxes.SaveFileName("ST. MARY 4", "csv"), std::nullopt);
    const auto type = [&](QFileDialog& box) {
        Find<QLineEdit>(box, "fileNameEdit").setText(ToQt(folder.Path("plan.2")));
        Click(*box.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save));
    };
    WhenOpen<QFileDialog>(type);
    EXPECT_EQ(boxes.SaveFileName("HOUSE", "csv"), folder.Path("plan.2.csv"));
    EXPECT_EQ(shown, 2);
}

TEST_F(RealBoxes, AskAgainWhenTheFileWithTheSuffixIsThereAlready) {
    const TestFolder folder;
    QFile there(ToQt(folder.Path("plan.2.csv")));
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    WhenOpen<QFileDialog>([&](QFileDialog& box) {
        Find<QLineEdit>(box, "fileNameEdit").setText(ToQt(folder.Path("plan.2")));
        WhenOpen<QFileDialog>([](QFileDialog& again) {
            EXPECT_EQ(Find<QLineEdit>(again, "fileNameEdit").text(), QStringLiteral("plan.2.csv"));
            Press(again, Qt::Key_Escape);
        });
        Click(*box.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save));
    });
    EXPECT_EQ(boxes.SaveFileName("HOUSE", "csv"), std::nullopt);
    EXPECT_EQ(shown, 2);
}

} // namespace
} // namespace tarn
