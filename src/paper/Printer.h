// What printing is to the screens: a printer that can be asked for its sheet and given three kinds
// of jobs.

#pragma once

#include "base/Types.h"
#include "base/Words.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace tarn {

struct EnteredDataReport;
struct EstimatePage;
struct OrderDocument;

/// The printer cannot be used, or refused the job; what() says why, and Advice what helps.
class PrinterError : public std::runtime_error {
  public:
    explicit PrinterError(const std::string& cause, std::string advice = {})
        : std::runtime_error(cause)
        , advice_(std::move(advice)) {}

    /// A sentence or two; empty where nothing is known to help.
    const std::string& Advice() const { return advice_; }

  private:
    std::string advice_;
};

/// Shown when printing failed.
inline constexpr auto PrinterNotReadyMessage =
    Words("Warning: Your printer is not ready!\r\n\r\nYou couldn't print in the program");

/// The system's default printer. Every member raises PrinterError when there is none, when it takes
/// no jobs, and when it refuses the job. It is used by one thread at a time, whichever that is. A
/// job that failed leaves no page, unless the printing system fell silent after it had the whole of
/// it; the error says so.
class Printer {
  public:
    virtual ~Printer() = default;

    /// A sheet of paper in landscape, twips.
    struct PageSize {
        Double Width = 0;
        Double Height = 0;
    };
    virtual PageSize Page() = 0;

    /// Print the entered-data report as one job, landscape.
    virtual void PrintReport(const EnteredDataReport& report) = 0;
    /// Print an estimate as one job of one landscape page.
    virtual void PrintEstimate(const EstimatePage& page) = 0;
    /// Print the sheet of a project's orders as one job, upright; `date` is printed as it is.
    virtual void PrintOrder(const OrderDocument& document, const std::string& date) = 0;
};

} // namespace tarn
