#pragma once

#include "paper/CupsPatience.h"
#include "paper/Printer.h"

namespace tarn {

/// The default printer of the system, over CUPS. Each call looks afresh which queue that is and
/// whether it takes jobs; a server that does not answer costs some seconds, one that takes a
/// document slowly half a minute at most. Pages are painted as PDF and handed in as one job, titled
/// by the heading of the report, the estimate or the order. Needs a QGuiApplication, on whatever
/// platform.
class SystemPrinter : public Printer {
  public:
    explicit SystemPrinter(CupsPatience patience = {})
        : patience_(patience) {}

    PageSize Page() override;
    void PrintReport(const EnteredDataReport& report) override;
    void PrintEstimate(const EstimatePage& page) override;
    void PrintOrder(const OrderDocument& document, const std::string& date) override;

  private:
    CupsPatience patience_;
};

} // namespace tarn
