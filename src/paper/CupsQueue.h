#pragma once

#include "paper/CupsServer.h"
#include "paper/QueueChoice.h"
#include "paper/QueueMedia.h"

#include <string>

namespace tarn {

/// The default queue of the printing system (the user's own choice first, then the system's), for
/// one use: to be asked for its paper and to be given a job. A server that does not answer is given
/// up when the patience is used up, and nothing is asked of it thereafter.
///
/// CUPS is asked directly: the toolkit's printer waits half a minute and more for an absent server,
/// does not tell a stopped queue apart, and says nothing of a job that was refused.
class CupsQueue {
  public:
    /// Raises PrinterError when the server does not answer, when there is no default queue, when
    /// it is stopped or takes no jobs, and when it is busy with a job whose paper cannot come out
    /// (see PrinterTrouble).
    explicit CupsQueue(CupsPatience patience = {});

    /// The paper that the queue takes when nothing else is asked for, with its margins, landscape;
    /// A4 when the queue does not tell.
    const Paper& DefaultPaper() const { return media_.Sheet; }
    /// Hand in a PDF document, made for the default paper, as one job. Its pages come out as they
    /// are, whatever defaults of the queue would turn, resize or mirror them or leave some out;
    /// what else the user or the administrator chose for the queue holds. Of a title (UTF-8) that
    /// is longer than a job's name may be, 255 bytes, the beginning is taken.
    ///
    /// Raises PrinterError when it is refused or does not arrive; no part of it is printed then.
    /// Only when the server got the whole document and cannot be asked any more, it may be printed
    /// all the same; the error says that it is not known.
    void Submit(const std::string& title, const std::string& document);

  private:
    Ipp NewRequest(ipp_op_t operation) const;
    Ipp NewJobRequest(ipp_op_t operation, int job) const;
    void RequireReady(ipp_t* queue) const;
    int CreateJob(const std::string& title);
    PrinterError Refusal(const Ipp& answer) const;
    /// Find out after that failure whether the server has the whole document of the job all the
    /// same and goes on with it; otherwise cancel it. Raises PrinterError when it is not known.
    bool KeepIfArrived(int job, const PrinterError& failure);

    CupsServer server_;
    std::string name_;
    QueueMedia media_;
    QueueOptions options_; ///< of a job
};

} // namespace tarn
