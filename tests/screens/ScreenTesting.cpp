#include "screens/ScreenTesting.h"

#include "project/Report.h"
#include "screens/Display.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QCursor>
#include <QGuiApplication>
#include <QRadioButton>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include <algorithm>
#include <chrono>

namespace tarn::testing {

void FakeBoxes::Message(const std::string& text, const std::string& informative) {
    Messages.push_back(text);
    Informative.push_back(informative);
    if (OnMessage) {
        OnMessage();
    }
}

bool FakeBoxes::AskYesNo(const std::string& text) {
    Questions.push_back(text);
    if (YesNo.empty()) {
        ADD_FAILURE() << "asked without an answer: " << text;
        return false;
    }
    const bool answer = YesNo.front();
    YesNo.pop_front();
    return answer;
}

std::optional<std::size_t> FakeBoxes::Choose(const std::string& text,
                                             const std::vector<std::string>& actions) {
    Questions.push_back(text);
    Actions.push_back(actions);
    if (Choices.empty()) {
        ADD_FAILURE() << "asked without an answer: " << text;
        return std::nullopt;
    }
    const std::string choice = Choices.front();
    Choices.pop_front();
    const auto found = std::find(actions.begin(), actions.end(), choice);
    if (found == actions.end()) {
        EXPECT_EQ(choice, "") << "no such button";
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - actions.begin());
}

std::optional<std::string> FakeBoxes::Input(const std::string& prompt, const std::string& initial) {
    Prompts.push_back(prompt);
    InitialTexts.push_back(initial);
    if (Inputs.empty()) {
        ADD_FAILURE() << "asked without an answer: " << prompt;
        return std::nullopt;
    }
    auto answer = Inputs.front();
    Inputs.pop_front();
    return answer;
}

std::optional<std::string> FakeBoxes::SaveFileName(const std::string& suggestedName,
                                                   const std::string& suffix) {
    SuggestedFiles.push_back(suggestedName + "." + suffix);
    if (Files.empty()) {
        ADD_FAILURE() << "asked without an answer: " << suggestedName;
        return std::nullopt;
    }
    auto answer = Files.front();
    Files.pop_front();
    return answer;
}

Printer::PageSize FakePrinter::Page() {
    if (const std::string failure = Failure.Get(); !failure.empty()) {
        throw PrinterError(failure);
    }
    return Size;
}

void HeldPrinter::Hold() {
    const std::lock_guard lock(mutex_);
    held_ = true;
}

void HeldPrinter::Release() {
    const std::lock_guard lock(mutex_);
    held_ = false;
    changed_.notify_all();
}

Printer::PageSize HeldPrinter::Page() {
    constexpr std::chrono::seconds AtMost(20);
    std::unique_lock lock(mutex_);
    changed_.wait_for(lock, AtMost, [this] { return !held_; });
    return FakePrinter::Page();
}

void FakePrinter::PrintReport(const EnteredDataReport& report) {
    Page();
    Reports.push_back(report.Text());
}

void FakePrinter::PrintEstimate(const EstimatePage& page) {
    Page();
    Estimates.push_back(page);
}

void FakePrinter::PrintOrder(const OrderDocument& document, const std::string& /*date*/) {
    Page();
    Orders.push_back(document);
}

void FakeScreens::ShowMenu(MenuEntry entry) {
    switch (entry) {
    case MenuEntry::ExistingProject:
        Record("menu existing");
        break;
    case MenuEntry::NewProject:
        Record("menu new");
        break;
    case MenuEntry::Returning:
        Record("menu returning");
        break;
    }
}

void FakeScreens::Record(const std::string& call) {
    Calls.push_back(call);
    if (OnCall) {
        OnCall();
    }
}

void ShowOnDisplay(QWidget& screen, int width, int height) {
    screen.resize(width, height - Pixels(FreeStrip));
    screen.show();
    screen.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
}

namespace {

QPoint ClickPoint(QWidget& widget) {
    const bool hasIndicator = qobject_cast<QRadioButton*>(&widget) != nullptr ||
                              qobject_cast<QCheckBox*>(&widget) != nullptr;
    return hasIndicator ? QPoint(widget.height() / 2, widget.height() / 2) : widget.rect().center();
}

void ExpectUsable(const QWidget& widget) {
    EXPECT_TRUE(widget.isVisible()) << FromQt(widget.objectName()) << " is hidden";
    EXPECT_TRUE(widget.isEnabled()) << FromQt(widget.objectName()) << " is disabled";
}

} // namespace

void Click(QWidget& widget) {
    ExpectUsable(widget);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, ClickPoint(widget));
}

void DoubleClick(QWidget& widget) {
    ExpectUsable(widget);
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, ClickPoint(widget));
}

void Type(QWidget& widget, const std::string& text) {
    QTest::keyClicks(&widget, ToQt(text));
}

void Press(QWidget& screen, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* focused = QApplication::focusWidget();
    QTest::keyClick(focused != nullptr ? focused : &screen, key, modifiers);
}

void Focus(QWidget& widget) {
    ExpectUsable(widget);
    widget.setFocus(Qt::MouseFocusReason);
    EXPECT_TRUE(QTest::qWaitFor([&] { return widget.hasFocus(); }))
        << FromQt(widget.objectName()) << " does not take the focus";
}

bool ShowsWaiting() {
    const QCursor* cursor = QGuiApplication::overrideCursor();
    return cursor != nullptr && cursor->shape() == Qt::WaitCursor;
}

std::string ShownToolTip(const QWidget& widget) {
    const QString tip = widget.toolTip();
    return FromQt(Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText()
                                           : tip);
}

} // namespace tarn::testing
