#include "paper/CupsServer.h"

#include "base/Words.h"
#include "paper/SocketDeadline.h"

#include <algorithm>
#include <cups/cups.h>
#include <system_error>

namespace tarn {

namespace {

using std::chrono::duration_cast;
using std::chrono::milliseconds;
using Clock = SocketDeadline::Clock;

constexpr std::size_t PieceBytes = 16384;
/// How long the server may take to say that it wants no document, before the document is sent.
constexpr milliseconds ContinueWait{1000};

constexpr auto NotAllowedAdvice = Words("Whoever looks after the printing system can allow it.");

/// Never asks for a password: there is nobody at the terminal.
const char* NoPassword(const char*, http_t*, const char*, const char*, void*) {
    return nullptr;
}

struct CloseConnection {
    void operator()(http_t* connection) const { httpClose(connection); }
};

std::string ServerName() {
    return cupsServer();
}

} // namespace

NoAnswer::NoAnswer(const std::string& cause)
    : PrinterError(cause, Words("Check that the printing system runs and that its network is "
                                "there, then print again.")) {}

/// One request over a connection of its own, and what the server says of it.
class CupsServer::Exchange {
  public:
    Exchange(http_encryption_t encryption, Clock::time_point end)
        : connection_(Connect(encryption, end))
        , deadline_(httpGetFd(connection_.get()), end)
        , end_(end) {
        if (encryption == HTTP_ENCRYPTION_REQUIRED &&
            httpEncryption(Connection(), encryption) != 0) {
            Fail();
        }
    }

    http_t* Connection() const { return connection_.get(); }
    /// Put the proof of who asks, into the next request.
    void Authorize(const std::string& authorization) { authorization_ = authorization; }
    http_status_t Send(const Ipp& request, const std::string& resource, std::string_view document,
                       const CupsPatience& patience);
    Ipp Answer();
    [[noreturn]] void Fail() const;

  private:
    static http_t* Connect(http_encryption_t encryption, Clock::time_point end);
    bool SendDocument(std::string_view document, const CupsPatience& patience);

    std::unique_ptr<http_t, CloseConnection> connection_;
    SocketDeadline deadline_;
    Clock::time_point end_;
    std::string authorization_;
};

http_t* CupsServer::Exchange::Connect(http_encryption_t encryption, Clock::time_point end) {
    // An upgrade to encryption follows later, in bounded time.
    const http_encryption_t first =
        encryption == HTTP_ENCRYPTION_REQUIRED ? HTTP_ENCRYPTION_IF_REQUESTED : encryption;
    const auto left = duration_cast<milliseconds>(end - Clock::now()).count();
    http_t* connection = left <= 0 ? nullptr
                                   : httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                                                  first, 1, static_cast<int>(left), nullptr);
    if (connection == nullptr) {
        throw NoAnswer(Words("The printing system (%1) cannot be reached.", ServerName()));
    }
    return connection;
}

void CupsServer::Exchange::Fail() const {
    throw NoAnswer(deadline_.Passed()
                       ? Words("The printing system does not answer: it keeps silent.")
                       : Words("The printing system does not answer: it hung up."));
}

bool CupsServer::Exchange::SendDocument(std::string_view document, const CupsPatience& patience) {
    const Clock::time_point started = Clock::now();
    const Clock::time_point last = started + patience.Upload;
    for (std::size_t at = 0; at < document.size(); at += PieceBytes) {
        const std::string_view piece = document.substr(at, PieceBytes);
        deadline_.Move(std::min(last, Clock::now() + patience.Answers));
        if (httpWrite2(Connection(), piece.data(), piece.size()) !=
            static_cast<ssize_t>(piece.size())) {
            return false;
        }
    }
    const bool sent = httpFlushWrite(Connection()) >= 0;
    deadline_.Move(end_ + (Clock::now() - started)); // as long as before
    return sent;
}

http_status_t CupsServer::Exchange::Send(const Ipp& request, const std::string& resource,
                                         std::string_view document, const CupsPatience& patience) {
    http_t* connection = Connection();
    httpClearFields(connection);
    httpSetField(connection, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
    if (!authorization_.empty()) {
        httpSetField(connection, HTTP_FIELD_AUTHORIZATION, authorization_.c_str());
    }
    httpSetLength(connection, ippLength(request.get()) + document.size());
    if (!document.empty()) {
        httpSetExpect(connection, HTTP_STATUS_CONTINUE);
    }
    if (httpPost(connection, resource.c_str()) != 0) {
        return HTTP_STATUS_ERROR;
    }
    http_status_t status = HTTP_STATUS_CONTINUE;
    if (!document.empty() && httpWait(connection, static_cast<int>(ContinueWait.count())) != 0) {
        status = httpUpdate(connection);
        if (status != HTTP_STATUS_CONTINUE) {
            return status;
        }
    }
    ippSetState(request.get(), IPP_STATE_IDLE);
    if (ippWrite(connection, request.get()) != IPP_STATE_DATA ||
        !SendDocument(document, patience)) {
        return HTTP_STATUS_ERROR;
    }
    while (status == HTTP_STATUS_CONTINUE && !deadline_.Passed()) {
        status = httpUpdate(connection);
    }
    return status;
}

Ipp CupsServer::Exchange::Answer() {
    Ipp answer(ippNew());
    ipp_state_t state = IPP_STATE_IDLE;
    while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR) {
        state = ippRead(Connection(), answer.get());
    }
    if (state == IPP_STATE_ERROR) {
        Fail();
    }
    return answer;
}

CupsServer::CupsServer(CupsPatience patience)
    : patience_(patience)
    , left_(patience.Answers) {
    cupsSetPasswordCB2(NoPassword, nullptr);
}

void CupsServer::GrantRest() {
    left_ = patience_.Answers / 2;
}

Ipp CupsServer::Ask(const Ipp& request, const std::string& resource, std::string_view document) {
    try {
        return Exchanged(request, resource, document);
    } catch (const std::system_error& error) {
        throw NoAnswer(Words("The printing system cannot be asked: %1.", error.what()));
    }
}

Ipp CupsServer::Exchanged(const Ipp& request, const std::string& resource,
                          std::string_view document) {
    http_encryption_t encryption = cupsEncryption();
    std::string authorization;
    constexpr int Tries = 3; // as it is, encrypted, with a proof of who asks
    for (int i = 0; i < Tries; ++i) {
        const Clock::time_point started = Clock::now();
        Exchange exchange(encryption, started + left_);
        exchange.Authorize(authorization);
        const http_status_t status = exchange.Send(request, resource, document, patience_);
        if (status == HTTP_STATUS_OK) {
            Ipp answer = exchange.Answer();
            if (document.empty()) {
                left_ -= std::min(left_, duration_cast<milliseconds>(Clock::now() - started));
            }
            return answer;
        }
        if (status == HTTP_STATUS_UPGRADE_REQUIRED && encryption != HTTP_ENCRYPTION_REQUIRED) {
            encryption = HTTP_ENCRYPTION_REQUIRED;
        } else if (status == HTTP_STATUS_UNAUTHORIZED && authorization.empty() &&
                   cupsDoAuthentication(exchange.Connection(), "POST", resource.c_str()) == 0) {
            const char* proof = httpGetAuthString(exchange.Connection());
            authorization = proof == nullptr ? "" : proof;
        } else if (status == HTTP_STATUS_ERROR || status == HTTP_STATUS_CONTINUE) {
            exchange.Fail();
        } else {
            throw PrinterError(
                Words("The printing system refused the request: %1.", httpStatus(status)),
                NotAllowedAdvice);
        }
        left_ -= std::min(left_, duration_cast<milliseconds>(Clock::now() - started));
    }
    throw PrinterError(Words("The printing system does not let this user in."), NotAllowedAdvice);
}

} // namespace tarn
