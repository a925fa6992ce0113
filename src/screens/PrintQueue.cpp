#include "screens/PrintQueue.h"

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "paper/EstimatePaper.h"
#include "screens/AfterBoxes.h"
#include "screens/Guard.h"
#include "screens/SaveAs.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <memory>
#include <utility>

namespace tarn {

namespace {

/// A sheet of more than 22 inches does not fit what is kept of it: a page then takes the size that
/// the printer gives it.
PageTwips AskForSheet(Printer& printer) {
    try {
        return AskPrinterPage(printer);
    } catch (const RunTimeError&) {
        return {};
    }
}

/// Hands a job to the printer; of an estimate's page the sheet is known or asked for first.
struct Handing {
    Printer& To;
    PageTwips& Page;

    void operator()(const EnteredDataReport& report) const { To.PrintReport(report); }
    void operator()(const OrderPages& order) const { To.PrintOrder(order.Document, order.Date); }
    void operator()(EstimatePage& estimate) const {
        if (!Page.IsKnown()) {
            Page = AskForSheet(To);
        }
        estimate.Sheet = Page;
        To.PrintEstimate(estimate);
    }
};

/// What became of the jobs behind one that failed.
std::string GivenUpText(std::size_t jobs) {
    return jobs == 0 ? std::string()
                     : CountedWords("One more job that waited behind it was not printed either.",
                                    "%n more jobs that waited behind it were not printed either.",
                                    static_cast<long long>(jobs));
}

/// The way out that needs no printer.
std::string SaveInstead(const PrintJob& job, bool isShown) {
    std::string caption(SaveAsPdfCaption);
    std::erase(caption, '&');
    if (std::holds_alternative<OrderPages>(job)) {
        return isShown
                   ? Words("Or press SAVE AS and choose \"%1\".", caption)
                   : Words("Or show the order again, press SAVE AS and choose \"%1\".", caption);
    }
    return isShown ? Words("Or right-click what is shown and choose \"%1\".", caption)
                   : Words("Or show it again, right-click it and choose \"%1\".", caption);
}

} // namespace

void TellOfALostList(Dialogs& boxes, const EstimatePage& page) {
    if (LosesCutList(page, PaperOf(page.Sheet))) {
        boxes.Message(std::string(ListNotShownText), std::string(ListElsewhereText));
    }
}

PrintQueue::PrintQueue(Printer& printer, PageTwips& page, Dialogs& boxes)
    : printer_(printer)
    , page_(page)
    , boxes_(boxes) {}

PrintQueue::~PrintQueue() {
    telling_ = false;
    told_ = nullptr;
    Finish();
}

void PrintQueue::Print(PrintJob job, QObject& shown, std::function<void()> printed) {
    const auto twice =
        std::find_if(uses_.begin(), uses_.end(), [&job](const Use& use) { return use.Job == job; });
    if (twice == uses_.end()) {
        Add({std::move(job), &shown, std::move(printed)});
        return;
    }
    twice->Shown = &shown;
    twice->Printed = std::move(printed);
}

void PrintQueue::ReadPage() {
    Add({});
}

bool PrintQueue::IsPrinting() const {
    return std::any_of(uses_.begin(), uses_.end(),
                       [](const Use& use) { return use.Job.has_value(); });
}

void PrintQueue::Add(Use use) {
    uses_.push_back(std::move(use));
    if (uses_.size() == 1) {
        StartNext();
    }
    if (told_) {
        told_();
    }
}

void PrintQueue::StartNext() {
    const auto outcome = std::make_shared<Outcome>(Outcome{uses_.front().Job, page_, std::nullopt});
    work_.Start([&printer = printer_, outcome] { Run(printer, *outcome); },
                [this, outcome] { TakeOutcome(*outcome); });
}

/// Away from the window. Raises nothing.
void PrintQueue::Run(Printer& printer, Outcome& outcome) {
    if (!outcome.Job) {
        outcome.Page = ReadPrinterPage(printer);
        return;
    }
    try {
        std::visit(Handing{printer, outcome.Page}, *outcome.Job);
    } catch (const PrinterError& error) {
        outcome.Trouble = error;
    } catch (const std::exception& error) {
        outcome.Trouble = PrinterError(error.what());
    }
}

void PrintQueue::TakeOutcome(Outcome outcome) {
    const Use use = std::move(uses_.front());
    uses_.pop_front();
    page_ = outcome.Page;
    if (outcome.Trouble) {
        std::cerr << "tarn: " << outcome.Trouble->what() << '\n';
        if (ending_) {
            outcome.GivenUp = GiveUpRest();
        }
    }
    if (!uses_.empty()) {
        StartNext();
    }
    if (told_) {
        told_();
    }
    if (use.Job && telling_) {
        AfterBoxes(context_,
                   [this, use, outcome] { Guarded(boxes_, {}, [&] { Tell(use, outcome); }); });
    }
}

/// Answers how many jobs that were.
std::size_t PrintQueue::GiveUpRest() {
    const auto jobs = std::count_if(uses_.begin(), uses_.end(),
                                    [](const Use& use) { return use.Job.has_value(); });
    uses_.clear();
    return static_cast<std::size_t>(jobs);
}

void PrintQueue::Tell(const Use& use, const Outcome& outcome) {
    if (outcome.Trouble) {
        TellTrouble(use, outcome);
        return;
    }
    if (use.Printed && use.Shown) {
        use.Printed();
    }
    if (const auto* page = std::get_if<EstimatePage>(&*outcome.Job)) {
        TellOfALostList(boxes_, *page);
    }
}

void PrintQueue::TellTrouble(const Use& use, const Outcome& outcome) {
    std::string text = outcome.Trouble->what();
    for (const std::string& line :
         {outcome.Trouble->Advice(), SaveInstead(*use.Job, !use.Shown.isNull()),
          GivenUpText(outcome.GivenUp)}) {
        text += line.empty() ? line : std::string(CrLf) + line;
    }
    boxes_.Message(PrinterNotReadyMessage, text);
}

void PrintQueue::Finish() {
    ending_ = true;
    while (work_.IsRunning()) {
        work_.Finish();
    }
    ending_ = false;
}

} // namespace tarn
