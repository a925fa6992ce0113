#include "base/RunTimeError.h"
#include "estimate/EstimateTesting.h"
#include "estimate/MinCuts.h"
#include "screens/ControlChecks.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/ScreenTesting.h"
#include "screens/estimate/OptionsScreen.h"

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
struct FakeClient : EstimateClient {
    std::vector<std::string> Calls;
    std::optional<Estimate> Seen;
    std::optional<FillChoices> First;
    std::function<void()> OnEstimate = [] {};
    std::function<void()> OnNoEstimate = [] {};

    void EstimateReady(const Estimate& estimate) override {
        Calls.emplace_back("estimate");
        Seen = estimate;
        OnEstimate();
    }
    std::optional<FillChoices> FirstChoices() const override { return First; }
    void NoEstimate() override {
        Calls.emplace_back("none");
        OnNoEstimate();
    }
};

/// The options for the first carpet on the 12 ft roll.
struct OptionsScreens : FormTest<OptionsScreen> {
    /// Rooms narrower than the roll: each is one fill.
    void AddFills(int count) {
        for (int i = 0; i < count; ++i) {
            Add({20 + i % 50, 60 + 7 * (i % 31)});
        }
    }
    void Add(const Sized& room) { open.Now.Rooms.push_back(room.AsRoom()); }
    EstimateRequest Asked() const {
        EstimateRequest request = Request(144);
        request.In = open.Shown;
        return request;
    }
    OptionsScreen& Open() {
        form = std::make_unique<OptionsScreen>(session, Asked(), client);
        ShowOnDisplay(*form);
        return *form;
    }
    QRadioButton& Option(const char* name) const { return Control<QRadioButton>(name); }
    QPushButton& Continue() const { return Button(Controls::layOutFills); }
    QProgressBar& Bar() const { return Control<QProgressBar>(Controls::searchProgress); }
    QLabel& Percentage() const { return Control<QLabel>(Controls::searchPercentage); }

    FakeClient client;
};

TEST_F(OptionsScreens, TakesQuickKeys) {
    AddFills(3);
    Open();
    Press(*form, Qt::Key_3, Qt::AltModifier);
    EXPECT_TRUE(Option(Controls::piecesPerFill[2]).hasFocus());
    Press(*form, Qt::Key_C, Qt::AltModifier);
    ASSERT_TRUE(client.Seen);
    EXPECT_EQ(client.Seen->Request.PiecesPerFill, 3);
}

TEST_F(OptionsScreens, HasItsTitlesAndCaptions) {
    Open();
    EXPECT_EQ(form->Caption(), QStringLiteral("ESTIMATION OPTIONS"));
    const std::vector<std::pair<const char*, const char*>> labels{
        {Controls::productTitle, "SOLVANE 2040"},
        {Controls::formTitle, "*ESTIMATION OPTIONS*"},
        {Controls::optionsHeading, "ESTIMATING FILLS MENU"},
        {Controls::minCutHeading, "MINIMUM CUT LENGTH"},
        {Controls::minCutSelect, "SELECT"},
        {Controls::piecesHeading, "MAXIMUM NUMBER OF PIECES PER FILL"},
        {Controls::piecesSelect, "SELECT"}};
    for (const auto& [name, text] : labels) {
        EXPECT_EQ(Control<QLabel>(name).text(), QLatin1String(text)) << name;
    }
    EXPECT_EQ(CaptionOf(Option(Controls::minCuts[0])), QStringLiteral("3 FT"));
    EXPECT_EQ(CaptionOf(Option(Controls::minCuts[1])), QStringLiteral("1FT 6\""));
    EXPECT_EQ(CaptionOf(Option(Controls::minCuts[2])), QStringLiteral("1/2FT"));
    int pieces = 0;
    for (const char* name : Controls::piecesPerFill) {
        const QString number = QString::number(++pieces);
        EXPECT_EQ(CaptionOf(Option(name)), number);
        EXPECT_EQ(Option(name).accessibleName(), number);
    }
    EXPECT_EQ(CaptionOf(Continue()), QStringLiteral("Continue"));
}

TEST_F(OptionsScreens, UsesEachNameAndMnemonicOnce) {
    Open();
    ExpectNamesAndMnemonicsOnce(*form, 7);
}

TEST_F(OptionsScreens, HasMetricCaptionsAndTellsTheLengthsInForce) {
    Open();
    EXPECT_TRUE(Option(Controls::minCuts[0]).toolTip().endsWith(QStringLiteral("3 inches")));
    EXPECT_TRUE(Option(Controls::minCuts[2]).toolTip().endsWith(QStringLiteral("0.5 inch")));
    open.Shown = Units::Metric;
    Open();
    EXPECT_EQ(CaptionOf(Option(Controls::minCuts[0])), QStringLiteral("91 cm"));
    EXPECT_EQ(CaptionOf(Option(Controls::minCuts[1])), QStringLiteral("46 cm"));
    EXPECT_EQ(CaptionOf(Option(Controls::minCuts[2])), QStringLiteral("15 cm"));
    EXPECT_TRUE(Option(Controls::minCuts[1]).toolTip().endsWith(QStringLiteral("9.7 cm")));
}

TEST_F(OptionsScreens, CannotContinueBeforeANumberOfPiecesIsChosen) {
    AddFills(3);
    Open();
    EXPECT_TRUE(Option(Controls::minCuts[0]).isChecked());
    for (const char* name : Controls::piecesPerFill) {
        EXPECT_FALSE(Option(name).isChecked()) << name;
    }
    EXPECT_FALSE(Continue().isEnabled());
    Click(Option(Controls::minCuts[1]));
    EXPECT_FALSE(Continue().isEnabled());
    Click(Option(Controls::piecesPerFill[4]));
    EXPECT_TRUE(Continue().isEnabled());
    EXPECT_TRUE(Option(Controls::minCuts[1]).isChecked()) << "the groups are apart";
}

TEST_F(OptionsScreens, CompletesTheRequestWithEveryPairOfChoices) {
    AddFills(2);
    for (std::size_t minCut = 0; minCut < AllMinCuts.size(); ++minCut) {
        for (Integer pieces = 1; pieces <= 6; ++pieces) {
            Open();
            Click(Option(Controls::minCuts.at(minCut)));
            Click(Option(Controls::piecesPerFill.at(static_cast<std::size_t>(pieces - 1))));
            Click(Continue());
            ASSERT_TRUE(client.Seen);
            EXPECT_EQ(client.Seen->Request, WithParts(Asked(), AllMinCuts.at(minCut), pieces));
        }
    }
}

TEST_F(OptionsScreens, SearchesAndHandsTheEstimateBack) {
    AddFills(8);
    SearchObserver nobody;
    const Estimate expected =
        MakeEstimate(open.Now, WithParts(Asked(), MinCut::FootAndAHalf, 2), nobody);
    Open();
    Click(Option(Controls::minCuts[1]));
    Click(Option(Controls::piecesPerFill[1]));
    client.OnEstimate = [&] {
        EXPECT_TRUE(screens.Calls.empty()) << "drawn before the screen goes";
        EXPECT_FALSE(Bar().isVisible());
    };
    Click(Continue());
    EXPECT_EQ(client.Calls, std::vector<std::string>{"estimate"});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
    EXPECT_EQ(client.Seen, expected);
    EXPECT_GT(expected.Fills.Length, 0);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(OptionsScreens, ContinuesWithTheKeyboardAlone) {
    AddFills(3);
    Open();
    EXPECT_TRUE(Option(Controls::minCuts[0]).hasFocus());
    Press(*form, Qt::Key_Down);
    EXPECT_TRUE(Option(Controls::minCuts[1]).isChecked());
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(Option(Controls::piecesPerFill[0]).hasFocus());
    Press(*form, Qt::Key_Space);
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(Continue().hasFocus());
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(client.Calls, std::vector<std::string>{"estimate"});
    ASSERT_TRUE(client.Seen);
    EXPECT_EQ(client.Seen->Request, WithParts(Asked(), MinCut::FootAndAHalf, 1));
}

TEST_F(OptionsScreens, BeginsWithTheChoicesThatItIsToBeginWith) {
    AddFills(3);
    client.First = {MinCut::HalfFoot, 4};
    Open();
    EXPECT_TRUE(Option(Controls::minCuts[2]).isChecked());
    EXPECT_TRUE(Option(Controls::minCuts[2]).hasFocus());
    EXPECT_TRUE(Option(Controls::piecesPerFill[3]).isChecked());
    EXPECT_TRUE(Continue().isEnabled());
    Click(Continue());
    ASSERT_TRUE(client.Seen);
    EXPECT_EQ(client.Seen->Request, WithParts(Asked(), MinCut::HalfFoot, 4));
}

TEST_F(OptionsScreens, TakesEnterOnAnOptionForContinue) {
    AddFills(3);
    Open();
    Press(*form, Qt::Key_Return);
    EXPECT_TRUE(client.Calls.empty()) << "no number of pieces is chosen";
    Click(Option(Controls::piecesPerFill[1]));
    Press(*form, Qt::Key_Enter);
    ASSERT_TRUE(client.Seen);
    EXPECT_EQ(client.Seen->Request.PiecesPerFill, 2);
}

TEST_F(OptionsScreens, ClosesWithEscape) {
    AddFills(2);
    Open();
    Press(*form, Qt::Key_Escape);
    EXPECT_EQ(client.Calls, std::vector<std::string>{"none"});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
}

/// Runs `look` at the first chance that the search gives the window system.
void DuringSearch(QObject& context, std::function<void()> look) {
    QTimer::singleShot(0, &context, std::move(look));
}

TEST_F(OptionsScreens, ShowsProgressAndTakesNoChoiceWhileItSearches) {
    AddFills(200);
    Open();
    auto& bar = Bar();
    auto& percentage = Percentage();
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(percentage.isVisible());
    Click(Option(Controls::piecesPerFill[3]));
    bool looked = false;
    DuringSearch(*form, [&] {
        looked = true;
        EXPECT_TRUE(bar.isVisible());
        EXPECT_TRUE(percentage.isVisible());
        EXPECT_FALSE(Continue().isEnabled());
        EXPECT_FALSE(Option(Controls::piecesPerFill[0]).isEnabled());
        EXPECT_FALSE(Option(Controls::minCuts[2]).isEnabled());
        EXPECT_EQ(bar.minimum(), 0);
    });
    std::vector<int> steps;
    QObject::connect(&bar, &QProgressBar::valueChanged, &bar,
                     [&](int value) { steps.push_back(value); });
    Click(Continue());
    EXPECT_TRUE(looked);
    ASSERT_TRUE(client.Seen);
    EXPECT_EQ(bar.maximum(), 3 * (client.Seen->Fills.Cases + client.Seen->Job.MostParts));
    std::vector<int> eachOne(static_cast<std::size_t>(bar.maximum()) + 1);
    std::iota(eachOne.begin(), eachOne.end(), 0); // it begins by taking the bar to 0
    EXPECT_EQ(steps, eachOne);
    EXPECT_EQ(bar.value(), bar.maximum()) << "one step for each scored placement";
    EXPECT_EQ(percentage.text(), QStringLiteral("100%"));
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(percentage.isVisible());
}

TEST_F(OptionsScreens, TellsTheWholePercentagesReached) {
    AddFills(200);
    Open();
    auto& bar = Bar();
    const auto& percentage = Percentage();
    EXPECT_EQ(bar.accessibleName(), QStringLiteral("Search progress"));
    EXPECT_EQ(percentage.minimumWidth(),
              percentage.fontMetrics().horizontalAdvance(QStringLiteral("100%")));
    Click(Option(Controls::piecesPerFill[3]));
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

TEST_F(OptionsScreens, SearchesNothingWithoutFills) {
    Add({144, 120});
    Open();
    int steps = 0;
    QObject::connect(&Bar(), &QProgressBar::valueChanged, &Bar(), [&] { ++steps; });
    Click(Option(Controls::piecesPerFill[0]));
    Click(Continue());
    EXPECT_EQ(client.Calls, std::vector<std::string>{"estimate"});
    ASSERT_TRUE(client.Seen);
    EXPECT_EQ(client.Seen->Fills, SearchResult{});
    EXPECT_EQ(steps, 0);
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
    EXPECT_FALSE(Bar().isVisible());
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(OptionsScreens, StopsAlsoLaterInTheSearchAfterThePlacementInHand) {
    AddFills(200);
    Open();
    Click(Option(Controls::piecesPerFill[3]));
    const auto& bar = Bar();
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
    EXPECT_FALSE(Percentage().isVisible());
}

TEST_F(OptionsScreens, DropsTheEstimateWhenItIsClosedAtTheVeryEnd) {
    AddFills(8);
    Open();
    Click(Option(Controls::piecesPerFill[0]));
    const auto& bar = Bar();
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

TEST_F(OptionsScreens, StopsTheSearchWhenItIsClosed) {
    AddFills(200);
    Open();
    Click(Option(Controls::piecesPerFill[3]));
    DuringSearch(*form, [&] {
        form->CloseByFrame();
        EXPECT_TRUE(client.Calls.empty()) << "the search is still on the stack";
        EXPECT_TRUE(screens.Calls.empty());
    });
    Click(Continue());
    EXPECT_EQ(client.Calls, std::vector<std::string>{"none"});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
    const auto& bar = Bar();
    EXPECT_LT(bar.value(), bar.maximum());
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(Percentage().isVisible());
}

TEST_F(OptionsScreens, StopsTheSearchWithEscape) {
    AddFills(200);
    Open();
    Click(Option(Controls::piecesPerFill[3]));
    DuringSearch(*form, [&] { Press(*form, Qt::Key_Escape); });
    Click(Continue());
    EXPECT_EQ(client.Calls, std::vector<std::string>{"none"});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
}

TEST_F(OptionsScreens, LeavesNoEstimateWhenItIsClosedWithoutASearch) {
    AddFills(2);
    Open();
    form->CloseByFrame();
    EXPECT_EQ(client.Calls, std::vector<std::string>{"none"});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
}

TEST_F(OptionsScreens, TellsAnErrorOfTheSearchOnceAndGoesBack) {
    for (int i = 0; i < 3; ++i) {
        Add({140, 30000});
    }
    Open();
    Click(Option(Controls::piecesPerFill[0]));
    Click(Continue());
    EXPECT_EQ(
        boxes.Messages,
        std::vector<std::string>{
            "Run-time error '6':\r\n\r\nOverflow\r\nThe fills could not be laid out. The fills "
            "need more than 32767 inches of roll: estimate the rooms in two projects."});
    EXPECT_EQ(client.Calls, std::vector<std::string>{"none"});
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
    EXPECT_FALSE(Bar().isVisible());
    EXPECT_FALSE(Percentage().isVisible());
}

TEST_F(OptionsScreens, SaysThatThereIsNoEstimateWhenItCannotBeDrawn) {
    AddFills(2);
    Open();
    client.OnEstimate = [] { RaiseDivisionByZero(); };
    Click(Option(Controls::piecesPerFill[0]));
    Click(Continue());
    EXPECT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(client.Calls, (std::vector<std::string>{"estimate", "none"}));
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"return"});
}

TEST_F(OptionsScreens, GoesBackAlsoWhenTheEstimateCannotBeEmptied) {
    client.OnNoEstimate = [] { throw std::runtime_error("No memory."); };
    AddFills(200);
    Open();
    Click(Option(Controls::piecesPerFill[3]));
    DuringSearch(*form, [&] { form->CloseByFrame(); });
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
