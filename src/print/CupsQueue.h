#pragma once

#include "print/Paper.h"

#include <memory>
#include <string>

namespace tarn {

/// The default queue of the printing system (the user's own choice first, then the system's), over
/// one connection that gives up after a few seconds when the server does not answer.
///
/// CUPS is asked directly: the toolkit's printer waits half a minute and more for an absent server,
/// does not tell a stopped queue apart, and says nothing of a job that was refused.
class CupsQueue {
  public:
    /// Raises PrinterError when the server does not answer, when there is no default queue, and
    /// when it is stopped or takes no jobs.
    CupsQueue();
    ~CupsQueue();
    CupsQueue(const CupsQueue&) = delete;
    CupsQueue& operator=(const CupsQueue&) = delete;

    const std::string& Name() const { return name_; }
    /// The paper that the queue takes when nothing else is asked for, with its margins, landscape;
    /// A4 when the queue does not tell.
    Paper DefaultPaper();
    /// Hand in the PDF file `path`, made for the default paper, as one job. Of a title (UTF-8) that
    /// is longer than a job's name may be, 255 bytes, the beginning is taken. Raises PrinterError
    /// when it is refused; no part of it is printed then.
    void Submit(const std::string& title, const std::string& path);

  private:
    struct Handles;

    /// The queue's own media; empty when it is not known.
    std::string PresetMedia();
    /// Whether `name` is a size, which is kept then.
    bool TakeSize(const std::string& name);

    std::unique_ptr<Handles> handles_;
    std::string name_;
};

} // namespace tarn
