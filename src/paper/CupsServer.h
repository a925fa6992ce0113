// Requests to the printing system and their answers, each within a time.

#pragma once

#include "paper/CupsPatience.h"
#include "paper/IppAttributes.h"
#include "paper/Printer.h"

#include <chrono>
#include <string>
#include <string_view>

namespace tarn {

/// The printing system did not answer a request: whether it followed it, is not known.
class NoAnswer : public PrinterError {
  public:
    explicit NoAnswer(const std::string& cause);
};

/// The server that libcups is set to, one use of it: every request has a connection of its own, and
/// all of them share one patience. libcups' own requests are not used, since they connect again
/// after a failure, with waits of half a minute, and send the request a second time.
class CupsServer {
  public:
    explicit CupsServer(CupsPatience patience);

    /// Send a request, followed by a document if there is one, and wait for the answer, whatever
    /// its status. Raises NoAnswer when the server cannot be reached, ends the connection, or keeps
    /// silent or too slow until the patience is used up; the connection is closed then. Raises
    /// PrinterError when the server refuses to read the request.
    Ipp Ask(const Ipp& request, const std::string& resource, std::string_view document = {});
    /// Grant half of the patience for Answers from now on, for tidying up.
    void GrantRest();

  private:
    class Exchange;

    /// The same, but that it raises std::system_error, too.
    Ipp Exchanged(const Ipp& request, const std::string& resource, std::string_view document);

    CupsPatience patience_;
    std::chrono::milliseconds left_;
};

} // namespace tarn
