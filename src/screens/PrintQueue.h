#pragma once

#include "base/Words.h"
#include "files/OrderDocument.h"
#include "paper/EstimatePage.h"
#include "paper/Printer.h"
#include "project/Report.h"
#include "screens/BackgroundWork.h"
#include "screens/Dialogs.h"

#include <QObject>
#include <QPointer>

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace tarn {

/// The sheet of a project's orders; the date is printed as it is.
struct OrderPages {
    OrderDocument Document;
    std::string Date;

    bool operator==(const OrderPages&) const = default;
};

/// What is printed: a value of its own, since the screens go on meanwhile. The sheet of an
/// estimate's page is left to the queue.
using PrintJob = std::variant<EnteredDataReport, EstimatePage, OrderPages>;

/// Shown while something is printed.
inline constexpr auto PrintingNote = Words("Printing ...");

/// Tell when a page, printed or saved, cannot show its cut list.
void TellOfALostList(Dialogs& boxes, const EstimatePage& page);

/// The way of all screens to the printer. A print server may keep silent for half a minute: so one
/// job after the other is printed away from the window, which goes on working.
///
/// Whatever fails on the way to the paper is told in one message (PrinterNotReadyMessage), on
/// whatever screen is in front then and not while another box is up, with its cause and what helps
/// below it; the cause is written to standard error, too. So is told, when the page was printed,
/// that it cannot show its cut list.
class PrintQueue {
  public:
    /// `page` is the printer's sheet as it was read last: the queue sets it. All must outlive the
    /// queue.
    PrintQueue(Printer& printer, PageTwips& page, Dialogs& boxes);
    /// As Finish, but tells nobody.
    ~PrintQueue();
    PrintQueue(const PrintQueue&) = delete;
    PrintQueue& operator=(const PrintQueue&) = delete;

    /// Print the job after those that wait. One that is being printed, or waits, is not printed
    /// twice: who presses PRINT again meanwhile wants to see it come. `printed`, of the last press,
    /// is called afterwards, unless it failed or `shown`, where it is on the screen, is gone by
    /// then.
    void Print(PrintJob job, QObject& shown, std::function<void()> printed = {});
    /// Read the printer's sheet, where no failure matters: PRINT asks again, and tells.
    void ReadPage();
    /// Whether anything waits or is being printed.
    bool IsPrinting() const;
    /// Have `told` called whenever that changes; it must raise nothing.
    void OnPrinting(std::function<void()> told) { told_ = std::move(told); }
    /// Wait until everything is printed, as long as the printing system may take for it, or until
    /// one fails, which is told, with how many behind it are given up.
    void Finish();

  private:
    /// One use of the printer.
    struct Use {
        std::optional<PrintJob> Job; ///< none: its sheet is read
        QPointer<QObject> Shown;
        std::function<void()> Printed;
    };
    /// What came of it.
    struct Outcome {
        std::optional<PrintJob> Job;         ///< as it was printed
        PageTwips Page;                      ///< as far as it is known now
        std::optional<PrinterError> Trouble; ///< why it failed, if it did
        std::size_t GivenUp = 0;             ///< jobs behind it that are not printed either
    };

    static void Run(Printer& printer, Outcome& outcome);
    void Add(Use use);
    void StartNext();
    void TakeOutcome(Outcome outcome);
    std::size_t GiveUpRest();
    void Tell(const Use& use, const Outcome& outcome);
    void TellTrouble(const Use& use, const Outcome& outcome);

    Printer& printer_;
    PageTwips& page_;
    Dialogs& boxes_;
    std::function<void()> told_;
    std::deque<Use> uses_; ///< the first one is under way
    bool ending_ = false;  ///< what fails is the last
    bool telling_ = true;
    QObject context_; ///< of what is told later
    BackgroundWork work_;
};

} // namespace tarn
