#include "paper/CupsQueue.h"

#include "base/Text.h"
#include "base/Words.h"
#include "paper/JobOptions.h"
#include "paper/PrinterTrouble.h"

#include <array>
#include <cups/cups.h>
#include <vector>

namespace tarn {

namespace {

constexpr std::size_t LongestJobName = 255; ///< bytes

constexpr auto SettingsAdvice =
    Words("Choose a default printer in the system's printer settings, or set this one up there.");
constexpr auto StoppedAdvice = Words(
    "Start it again in the system's printer settings, or choose another default printer there.");
constexpr auto NotAcceptingAdvice = Words("Let it accept jobs in the system's printer settings, or "
                                          "choose another default printer there.");
constexpr auto TroubleAdvice = Words("Put that right at the printer, then print again.");
constexpr auto RefusedAdvice =
    Words("Look at the printer in the system's printer settings, then print again.");
constexpr auto NotKnownAdvice = Words("Look whether the page comes out before you print again.");

bool Succeeded(const Ipp& answer) {
    return ippGetStatusCode(answer.get()) <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

std::string MessageOf(const Ipp& answer) {
    const std::string text = TextIn(answer.get(), "status-message");
    return text.empty() ? ippErrorString(ippGetStatusCode(answer.get())) : text;
}

/// The beginning of a UTF-8 text of at most `bytes` bytes, without half a character.
std::string Beginning(const std::string& text, std::size_t bytes) {
    if (text.size() <= bytes) {
        return text;
    }
    while (bytes > 0 && ContinuesCharacter(text[bytes])) {
        --bytes;
    }
    return text.substr(0, bytes);
}

void AddText(const Ipp& request, ipp_tag_t kind, const char* name, const std::string& text) {
    ippAddString(request.get(), IPP_TAG_OPERATION, kind, name, nullptr, text.c_str());
}

void AskFor(const Ipp& request, const std::vector<std::string>& attributes) {
    std::vector<const char*> names;
    names.reserve(attributes.size());
    for (const std::string& attribute : attributes) {
        names.push_back(attribute.c_str());
    }
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(names.size()), nullptr, names.data());
}

void AddJobOptions(const Ipp& request, const QueueOptions& options) {
    cups_option_t* list = nullptr;
    int count = 0;
    for (const auto& [name, value] : options) {
        count = cupsAddOption(name.c_str(), value.c_str(), count, &list);
    }
    for (const ipp_tag_t group : {IPP_TAG_OPERATION, IPP_TAG_JOB, IPP_TAG_SUBSCRIPTION}) {
        cupsEncodeOptions2(request.get(), count, list, group);
    }
    cupsFreeOptions(count, list);
}

/// What is asked of a queue.
std::vector<std::string> QueueAttributes() {
    std::vector<std::string> names = JobDefaults();
    names.insert(names.end(), {"printer-name", "printer-state", "printer-state-reasons",
                               "printer-is-accepting-jobs"});
    return names;
}

} // namespace

CupsQueue::CupsQueue(CupsPatience patience)
    : server_(patience) {
    QueueChoice choice = ChosenQueue();
    name_ = choice.Name;
    const Ipp request =
        NewRequest(name_.empty() ? IPP_OP_CUPS_GET_DEFAULT : IPP_OP_GET_PRINTER_ATTRIBUTES);
    AskFor(request, QueueAttributes());
    const Ipp queue = server_.Ask(request, "/");
    if (ippGetStatusCode(queue.get()) == IPP_STATUS_ERROR_NOT_FOUND) {
        throw PrinterError(name_.empty() ? std::string(Words("There is no default printer."))
                                         : Words("There is no printer %1.", name_),
                           SettingsAdvice);
    }
    choice.Name = name_ = TextIn(queue.get(), "printer-name");
    if (!Succeeded(queue) || name_.empty()) {
        throw PrinterError(
            Words("The printing system does not name the default printer: %1.", MessageOf(queue)),
            SettingsAdvice);
    }
    RequireReady(queue.get());
    const QueueOptions chosen = ChosenOptions(choice);
    media_ = MediaOf(queue.get(), chosen);
    options_ = JobOptions(queue.get(), chosen, media_);
}

void CupsQueue::RequireReady(ipp_t* queue) const {
    const int state = NumberIn(queue, "printer-state");
    if (state == IPP_PSTATE_STOPPED) {
        throw PrinterError(Words("The printer %1 is stopped.", name_), StoppedAdvice);
    }
    ipp_attribute_t* accepting =
        ippFindAttribute(queue, "printer-is-accepting-jobs", IPP_TAG_BOOLEAN);
    if (accepting != nullptr && ippGetBoolean(accepting, 0) == 0) {
        throw PrinterError(Words("The printer %1 takes no jobs.", name_), NotAcceptingAdvice);
    }
    const std::string trouble = PrinterTrouble(state, TextsIn(queue, "printer-state-reasons"));
    if (!trouble.empty()) {
        throw PrinterError(Words("The printer %1 %2.", name_, trouble), TroubleAdvice);
    }
}

Ipp CupsQueue::NewRequest(ipp_op_t operation) const {
    Ipp request(ippNewRequest(operation));
    if (!name_.empty()) {
        std::array<char, HTTP_MAX_URI> uri{};
        httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp",
                         nullptr, "localhost", 0, "/printers/%s", name_.c_str());
        AddText(request, IPP_TAG_URI, "printer-uri", uri.data());
    }
    AddText(request, IPP_TAG_NAME, "requesting-user-name", cupsUser());
    return request;
}

Ipp CupsQueue::NewJobRequest(ipp_op_t operation, int job) const {
    Ipp request = NewRequest(operation);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", job);
    return request;
}

PrinterError CupsQueue::Refusal(const Ipp& answer) const {
    return PrinterError(Words("The printer %1 refused the job: %2.", name_, MessageOf(answer)),
                        RefusedAdvice);
}

int CupsQueue::CreateJob(const std::string& title) {
    const Ipp request = NewRequest(IPP_OP_CREATE_JOB);
    AddText(request, IPP_TAG_NAME, "job-name", Beginning(title, LongestJobName));
    AddJobOptions(request, options_);
    // Should the answer get lost: a job without a document is never printed.
    const Ipp answer = server_.Ask(request, "/printers/" + name_);
    const int job = NumberIn(answer.get(), "job-id");
    if (!Succeeded(answer) || job == 0) {
        throw Refusal(answer);
    }
    return job;
}

bool CupsQueue::KeepIfArrived(int job, const PrinterError& failure) {
    server_.GrantRest();
    try {
        const Ipp request = NewJobRequest(IPP_OP_GET_JOB_ATTRIBUTES, job);
        AskFor(request, {"job-state", "number-of-documents"});
        const Ipp answer = server_.Ask(request, "/jobs/");
        const int state = NumberIn(answer.get(), "job-state");
        const bool ended = state == IPP_JSTATE_CANCELED || state == IPP_JSTATE_ABORTED;
        if (state == IPP_JSTATE_COMPLETED ||
            (!ended && NumberIn(answer.get(), "number-of-documents") > 0)) {
            return true;
        }
        if (!ended) {
            server_.Ask(NewJobRequest(IPP_OP_CANCEL_JOB, job), "/jobs/");
        }
    } catch (const PrinterError&) {
        throw PrinterError(Words("The printer %1 does not tell whether it took the job. %2", name_,
                                 failure.what()),
                           NotKnownAdvice);
    }
    return false;
}

void CupsQueue::Submit(const std::string& title, const std::string& document) {
    const int job = CreateJob(title);
    const Ipp request = NewJobRequest(IPP_OP_SEND_DOCUMENT, job);
    AddText(request, IPP_TAG_MIMETYPE, "document-format", CUPS_FORMAT_PDF);
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", 1);
    try {
        const Ipp answer = server_.Ask(request, "/printers/" + name_, document);
        if (!Succeeded(answer)) {
            throw Refusal(answer);
        }
    } catch (const PrinterError& error) {
        if (!KeepIfArrived(job, error)) {
            throw;
        }
    }
}

} // namespace tarn
