#pragma once

// A printing system of its own for a test: CUPS on a loopback port, in a temporary directory.

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <initializer_list>
#include <map>
#include <string>
#include <vector>

namespace tarn::testing {

/// How one queue of the server stands.
struct QueueSetup {
    std::string Name = "Paper";
    bool Default = true;
    bool Stopped = false;
    bool Accepting = true;
    std::string OnlyUser;        ///< the only user whose jobs it takes; empty = everybody
    bool OnlyKnownUsers = false; ///< a job needs the proof of who sends it
    /// The paper of its driver, by its name there ("A4", "Letter"), and the driver's margin along
    /// the short edges, points. Without a paper the queue has no driver and takes files as they
    /// are.
    std::string DriverPaper;
    int ShortEdgeMargin = 18;
    /// Defaults that its administrator set, "number-up 4".
    std::vector<std::string> Options;
    /// The reason (IPP printer-state-reasons) that it reports when a job begins, such as
    /// "offline-report"; the job then waits until the server is told to go on. Empty = none.
    std::string Trouble;
    bool TroubleStays = false; ///< it is still reported when the queue is idle again
};

/// A queue with a driver for that paper.
QueueSetup Driven(const std::string& paper, int shortEdgeMargin = 18);

/// A printed job: the document as it reached the printer, and what came with it.
struct PrintedJob {
    std::string Document;
    std::string Title;
    std::string Options;
    std::string Copies;
};

/// Runs from construction to destruction; libcups then asks it. Nothing of it is left.
class PrintServer {
  public:
    /// `mostBytes` is the largest request that it takes, 0 = any.
    explicit PrintServer(const std::vector<QueueSetup>& queues, int mostBytes = 0);
    ~PrintServer();
    PrintServer(const PrintServer&) = delete;
    PrintServer& operator=(const PrintServer&) = delete;

    /// "127.0.0.1:port".
    QString Address() const { return address_; }
    /// The socket where it listens, too; there it sees which user asks.
    QString Socket() const { return Path("run/socket"); }
    /// Wait until that many jobs were printed; they, in their order.
    std::vector<PrintedJob> Printed(std::size_t count) const;
    /// The states (IPP job-state) of all jobs that it ever accepted, by number.
    std::map<int, int> JobStates() const;
    /// End the trouble of all queues.
    void EndTrouble() const;
    /// Wait until a queue tells of its trouble.
    void AwaitTrouble(const std::string& queue) const;
    /// Wait until a queue is idle.
    void AwaitIdle(const std::string& queue) const;
    /// Kill it in whatever it is doing, from any thread.
    void Kill() const;
    /// Start it again, with all that it kept, after it was killed.
    void StartAgain();
    /// Stop it and wait for its end. Answers how many processes of it are still there.
    int Stop();

  private:
    void WriteFiles(const std::vector<QueueSetup>& queues, int mostBytes, int port) const;
    bool Start();
    QString Path(const char* name) const { return directory_.filePath(QString::fromUtf8(name)); }

    QTemporaryDir directory_;
    QProcess process_;
    QString address_;
};

/// What the user chose for the queue "Paper", as lpoptions would store it, until the end of scope.
class UserChoice {
  public:
    struct Option {
        const char* Name;
        const char* Value;
    };

    UserChoice(std::initializer_list<Option> options) { Store(options); }
    ~UserChoice() { Store({}); }
    UserChoice(const UserChoice&) = delete;
    UserChoice& operator=(const UserChoice&) = delete;

  private:
    static void Store(std::initializer_list<Option> options);
};

/// The address of a loopback port where nothing listens.
QString DeadAddress();

/// Have libcups ask the server at that address from now on.
void UseServer(const QString& address);

} // namespace tarn::testing
