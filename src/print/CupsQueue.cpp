#include "print/CupsQueue.h"

#include <algorithm>
#include <array>
#include <cups/cups.h>
#include <cups/pwg.h>
#include <sstream>
#include <string_view>
#include <vector>

namespace tarn {

namespace {

constexpr int ConnectPatienceMs = 3000;
constexpr double AnswerPatienceSeconds = 5;

constexpr std::size_t LongestJobName = 255; ///< bytes

constexpr std::string_view StoppedState = "5";

/// Gives up a request whose answer does not come in time.
int GiveUp(http_t*, void*) {
    return 0;
}

/// Never asks for a password: there is nobody at the terminal.
const char* NoPassword(const char*, http_t*, const char*, const char*, void*) {
    return nullptr;
}

std::string OptionOf(const cups_dest_t& queue, const char* option) {
    const char* value = cupsGetOption(option, queue.num_options, queue.options);
    return value == nullptr ? std::string() : std::string(value);
}

struct CloseConnection {
    void operator()(http_t* connection) const { httpClose(connection); }
};
struct FreeQueue {
    void operator()(cups_dest_t* queue) const { cupsFreeDests(1, queue); }
};
struct FreeInfo {
    void operator()(cups_dinfo_t* info) const { cupsFreeDestInfo(info); }
};

/// A first, small request: a server that keeps silent is given up before it is asked for more.
void RequireAnswer(http_t* connection) {
    ippDelete(cupsDoRequest(connection, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/"));
    const ipp_status_t status = cupsLastError();
    if (status > IPP_STATUS_OK_EVENTS_COMPLETE && status != IPP_STATUS_ERROR_NOT_FOUND) {
        throw PrinterError(
            "The printing system does not answer: " + std::string(cupsLastErrorString()) + ".");
    }
}

/// The parts of a list with commas, without empty ones.
std::vector<std::string> PartsOf(const std::string& list) {
    std::vector<std::string> parts;
    std::istringstream stream(list);
    for (std::string part; std::getline(stream, part, ',');) {
        if (!part.empty()) {
            parts.push_back(part);
        }
    }
    return parts;
}

/// The beginning of a UTF-8 text of at most `bytes` bytes, without half a character.
std::string Beginning(const std::string& text, std::size_t bytes) {
    if (text.size() <= bytes) {
        return text;
    }
    const auto continues = [&text](std::size_t at) {
        return (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
    };
    while (bytes > 0 && continues(bytes)) {
        --bytes;
    }
    return text.substr(0, bytes);
}

Double TwipsOfMillimetreHundredths(int hundredths) {
    constexpr Double HundredthsPerInch = 2540;
    return hundredths * TwipsPerInch / HundredthsPerInch;
}

/// A sheet as the queue describes it, held upright, turned a quarter to the left: its right edge
/// is on top then.
Paper LandscapeOf(const cups_size_t& size) {
    const auto margin = [](int hundredths) {
        return std::max(Paper::LeastMargin, TwipsOfMillimetreHundredths(hundredths));
    };
    Paper paper;
    paper.Size = {TwipsOfMillimetreHundredths(std::max(size.width, size.length)),
                  TwipsOfMillimetreHundredths(std::min(size.width, size.length))};
    // Drivers turn either way, so each pair of edges keeps the larger margin.
    paper.Left = paper.Right = std::max(margin(size.top), margin(size.bottom));
    paper.Top = paper.Bottom = std::max(margin(size.left), margin(size.right));
    return paper;
}

} // namespace

struct CupsQueue::Handles {
    std::unique_ptr<http_t, CloseConnection> Connection;
    std::unique_ptr<cups_dest_t, FreeQueue> Queue;
    std::unique_ptr<cups_dinfo_t, FreeInfo> Info; ///< unset when the queue does not tell
    cups_size_t Media{};                          ///< the default paper; no width when not known
    std::string OtherMedia; ///< what else is chosen, such as a tray, each behind a comma
};

CupsQueue::CupsQueue()
    : handles_(std::make_unique<Handles>()) {
    cupsSetPasswordCB2(NoPassword, nullptr);
    handles_->Connection.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                                            cupsEncryption(), 1, ConnectPatienceMs, nullptr));
    http_t* connection = handles_->Connection.get();
    if (connection == nullptr) {
        throw PrinterError("The printing system (" + std::string(cupsServer()) +
                           ") cannot be reached.");
    }
    httpSetTimeout(connection, AnswerPatienceSeconds, GiveUp, nullptr);
    RequireAnswer(connection);
    handles_->Queue.reset(cupsGetNamedDest(connection, nullptr, nullptr));
    const cups_dest_t* queue = handles_->Queue.get();
    if (queue == nullptr) {
        throw PrinterError("There is no default printer.");
    }
    name_ = queue->name;
    if (OptionOf(*queue, "printer-state") == StoppedState) {
        throw PrinterError("The printer " + name_ + " is stopped.");
    }
    if (OptionOf(*queue, "printer-is-accepting-jobs") == "false") {
        throw PrinterError("The printer " + name_ + " takes no jobs.");
    }
}

CupsQueue::~CupsQueue() = default;

std::string CupsQueue::PresetMedia() {
    ipp_attribute_t* preset = cupsFindDestDefault(handles_->Connection.get(), handles_->Queue.get(),
                                                  handles_->Info.get(), "media");
    const char* name = preset == nullptr ? nullptr : ippGetString(preset, 0, nullptr);
    return name == nullptr ? std::string() : std::string(name);
}

bool CupsQueue::TakeSize(const std::string& name) {
    if (name.empty()) {
        return false;
    }
    cups_size_t& size = handles_->Media;
    if (cupsGetDestMediaByName(handles_->Connection.get(), handles_->Queue.get(),
                               handles_->Info.get(), name.c_str(), CUPS_MEDIA_FLAGS_DEFAULT,
                               &size) != 0) {
        return true;
    }
    size = {};
    const pwg_media_t* known = pwgMediaForPWG(name.c_str());
    if (known == nullptr) {
        known = pwgMediaForPPD(name.c_str());
    }
    if (known == nullptr) {
        return false;
    }
    size.width = known->width;
    size.length = known->length;
    std::string_view(known->pwg).copy(size.media, sizeof(size.media) - 1);
    return true;
}

Paper CupsQueue::DefaultPaper() {
    handles_->Info.reset(cupsCopyDestInfo(handles_->Connection.get(), handles_->Queue.get()));
    if (!handles_->Info) {
        throw PrinterError("The printer " + name_ + " does not answer: " + cupsLastErrorString() +
                           ".");
    }
    const cups_dest_t& queue = *handles_->Queue;
    bool sized = false;
    handles_->OtherMedia.clear();
    for (const std::string& part : PartsOf(OptionOf(queue, "media"))) {
        if (!sized && TakeSize(part)) {
            sized = true;
        } else {
            handles_->OtherMedia += "," + part;
        }
    }
    sized = sized || TakeSize(OptionOf(queue, "PageSize")) || TakeSize(PresetMedia());
    return sized ? LandscapeOf(handles_->Media) : Paper();
}

void CupsQueue::Submit(const std::string& title, const std::string& path) {
    // What the user chose for the queue holds, but for what would turn or resize the page or leave
    // one out.
    cups_option_t* options = nullptr;
    int count = 0;
    const cups_dest_t& queue = *handles_->Queue;
    for (int i = 0; i < queue.num_options; ++i) {
        count = cupsAddOption(queue.options[i].name, queue.options[i].value, count, &options);
    }
    constexpr std::array Turning{"landscape", "orientation-requested",
                                 "number-up", "fit-to-page",
                                 "fitplot",   "scaling",
                                 "PageSize",  "PageRegion",
                                 "mirror",    "page-ranges",
                                 "page-set"};
    for (const char* option : Turning) {
        count = cupsRemoveOption(option, count, &options);
    }
    if (handles_->Media.media[0] != '\0') {
        const std::string media = handles_->Media.media + handles_->OtherMedia;
        count = cupsAddOption("media", media.c_str(), count, &options);
    }
    count = cupsAddOption("print-scaling", "none", count, &options);
    count = cupsAddOption("document-format", CUPS_FORMAT_PDF, count, &options);
    const int job = cupsPrintFile2(handles_->Connection.get(), queue.name, path.c_str(),
                                   Beginning(title, LongestJobName).c_str(), count, options);
    cupsFreeOptions(count, options);
    if (job == 0) {
        throw PrinterError("The printer " + name_ + " refused the job: " + cupsLastErrorString() +
                           ".");
    }
}

} // namespace tarn
