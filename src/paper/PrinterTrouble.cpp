#include "paper/PrinterTrouble.h"

#include <algorithm>
#include <cups/ipp.h>
#include <string_view>

namespace tarn {

namespace {

struct Trouble {
    std::string_view Reason;
    std::string_view Words;
};

/// Of several, the first counts.
constexpr Trouble Troubles[] = {
    {"offline", "is off line"},          {"media-jam", "has a paper jam"},
    {"cover-open", "has an open cover"}, {"door-open", "has an open door"},
    {"media-empty", "is out of paper"},  {"media-needed", "is out of paper"},
    {"toner-empty", "is out of toner"},  {"marker-supply-empty", "is out of ink or toner"},
};

std::string_view WithoutSeverity(std::string_view reason) {
    for (const std::string_view severity : {"-error", "-warning", "-report"}) {
        if (reason.size() > severity.size() && reason.ends_with(severity)) {
            return reason.substr(0, reason.size() - severity.size());
        }
    }
    return reason;
}

} // namespace

std::string PrinterTrouble(int state, const std::vector<std::string>& reasons) {
    if (state != IPP_PSTATE_PROCESSING) {
        return {};
    }
    for (const Trouble& trouble : Troubles) {
        if (std::any_of(reasons.begin(), reasons.end(), [&trouble](const std::string& reason) {
                return WithoutSeverity(reason) == trouble.Reason;
            })) {
            return std::string(trouble.Words);
        }
    }
    return {};
}

} // namespace tarn
