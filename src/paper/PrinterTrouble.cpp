#include "paper/PrinterTrouble.h"

#include "base/Words.h"

#include <algorithm>
#include <cups/ipp.h>
#include <string_view>

namespace tarn {

namespace {

struct Trouble {
    std::string_view Reason;
    Phrase Is;
};

/// Of several, the first counts.
constexpr Trouble Troubles[] = {
    {"offline", Words("is off line")},
    {"media-jam", Words("has a paper jam")},
    {"cover-open", Words("has an open cover")},
    {"door-open", Words("has an open door")},
    {"media-empty", Words("is out of paper")},
    {"media-needed", Words("is out of paper")},
    {"toner-empty", Words("is out of toner")},
    {"marker-supply-empty", Words("is out of ink or toner")},
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
            return trouble.Is;
        }
    }
    return {};
}

} // namespace tarn
