#include "app/Controls.h"
#include "app/RunTimeError.h"
#include "engine/ESTFORM.h"
#include "engine/EngineTesting.h"
#include "engine/EstOptions.h"
#include "engine/MultiEstimate.h"
#include "screens/ControlChecks.h"
#include "screens/ScreenTesting.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <numeric>

namespace tarn {
namespace {

using namespace tarn::testing;

/// What the screen tells the estimate.
struct FakeClient : FillsClient {
    std::vector<std::string> Calls;
    Integer LengthSeen = 0;
    std::function<void()> OnLayout = [] {};
    std::function<void()> OnNoLayout = [] {};
    const EngineArrays* Engine = nullptr;

    void LayoutReady() override {
        Calls.emplace_back("layout");
        LengthSeen = Engine->ResultLen;
        OnLayout();
    }
    void NoLayout() override {
        Calls.emplace_back("none");
        OnNoLayout();
    }
};

struct OptionsScreen : ScreenTest {
    OptionsScreen() {
        engine.RollWidth = 144;
        engine.FillFlag = 1;
        client.Engine = &engine;
    }

    void AddPieces(int count) {
        for (int i = 0; i < count; ++i) {
            AddPiece(engine, {20.0 + i % 50, 60.0 + 7 * (i % 31)});
        }
    }
    ESTFORM& Open() {
        form = std::make_unique<ESTFORM>(session, client);
        ShowOnDisplay(*form);
        return *form;
    }
    QRadioButton& Option(const char* name) const { return Find<QRadioButton>(*form, name); }
    QPushButton& Continue() const { return Find<QPushButton>(*form, "Command1"); }

    FakeClient client;
    std::unique_ptr<ESTFORM> form;
};

TEST_F(OptionsScreen, HasItsTitlesAndCaptions) {
    Open();
    EXPECT_EQ(form->Caption(), QStringLiteral("ESTIMATION OPTIONS"));
    const std::vector<std::pair<const char*, const char*>> labels{
        {"PTitle", "SOLVANE 2040"},
        {"FTitle", "*ESTIMATION OPTIONS*"},
        {"Label5", "ESTIMATING FILLS MENU"},
        {"Label1", "MINIMUM CUT LENGTH"},
        {"Label4", "SELECT"},
        {"Label2", "MAXIMUM NUMBER OF PIECES PER FILL"},
        {"Label3", "SELECT"}};
    for (const auto& [name, text] : labels) {
        EXPECT_EQ(Find<QLabel>(*form, name).text(), QLatin1String(text)) << name;
    }
    EXPECT_EQ(CaptionOf(Option("Option2(0)")), QStringLiteral("3 FT"));
    EXPECT_EQ(CaptionOf(Option("Option2(1)")), QStringLiteral("1FT 6\""));
    EXPECT_EQ(CaptionOf(Option("Option2(2)")), QStringLiteral("1/2FT"));
    for (int i = 0; i < 6; ++i) {
        auto& option = Option(IndexedName("Option1", i).toLatin1().constData());
        EXPECT_EQ(CaptionOf(option), QString::number(i + 1));
        EXPECT_EQ(option.accessibleName(), QString::number(i + 1));
    }
    EXPECT_EQ(CaptionOf(Continue()), QStringLiteral("Continue"));
}

TEST_F(OptionsScreen, UsesEachNameAndMnemonicOnce) {
    Open();
    ExpectNamesAndMnemonicsOnce(*form, 7);
}

TEST_F(OptionsScreen, HasMetricCaptionsAndTellsTheLengthsInForce) {
    Open();
    EXPECT_TRUE(Option("Option2(0)").toolTip().endsWith(QStringLiteral("3 inches")));
    EXPECT_TRUE(Option("Option2(2)").toolTip().endsWith(QStringLiteral("0.5 inch")));
    state.MetricFlag = 1;
    Open();
    EXPECT_EQ(CaptionOf(Option("Option2(0)")), QStringLiteral("91 cm"));
    EXPECT_EQ(CaptionOf(Option("Option2(1)")), QStringLiteral("46 cm"));
    EXPECT_EQ(CaptionOf(Option("Option2(2)")), QStringLiteral("15 cm"));
    EXPECT_TRUE(Option("Option2(1)").toolTip().endsWith(QStringLiteral("9.7 cm")));
}

TEST_F(OptionsScreen, CannotContinueBeforeANumberOfPiecesIsChosen) {
    AddPieces(3);
    Open();
    EXPECT_TRUE(Option("Option2(0)").isChecked());
    for (int i = 0; i < 6; ++i) {
        EXPECT_FALSE(Option(IndexedName("Option1", i).toLatin1().constData()).isChecked());
    }
    EXPECT_FALSE(Continue().isEnabled());
    Click(Option("Option2(1)"));
    EXPECT_FALSE(Continue().isEnabled());
    Click(Option("Option1(4)"));
    EXPECT_TRUE(Continue().isEnabled());
    EXPECT_TRUE(Option("Option2(1)").isChecked()) << "the groups are apart";
}

TEST_F(OptionsScreen, PacksEveryPairOfChoices) {
    for (Integer minCut = 0; minCut < 3; ++minCut) {
        for (Integer pieces = 1; pieces <= 6; ++pieces) {
            engine.PieceCount = 0;
            AddPieces(2);
            Open();
            Click(Option(IndexedName("Option2", minCut).toLatin1().constData()));
            Click(Option(IndexedName("Option1", pieces - 1).toLatin1().constData()));
            Click(Continue());
            EXPECT_EQ(state.EstOption, 10 * minCut + pieces - 1);
        }
    }
}

TEST_F(OptionsScreen, SearchesAndHandsTheLayoutBack) {
    AddPieces(8);
    EngineArrays expected = engine;
    SharedState choices;
    choices.EstOption = PackEstOption(1, 2);
    SearchObserver nobody;
    ASSERT_EQ(MultiEstimate(choices, expected, nobody), SearchOutcome::Done);

    Open();
    Click(Option("Option2(1)"));
    Click(Option("Option1(1)"));
    client.OnLayout = [&] {
        EXPECT_TRUE(screens.Calls.empty()) << "drawn before the screen goes";
        EXPECT_FALSE(Find<QProgressBar>(*form, "ProgressBar1").isVisible());
    };
    Click(Continue());
    EXPECT_EQ(client.Calls, std::vector<std::string>{"layout"});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
    EXPECT_EQ(client.LengthSeen, expected.ResultLen);
    EXPECT_GT(expected.ResultLen, 0);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(OptionsScreen, ContinuesWithTheKeyboardAlone) {
    AddPieces(3);
    Open();
    EXPECT_TRUE(Option("Option2(0)").hasFocus());
    Press(*form, Qt::Key_Down);
    EXPECT_TRUE(Option("Option2(1)").isChecked());
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(Option("Option1(0)").hasFocus());
    Press(*form, Qt::Key_Space);
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(Continue().hasFocus());
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(client.Calls, std::vector<std::string>{"layout"});
    EXPECT_EQ(state.EstOption, 10);
}

/// Runs `look` at the first chance that the search gives the window system.
void DuringSearch(QObject& context, std::function<void()> look) {
    QTimer::singleShot(0, &context, std::move(look));
}

TEST_F(OptionsScreen, ShowsProgressAndTakesNoChoiceWhileItSearches) {
    AddPieces(200);
    Open();
    auto& bar = Find<QProgressBar>(*form, "ProgressBar1");
    auto& percentage = Find<QLabel>(*form, "Label6");
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(percentage.isVisible());
    Click(Option("Option1(3)"));
    bool looked = false;
    DuringSearch(*form, [&] {
        looked = true;
        EXPECT_TRUE(bar.isVisible());
        EXPECT_TRUE(percentage.isVisible());
        EXPECT_FALSE(Continue().isEnabled());
        EXPECT_FALSE(Option("Option1(0)").isEnabled());
        EXPECT_FALSE(Option("Option2(2)").isEnabled());
        EXPECT_EQ(bar.minimum(), 0);
        EXPECT_EQ(bar.maximum(), 3 * (engine.CaseCount + engine.MaxParts));
    });
    std::vector<int> steps;
    QObject::connect(&bar, &QProgressBar::valueChanged, &bar,
                     [&](int value) { steps.push_back(value); });
    Click(Continue());
    EXPECT_TRUE(looked);
    std::vector<int> eachOne(static_cast<std::size_t>(bar.maximum()) + 1);
    std::iota(eachOne.begin(), eachOne.end(), 0); // it begins by taking the bar to 0
    EXPECT_EQ(steps, eachOne);
    EXPECT_EQ(bar.value(), bar.maximum()) << "one step for each scored placement";
    EXPECT_EQ(percentage.text(), QStringLiteral("100%"));
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(percentage.isVisible());
}

TEST_F(OptionsScreen, TellsTheWholePercentagesReached) {
    AddPieces(200);
    Open();
    auto& bar = Find<QProgressBar>(*form, "ProgressBar1");
    const auto& percentage = Find<QLabel>(*form, "Label6");
    EXPECT_EQ(bar.accessibleName(), QStringLiteral("Search progress"));
    EXPECT_EQ(percentage.minimumWidth(),
              percentage.fontMetrics().horizontalAdvance(QStringLiteral("100%")));
    Click(Option("Option1(3)"));
    int looks = 0;
    // The text follows the bar: behind step n stands what belongs to step n - 1.
    QObject::connect(&bar, &QProgressBar::valueChanged, &bar, [&](int value) {
        if (value > 0) {
            ++looks;
            const int whole = (value - 1) * 100 / bar.maximum();
            EXPECT_EQ(percentage.text(), QString::number(whole) + QLatin1Char('%')) << value;
        }
    });
    Click(Continue());
    EXPECT_EQ(looks, bar.maximum());
}

TEST_F(OptionsScreen, SearchesNothingWithoutPieces) {
    Open();
    Click(Option("Option1(0)"));
    Click(Continue());
    EXPECT_EQ(client.Calls, std::vector<std::string>{"none"});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
    EXPECT_FALSE(Find<QProgressBar>(*form, "ProgressBar1").isVisible());
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(OptionsScreen, StopsAlsoLaterInTheSearchAfterThePlacementInHand) {
    AddPieces(200);
    Open();
    Click(Option("Option1(3)"));
    const auto& bar = Find<QProgressBar>(*form, "ProgressBar1");
    int stoppedAt = 0;
    QObject::connect(&bar, &QProgressBar::valueChanged, &bar, [&](int value) {
        if (stoppedAt == 0 && value > bar.maximum() / 2) {
            stoppedAt = value;
            form->CloseByFrame();
        }
    });
    Click(Continue());
    ASSERT_GT(stoppedAt, 0);
    EXPECT_LE(bar.value(), stoppedAt + 1);
    EXPECT_EQ(client.Calls, std::vector<std::string>{"none"});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(Find<QLabel>(*form, "Label6").isVisible());
}

TEST_F(OptionsScreen, DropsTheLayoutWhenItIsClosedAtTheVeryEnd) {
    AddPieces(8);
    Open();
    Click(Option("Option1(0)"));
    const auto& bar = Find<QProgressBar>(*form, "ProgressBar1");
    QObject::connect(&bar, &QProgressBar::valueChanged, form.get(), [&](int value) {
        if (value == bar.maximum()) { // queued as the window system does it
            QMetaObject::invokeMethod(
                form.get(), [this] { form->CloseByFrame(); }, Qt::QueuedConnection);
        }
    });
    Click(Continue());
    QCoreApplication::processEvents();
    EXPECT_EQ(client.Calls, std::vector<std::string>{"none"});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
    EXPECT_FALSE(bar.isVisible());
}

TEST_F(OptionsScreen, StopsTheSearchWhenItIsClosed) {
    AddPieces(200);
    Open();
    Click(Option("Option1(3)"));
    DuringSearch(*form, [&] {
        form->CloseByFrame();
        EXPECT_TRUE(client.Calls.empty()) << "the search is still on the stack";
        EXPECT_TRUE(screens.Calls.empty());
    });
    Click(Continue());
    EXPECT_EQ(client.Calls, std::vector<std::string>{"none"});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
    const auto& bar = Find<QProgressBar>(*form, "ProgressBar1");
    EXPECT_LT(bar.value(), bar.maximum());
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(Find<QLabel>(*form, "Label6").isVisible());
}

TEST_F(OptionsScreen, LeavesNoLayoutWhenItIsClosedWithoutASearch) {
    AddPieces(2);
    Open();
    form->CloseByFrame();
    EXPECT_EQ(client.Calls, std::vector<std::string>{"none"});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
}

TEST_F(OptionsScreen, TellsAnErrorOfTheSearchOnceAndGoesBack) {
    engine.RollWidth = 144;
    for (int i = 0; i < 3; ++i) {
        AddPiece(engine, {140, 30000});
    }
    Open();
    Click(Option("Option1(0)"));
    Click(Continue());
    EXPECT_EQ(
        boxes.Messages,
        std::vector<std::string>{
            "Run-time error '6':\r\n\r\nOverflow\r\nThe fills could not be laid out. The fills "
            "need more than 32767 inches of roll: estimate the rooms in two projects."});
    EXPECT_EQ(client.Calls, std::vector<std::string>{"none"});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
    EXPECT_FALSE(Find<QProgressBar>(*form, "ProgressBar1").isVisible());
    EXPECT_FALSE(Find<QLabel>(*form, "Label6").isVisible());
}

TEST_F(OptionsScreen, EmptiesTheEstimateWhenTheLayoutCannotBeDrawn) {
    AddPieces(2);
    Open();
    client.OnLayout = [] { RaiseDivisionByZero(); };
    Click(Option("Option1(0)"));
    Click(Continue());
    EXPECT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(client.Calls, (std::vector<std::string>{"layout", "none"}));
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
}

TEST_F(OptionsScreen, GoesBackAlsoWhenTheEstimateCannotBeEmptied) {
    client.OnNoLayout = [] { throw std::runtime_error("No memory."); };
    Open();
    Click(Option("Option1(0)"));
    Click(Continue());
    EXPECT_EQ(boxes.Messages,
              std::vector<std::string>{"The estimate could not be emptied. No memory."});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
    form->CloseByFrame();
    EXPECT_EQ(boxes.Messages.size(), 2U);
    EXPECT_EQ(screens.Calls, (std::vector<std::string>{"return", "return"}));
}

} // namespace
} // namespace tarn
