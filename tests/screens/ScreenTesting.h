#pragma once

// What every test of a screen needs: recorders for the boxes, the printer and the other screens,
// and real mouse and key events.

#include "estimate/EstimateRequest.h"
#include "files/OrderDocument.h"
#include "files/QtText.h"
#include "paper/EstimatePage.h"
#include "project/Coverings.h"
#include "screens/Session.h"

#include <QApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarn::testing {

/// Records what is told and asked, and answers from the queues. A question without an answer in its
/// queue fails the test.
struct FakeBoxes : Dialogs {
    std::vector<std::string> Messages;
    std::vector<std::string> Informative; ///< what stands below each message
    std::vector<std::string> Questions;
    std::vector<std::string> Prompts;
    std::vector<std::string> InitialTexts; ///< of the input boxes, one for each prompt
    std::vector<std::string> SuggestedFiles;
    std::vector<std::vector<std::string>> Actions; ///< offered by each question with named buttons
    std::deque<bool> YesNo;
    /// The caption of the action to choose; empty for Cancel.
    std::deque<std::string> Choices;
    std::deque<std::optional<std::string>> Inputs;
    std::deque<std::optional<std::string>> Files;
    /// Called while a message stands, such as to look at the screen behind it.
    std::function<void()> OnMessage;

    using Dialogs::Message;
    void Message(const std::string& text, const std::string& informative) override;
    bool AskYesNo(const std::string& text) override;
    std::optional<std::size_t> Choose(const std::string& text,
                                      const std::vector<std::string>& actions) override;
    std::optional<std::string> Input(const std::string& prompt,
                                     const std::string& initial) override;
    std::optional<std::string> SaveFileName(const std::string& suggestedName,
                                            const std::string& suffix) override;
};

/// A text that a test sets while another thread may read it.
class SharedText {
  public:
    SharedText& operator=(const std::string& text) {
        const std::lock_guard lock(mutex_);
        text_ = text;
        return *this;
    }
    std::string Get() const {
        const std::lock_guard lock(mutex_);
        return text_;
    }

  private:
    mutable std::mutex mutex_;
    std::string text_;
};

/// Records the printed jobs; with Failure set it refuses them. It is used on the thread that
/// prints: what it recorded is read, and its size set, while nothing is being printed.
struct FakePrinter : Printer {
    SharedText Failure;
    PageSize Size{16838, 11906};
    std::vector<std::string> Reports; ///< their texts
    std::vector<EstimatePage> Estimates;
    std::vector<OrderDocument> Orders;

    PageSize Page() override;
    void PrintReport(const EnteredDataReport& report) override;
    void PrintEstimate(const EstimatePage& page) override;
    void PrintOrder(const OrderDocument& document, const std::string& date) override;
};

/// Keeps silent while it is held, as a print server may; but not for ever.
struct HeldPrinter : FakePrinter {
    void Hold();
    void Release();
    PageSize Page() override;

  private:
    std::mutex mutex_;
    std::condition_variable changed_;
    bool held_ = false;
};

/// Records the way between the screens: "projects", "menu existing", "menu new", "menu returning",
/// "rooms", "estimate from menu", "estimate from rooms", "options", "order", with a carpet
/// "order CARPET-1", "guide" and its page, "return", "end".
struct FakeScreens : Screens {
    std::vector<std::string> Calls;
    EstimateClient* Client = nullptr; ///< of the options shown last
    EstimateRequest Request;          ///< theirs
    std::function<void()> OnCall;     ///< called after each is recorded; may raise

    void ShowProjects() override { Record("projects"); }
    void ShowMenu(MenuEntry entry) override;
    void ShowRooms() override { Record("rooms"); }
    void ShowEstimate(bool fromMenu) override {
        Record(fromMenu ? "estimate from menu" : "estimate from rooms");
    }
    void ShowOptions(const EstimateRequest& request, EstimateClient& client) override {
        Client = &client;
        Request = request;
        Record("options");
    }
    void ShowOrder(std::optional<Byte> carpet) override {
        Record(carpet ? "order " + CoveringCaption(*carpet) : "order");
    }
    void ShowGuide(std::string_view page) override { Record("guide " + std::string(page)); }
    void ShowAbout() override { Record("about"); }
    void Return() override { Record("return"); }
    void End() override { Record("end"); }

  private:
    void Record(const std::string& call);
};

/// The widget of type W with that objectName below `root`. Throws std::runtime_error, and so fails
/// the test, when there is none.
template <class W = QWidget>
W& Find(const QWidget& root, const char* name) {
    W* widget = root.findChild<W*>(QString::fromLatin1(name));
    if (widget == nullptr) {
        throw std::runtime_error(std::string("there is no control ") + name);
    }
    return *widget;
}

/// Show a screen as large as on a display of that size, and wait until it can take events.
void ShowOnDisplay(QWidget& screen, int width = 800, int height = 600);

/// Click the middle of a widget, of its indicator for option buttons and check boxes. Fails the
/// test when it is hidden or disabled.
void Click(QWidget& widget);
void DoubleClick(QWidget& widget);
/// Type a text into the widget, key by key, without moving the focus first.
void Type(QWidget& widget, const std::string& text);
/// Press a key wherever the focus is.
void Press(QWidget& screen, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Move the focus there as a click would, and wait until it is there.
void Focus(QWidget& widget);

/// Whether the user is shown that the program waits.
bool ShowsWaiting();

/// What a widget's tool tip shows: the toolkit takes what looks like rich text for it.
std::string ShownToolTip(const QWidget& widget);

/// A session with everything recorded: no database, no project, the directory of March.
struct ScreenTest : ::testing::Test {
    ScreenTest() {
        open.Now.Directory = "MARCH";
        drafts.SetDrafts(NewRun());
    }
    /// The drafts of the test's projects, as another run of the program has them.
    Drafts NewRun() const { return {FromQt(state.filePath(QStringLiteral("tarn"))), "Tarn.mdb"}; }

    /// Wait until all that was to be printed is, and told.
    void AwaitPrinter() const {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !printing.IsPrinting(); }));
    }

    OpenProject open;
    ProjectStore store;
    PageTwips page;
    FakeBoxes boxes;
    FakePrinter printer;
    PrintQueue printing{printer, page, boxes};
    FakeScreens screens;
    QTemporaryDir state; ///< of the drafts
    DraftKeeper drafts{open};
    Preferences kept;
    RoomHistory history{open};
    std::vector<std::string> notes; ///< told in the window's line
    Session session{open,
                    store,
                    page,
                    boxes,
                    printing,
                    screens,
                    drafts,
                    kept,
                    history,
                    [] { return QDate(2026, 3, 14); },
                    [this](const std::string& note) { notes.push_back(note); }};
};

/// A session with one screen, once a test has made it.
template <class Form>
struct FormTest : ScreenTest {
    template <class W = QWidget>
    W& Control(const char* name) const {
        return Find<W>(*form, name);
    }
    QPushButton& Button(const char* name) const { return Control<QPushButton>(name); }

    std::unique_ptr<Form> form;

  protected:
    void TearDown() override { form.reset(); } // before what a test has given it
};

} // namespace tarn::testing
