#include "screens/menu/MenuScreen.h"

#include "base/Text.h"
#include "base/Words.h"
#include "files/Language.h"
#include "files/QtText.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Theme.h"
#include "screens/menu/MenuLoad.h"

#include <QAction>
#include <QActionGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarn {

namespace {

constexpr double PanelWidth = 5700; // twips

constexpr auto UnitsFailure = Words("The units could not be changed.");
constexpr auto TakeBackFailure = Words("The rooms could not be taken back.");

/// The time of a draft as the user's clock showed it, such as 22 Nov 14:05; with the year when it
/// is not this one.
std::string DraftTime(const QDateTime& written, const QDate& today) {
    const QDateTime local = written.toLocalTime();
    const bool isThisYear = local.date().year() == today.year();
    return FromQt(QLocale::c().toString(local, isThisYear ? QStringLiteral("d MMM HH:mm")
                                                          : QStringLiteral("d MMM yyyy HH:mm")));
}

/// What a draft has, in a word.
std::string ContentText(const Draft& draft) {
    if (!draft.Rooms) {
        const bool isOrder = draft.Orders || draft.Typed.IsEmpty();
        return isOrder ? Words("the choices of an order") : Words("a room that was being typed");
    }
    const std::size_t rooms = draft.Rooms->size();
    return CountedWords("%n room", "%n rooms", static_cast<long long>(rooms));
}

} // namespace

MenuScreen::MenuScreen(Session& session, MenuEntry entry)
    : TitledScreen(session, Controls::menuScreen, Words("*SOLVANE OPTIONS*")) {
    BuildPanel();
    BuildMenus();
    OpenProject& project = Shared().Project;
    const MenuLoad load = LoadMenu(project, Shared().Store, entry);
    if (!project.IsUsable) {
        Shared().Drafts.LetGo(); // its rooms were dropped, not given up
    }
    estimate_->setVisible(project.OffersEstimate);
    for (QPushButton* button : {enterRooms_, estimate_}) {
        button->setEnabled(project.IsUsable);
    }
    ShowProject();
    if (!load.Message.empty()) {
        // When this screen is in front: the box is about it.
        Later([this, message = load.Message] { Shared().Boxes.Message(message); });
    }
}

void MenuScreen::BuildPanel() {
    auto* panel = new QFrame;
    panel->setObjectName(Controls::menuPanel);
    SetPanel(*panel);
    panel->setMinimumWidth(Pixels(PanelWidth));

    auto* heading = NewLabel(panel, Controls::menuHeading, Words("OPERATION MENU"));
    SetRole(*heading, TextRole::Heading);
    heading->setAlignment(Qt::AlignCenter);
    panel->setAccessibleName(heading->text());
    notSaved_ = NewLabel(panel, Controls::notSaved, Words("NOT SAVED"));
    SetRole(*notSaved_, TextRole::Warning);
    notSaved_->setAlignment(Qt::AlignCenter);
    notKept_ = NewLabel(panel, Controls::notKept, "");
    SetRole(*notKept_, TextRole::Warning);
    notKept_->setAlignment(Qt::AlignCenter);
    notKept_->setWordWrap(true);
    tilesOnly_ = NewLabel(panel, Controls::tilesOnly, Words("TILES ONLY"));
    SetRole(*tilesOnly_, TextRole::Hint);
    tilesOnly_->setAlignment(Qt::AlignCenter);
    Shared().Drafts.OnTrouble(*this, [this] { ShowTrouble(); });

    QHBoxLayout* units = BuildUnits(panel);
    QHBoxLayout* drafts = BuildTakeBack(panel);
    enterRooms_ = NewButton(panel, Controls::enterRooms, Words("ENTER/E&DIT DATA"));
    back_ = NewButton(panel, Controls::backToProjects, Words("&BACKWARD"));
    estimate_ = NewButton(panel, Controls::estimateFromMenu, Words("&ESTIMATE"));
    SetPrimary(*enterRooms_);
    OnClick(*enterRooms_, Words("The rooms could not be opened."), [this] { EnterRooms(); });
    OnClick(*back_, Words("The projects could not be shown."), [this] { GoBack(); });
    OnClick(*estimate_, Words("The estimate could not be opened."), [this] { Estimate(); });

    auto* layout = new QVBoxLayout(panel);
    SetSpacing(*layout, Metrics::Margin);
    layout->addWidget(heading);
    layout->addWidget(notSaved_);
    layout->addWidget(notKept_);
    layout->addWidget(tilesOnly_);
    layout->addLayout(units);
    layout->addLayout(drafts);
    layout->addWidget(enterRooms_);
    layout->addWidget(estimate_);
    layout->addWidget(back_);
    AddPanel(*panel);

    SetTabOrders({metric_, enteredIn_, takeBack_, earlier_, enterRooms_, estimate_, back_});
}

void MenuScreen::BuildMenus() {
    QAction* exit = Menus().addAction(ToQt(Words("E&xit")));
    exit->setObjectName(Controls::exitFromMenu);
    connect(exit, &QAction::triggered, this, [this] {
        Guard(Words("The program could not be ended."), [this] { Shared().Go.End(); });
    });
    BuildLanguages();
    AddHelpMenu();
}

void MenuScreen::BuildLanguages() {
    QMenu* menu = Menus().addMenu(ToQt(Words("&Language")));
    menu->setObjectName(Controls::languageMenu);
    auto* group = new QActionGroup(menu);
    const std::string chosen = Shared().Kept.Language();
    for (const KnownLanguage& language : KnownLanguages()) {
        QAction* action = menu->addAction(ToQt(language.Name));
        action->setCheckable(true);
        action->setChecked(language.Code == (chosen.empty() ? "en" : chosen));
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, language] {
            Guard(Words("The language could not be chosen."), [&] {
                Shared().Kept.ChooseLanguage(language.Code);
                Shared().Boxes.Message(Words(
                    "From its next start on the program speaks this language: %1", language.Name));
            });
        });
    }
}

QHBoxLayout* MenuScreen::BuildUnits(QWidget* panel) {
    metric_ = new QCheckBox(panel);
    metric_->setObjectName(Controls::metric);
    SetCaption(*metric_, Words("&Metric"));
    connect(metric_, &QCheckBox::toggled, this, [this](bool ticked) {
        Guard(UnitsFailure, [&] {
            Shared().Project.Shown = ticked ? Units::Metric : Units::Imperial;
            ShowUnits();
        });
    });
    enteredIn_ = NewButton(panel, Controls::enteredInMetric, "");
    SetRole(*enteredIn_, TextRole::Warning);
    OnClick(*enteredIn_, UnitsFailure, [this] {
        metric_->setFocus(); // for the button goes
        metric_->toggle();
    });
    auto* units = new QHBoxLayout;
    units->addWidget(metric_);
    units->addWidget(enteredIn_);
    units->addStretch();
    return units;
}

QHBoxLayout* MenuScreen::BuildTakeBack(QWidget* panel) {
    takeBack_ = NewButton(panel, Controls::takeBack, "");
    earlier_ = NewButton(panel, Controls::earlierRooms, Words("EA&RLIER"));
    earlierMenu_ = new QMenu(earlier_);
    earlierMenu_->setObjectName(Controls::earlierRoomsMenu);
    earlier_->setMenu(earlierMenu_);
    OnClick(*takeBack_, TakeBackFailure, [this] { TakeBack(0); });
    auto* row = new QHBoxLayout;
    row->setSpacing(Pixels(Metrics::Spacing));
    row->addWidget(takeBack_, 1);
    row->addWidget(earlier_);
    return row;
}

void MenuScreen::ShowProject() {
    const OpenProject& project = Shared().Project;
    notSaved_->setVisible(project.HasUnsavedChanges());
    tilesOnly_->setVisible(HasTilesOnly(project.Now));
    metric_->setChecked(project.Shown == Units::Metric);
    ShowUnits();
    ShowTrouble();
    OfferDrafts();
}

void MenuScreen::ShowTrouble() {
    const std::string& trouble = Shared().Drafts.Trouble();
    notKept_->setText(ToQt(Words("NOT KEPT: %1", trouble)));
    notKept_->setVisible(!trouble.empty());
}

void MenuScreen::ShowUnits() {
    const std::string_view words = UnitsWarning(Shared().Project);
    SetCaption(*enteredIn_, words);
    enteredIn_->setVisible(!words.empty());
}

void MenuScreen::OfferDrafts() {
    offered_.clear();
    if (Shared().Project.IsUsable) {
        offered_ = Shared().Drafts.WorthTakingBack();
    }
    const QDate today = Shared().Today();
    takeBack_->setVisible(!offered_.empty());
    earlier_->setVisible(offered_.size() > 1);
    earlierMenu_->clear();
    for (std::size_t i = 0; i < offered_.size(); ++i) {
        const std::string time = DraftTime(offered_[i].Record.Written, today);
        if (i == 0) {
            const Draft& draft = offered_[i].Record.Content;
            const bool hasRooms = draft.Rooms || !draft.Typed.IsEmpty();
            SetCaption(*takeBack_, hasRooms ? Words("&TAKE BACK ROOMS OF %1", time)
                                            : Words("&TAKE BACK ORDER OF %1", time));
        }
        const QAction* item =
            earlierMenu_->addAction(ToQt(time + ", " + ContentText(offered_[i].Record.Content)));
        connect(item, &QAction::triggered, this,
                [this, i] { Guard(TakeBackFailure, [this, i] { TakeBack(i); }); });
    }
}

void MenuScreen::TakeBack(std::size_t place) {
    const KeptDraft draft = offered_.at(place);
    const std::string time = DraftTime(draft.Record.Written, Shared().Today());
    Shared().History.Do(
        AnyRoom, [&] { Shared().Drafts.TakeBack(draft); }, Words("take back rooms of %1", time));
    enterRooms_->setFocus(); // before the button goes
    ShowProject();
}

QWidget* MenuScreen::FirstFocus() {
    return Shared().Project.IsUsable ? enterRooms_ : back_;
}

void MenuScreen::EnterRooms() {
    TakeSheetNumber(Shared().Project, Shared().Store);
    Shared().Go.ShowRooms();
}

void MenuScreen::GoBack() {
    Shared().Drafts.Flush();
    Shared().Go.ShowProjects(); // which drops the rooms
}

void MenuScreen::Estimate() {
    if (HasCarpetRoom(Shared().Project.Now)) {
        Shared().Go.ShowEstimate(true);
    }
}

void MenuScreen::OnCloseByFrame() {
    Shared().Go.End();
}

} // namespace tarn
