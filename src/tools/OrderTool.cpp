#include "tools/OrderTool.h"

#include "base/Words.h"
#include "files/OrderDocument.h"
#include "files/OrderJson.h"
#include "files/OrderTables.h"
#include "files/OrderText.h"
#include "files/RollDxf.h"
#include "files/ShortDate.h"
#include "files/Svg.h"
#include "order/CarpetRequests.h"
#include "order/MakeOrder.h"
#include "order/OrderSheet.h"
#include "order/OrderWords.h"
#include "paper/PdfFile.h"
#include "paper/PrinterPage.h"
#include "paper/SystemPrinter.h"
#include "project/Coverings.h"
#include "store/ProjectStore.h"
#include "tools/Files.h"
#include "tools/InterruptStops.h"
#include "tools/ProjectFile.h"
#include "tools/Refusal.h"
#include "tools/StandardStreams.h"
#include "tools/TerminalLine.h"

#include <algorithm>
#include <functional>
#include <iostream>
#include <map>
#include <optional>
#include <utility>

namespace tarn {

namespace {

/// The project, and in which units it is ordered.
OrderDocument ReadProject(const OrderOptions& options) {
    const Units asked = options.Metric ? Units::Metric : Units::Imperial;
    if (!options.From.Rooms.Path.empty()) {
        OrderDocument document{{}, asked, {}};
        document.Of.Rooms = ReadRoomFile(options.From.Rooms, asked);
        return document;
    }
    ProjectStore store(options.From.Database, DatabaseAccess::ReadOnly);
    OrderDocument document{LoadProjectNamed(store, options.From.Project), asked, {}};
    const Units entered = document.Of.EnteredIn;
    if (entered != asked && !options.Metric && !options.Feet) {
        throw Refusal(Words("The project %1 was entered in metric. Use --metric, or --feet to take "
                            "its sizes as inches.",
                            document.Of.Name));
    }
    return document;
}

/// The carpets to be ordered: those that have a room with an area.
std::vector<Byte> CarpetsOf(const OrderOptions& options, const Project& project) {
    std::vector<Byte> carpets = CarpetsToOrder(project);
    std::erase_if(carpets,
                  [&](Byte carpet) { return options.Carpet.value_or(carpet + 1) != carpet + 1; });
    if (carpets.empty()) {
        throw Refusal(options.Carpet
                          ? Words("No room with an area has %1.",
                                  CoveringCaption(static_cast<Byte>(*options.Carpet - 1)))
                          : std::string(NothingToOrder));
    }
    return carpets;
}

/// The request of each carpet that is to be ordered: what the options leave open is as it is saved,
/// unless that is in other units.
std::map<Byte, OrderRequest> RequestsOf(const OrderOptions& options,
                                        const OrderDocument& document) {
    std::map<Byte, OrderRequest> requests;
    for (const Byte carpet : CarpetsOf(options, document.Of)) {
        const auto saved = document.Of.Orders.find(carpet);
        const bool isSaved = saved != document.Of.Orders.end();
        const bool isUsed = isSaved && saved->second.In == document.In;
        if (isSaved && !isUsed) {
            std::cerr << Words("Note: %1: the saved request is in other units and is not used.",
                               CoveringCaption(carpet))
                      << '\n';
        }
        requests.emplace(carpet, RequestOf(options, document.In,
                                           isUsed ? std::optional(saved->second) : std::nullopt));
    }
    return requests;
}

/// Shows in one line of a terminal how far the search is.
class ProgressLine : public OrderObserver {
  public:
    bool Progress(const Order& soFar, bool changed) override {
        if (line_.IsThere() && (changed || !line_.IsWritten())) {
            line_.Write(CoveringCaption(soFar.Carpet) + ": " + BestText(soFar));
        }
        return !WasInterrupted();
    }

  private:
    static std::string BestText(const Order& order) {
        if (!order.Best) {
            return Words("comparing");
        }
        const OrderCandidate& best = order.Candidates.at(*order.Best);
        return CandidateName(order, best) + ", " +
               OrderLengthText(static_cast<Long>(best.Figures->Length), order.Request.In);
    }

    TerminalLine line_{TerminalLine::End::Erased};
};

OrderLimits LimitsOf(const OrderOptions& options, const OrderRequest& request) {
    OrderLimits limits;
    limits.Seconds = request.Seconds;
    limits.Steps = options.Steps;
    limits.Seed = options.Seed;
    return limits;
}

void Tell(const Order& order, const std::string& text) {
    std::cerr << Words("Note: %1, %2", CoveringCaption(order.Carpet), ShownLines(text)) << '\n';
}

/// Tell what there is to note: what the best rows have, and which carpets have no order.
void TellNotes(const OrderDocument& document) {
    for (const Order& order : document.Orders) {
        if (order.Best) {
            const OrderCandidate& best = order.Candidates.at(*order.Best);
            for (const Saying& note : best.Figures->Notes) {
                Tell(order, CandidateName(order, best) + ": " + note.Shown);
            }
        } else {
            for (const OrderCandidate& candidate : order.Candidates) {
                Tell(order, Words("%1 is refused: %2", CandidateName(order, candidate),
                                  candidate.Refused.Shown));
            }
        }
    }
}

std::string PdfOf(const OrderDocument& document) {
    SystemPrinter printer;
    return OrderPdf(document, ShortDateOfToday(), PaperOf(ReadPrinterPage(printer)));
}

/// The sheet of the one carpet.
std::string SvgOf(const OrderDocument& document) {
    const Order& order = document.Orders.front();
    return SvgDocument(OrderPicture(document.Of, order, {}, ShortDateOfToday()),
                       CoveringTitle(document.Of.Name, order.Carpet));
}

void WriteOutputs(const OrderOptions& options, const OrderDocument& document) {
    const auto write = [&](const std::string& path,
                           const std::function<std::string(const OrderDocument&)>& contentOf) {
        if (!path.empty()) {
            WriteWholeFile(path, contentOf(document), options.Over);
        }
    };
    write(options.Svg, SvgOf);
    if (document.Orders.front().Best) { // else there is no roll
        write(options.Dxf, OrderDxf);
    }
    write(options.Pdf, PdfOf);
    write(options.Xlsx, OrderXlsx);
    write(options.Json, OrderJson);
    write(options.Csv, OrderCsv);
    write(options.Text, OrderText);
}

} // namespace

void OrderFor(const OrderOptions& options) {
    RequireOutputsBeside(options.From.Path(), OutputsOf(options));
    OrderDocument document = ReadProject(options);
    const std::map<Byte, OrderRequest> requests = RequestsOf(options, document);
    for (const auto& [option, path] :
         {std::pair("--svg", options.Svg), std::pair("--dxf", options.Dxf)}) {
        if (!path.empty() && requests.size() > 1) {
            throw Refusal(Words("The drawing of %1 shows one carpet, and there are several: choose "
                                "one with --carpet.",
                                option));
        }
    }
    {
        const InterruptStops stops;
        ProgressLine line;
        for (const auto& [carpet, request] : requests) {
            document.Orders.push_back(
                MakeOrder(document.Of, carpet, request, LimitsOf(options, request), line));
        }
    }
    WriteOutputs(options, document);
    TellNotes(document);
    if (std::none_of(document.Orders.begin(), document.Orders.end(),
                     [](const Order& order) { return order.Best.has_value(); })) {
        throw Refusal(Words("No carpet has an order: every roll and lay is refused."));
    }
}

} // namespace tarn
