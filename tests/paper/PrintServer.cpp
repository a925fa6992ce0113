#include "paper/PrintServer.h"

#include "QtString.h"

#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>
#include <cups/cups.h>
#include <memory>
#include <sys/prctl.h>
#include <unistd.h>

namespace tarn::testing {

namespace {

using testing::S;

constexpr int PatienceMs = 30000;

void Write(const QString& path, const std::string& content, bool program = false) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(QByteArray::fromStdString(content));
    // A program that only its owner may run, CUPS runs as itself; its filters run as another user
    // when it runs as root.
    file.setPermissions(program ? QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                : QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
}

std::string Read(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll().toStdString();
}

/// Keeps each job's document, title, options and number of copies in the directory that the queue's
/// address names.
constexpr const char* KeepingBackend = R"(#!/bin/sh
if [ $# -eq 0 ]; then
    echo 'direct keep "Unknown" "Keeps its jobs"'
    exit 0
fi
place=${DEVICE_URI#keep:}
folder=${place%%\?*}
trouble=${place#"$folder"}
trouble=${trouble#\?}
stays=${trouble#"${trouble%+}"}
trouble=${trouble%+}
if [ -n "$trouble" ]; then
    echo "STATE: +$trouble" >&2
    while [ ! -e "$folder/go-on" ]; do
        sleep 0.02
    done
    [ "$stays" ] || echo "STATE: -$trouble" >&2
fi
if [ $# -ge 6 ]; then
    cat "$6" >"$folder/$1.document"
else
    cat >"$folder/$1.document"
fi
printf '%s' "$3" >"$folder/$1.title"
printf '%s' "$4" >"$folder/$1.copies"
printf '%s' "$5" >"$folder/$1.options"
: >"$folder/$1.done"
)";

/// A driver of a printer that takes PDF.
std::string Driver(const QueueSetup& queue) {
    const std::string edge = std::to_string(queue.ShortEdgeMargin);
    const auto area = [&edge](int width, int height, int margin) {
        return "\"18 " + edge + " " + std::to_string(width - 18) + " " +
               std::to_string(height - margin) + "\"\n";
    };
    std::string driver = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
                         "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n"
                         "*PCFileName: \"KEEP.PPD\"\n*Manufacturer: \"Test\"\n"
                         "*Product: \"(Test)\"\n*ModelName: \"Test\"\n*ShortNickName: \"Test\"\n"
                         "*NickName: \"Test\"\n*PSVersion: \"(3010.000) 0\"\n"
                         "*LanguageLevel: \"3\"\n*ColorDevice: True\n"
                         "*DefaultColorSpace: RGB\n*FileSystem: False\n"
                         "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n";
    for (const char* list : {"PageSize", "PageRegion"}) {
        driver.append("*OpenUI *").append(list).append(": PickOne\n");
        driver.append("*Default").append(list).append(": ").append(queue.DriverPaper).append("\n");
        for (const char* paper : {"A4", "Letter"}) {
            driver.append("*").append(list).append(" ").append(paper).append(": \"\"\n");
        }
        driver.append("*CloseUI: *").append(list).append("\n");
    }
    driver += "*DefaultImageableArea: " + queue.DriverPaper + "\n";
    driver += "*ImageableArea A4: " + area(595, 842, queue.ShortEdgeMargin);
    driver += "*ImageableArea Letter: " + area(612, 792, queue.ShortEdgeMargin);
    driver += "*DefaultPaperDimension: " + queue.DriverPaper + "\n";
    driver += "*PaperDimension A4: \"595 842\"\n*PaperDimension Letter: \"612 792\"\n";
    return driver;
}

std::string QueueEntry(const QueueSetup& queue, const std::string& folder) {
    const std::string kind = queue.Default ? "DefaultPrinter" : "Printer";
    std::string entry = "<" + kind + " " + queue.Name + ">\nInfo Test\nDeviceURI keep:" + folder +
                        (queue.Trouble.empty() ? "" : "?" + queue.Trouble) +
                        (queue.TroubleStays ? "+" : "") + "\nState " +
                        (queue.Stopped ? "Stopped" : "Idle") + "\nAccepting " +
                        (queue.Accepting ? "Yes" : "No") + "\n";
    if (!queue.OnlyUser.empty()) {
        entry += "AllowUser " + queue.OnlyUser + "\n";
    }
    if (queue.OnlyKnownUsers) {
        entry += "OpPolicy known\n";
    }
    for (const std::string& option : queue.Options) {
        entry += "Option " + option + "\n";
    }
    return entry + "</" + kind + ">\n";
}

int FreePort() {
    QTcpServer server;
    EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
    return server.serverPort();
}

/// Whether a server answers at both: it opens one after the other.
bool Answers(int port, const QString& path) {
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), static_cast<quint16>(port));
    QLocalSocket local;
    local.connectToServer(path);
    return socket.waitForConnected(PatienceMs) && local.waitForConnected(PatienceMs);
}

/// What libcups has of a queue; empty when nothing.
std::string TellsOf(const std::string& queue, const char* attribute) {
    cups_dest_t* found = cupsGetNamedDest(CUPS_HTTP_DEFAULT, queue.c_str(), nullptr);
    const char* text =
        found == nullptr ? nullptr : cupsGetOption(attribute, found->num_options, found->options);
    std::string told = text == nullptr ? "" : text;
    cupsFreeDests(found == nullptr ? 0 : 1, found);
    return told;
}

/// How many processes have `text` in their command line, other than this one.
int ProcessesNaming(const QString& text) {
    int count = 0;
    const QString self = QString::number(getpid());
    for (const QString& id : QDir(S("/proc")).entryList({S("[0-9]*")}, QDir::Dirs)) {
        QFile line(S("/proc/") + id + S("/cmdline"));
        if (id != self && line.open(QIODevice::ReadOnly) &&
            line.readAll().contains(text.toUtf8())) {
            ++count;
        }
    }
    return count;
}

} // namespace

QueueSetup Driven(const std::string& paper, int shortEdgeMargin) {
    QueueSetup queue;
    queue.DriverPaper = paper;
    queue.ShortEdgeMargin = shortEdgeMargin;
    return queue;
}

void UserChoice::Store(std::initializer_list<Option> options) {
    cups_dest_t* queues = nullptr;
    const int count = cupsAddDest("Paper", nullptr, 0, &queues);
    for (const Option& option : options) {
        queues->num_options =
            cupsAddOption(option.Name, option.Value, queues->num_options, &queues->options);
    }
    EXPECT_EQ(cupsSetDests2(CUPS_HTTP_DEFAULT, count, queues), 0) << cupsLastErrorString();
    cupsFreeDests(count, queues);
}

void UseServer(const QString& address) {
    cupsSetServer(address.toUtf8().constData());
    qputenv("CUPS_SERVER", address.toUtf8()); // what threads to come ask
}

QString DeadAddress() {
    return S("127.0.0.1:") + QString::number(FreePort());
}

PrintServer::PrintServer(const std::vector<QueueSetup>& queues, int mostBytes) {
    constexpr int Tries = 5; // another program may take the port first
    for (int i = 0; i < Tries; ++i) {
        const int port = FreePort();
        address_ = S("127.0.0.1:") + QString::number(port);
        WriteFiles(queues, mostBytes, port);
        if (Start()) {
            UseServer(address_);
            return;
        }
    }
    ADD_FAILURE() << "cupsd (of the package cups-daemon) does not start: "
                  << process_.errorString().toStdString()
                  << process_.readAllStandardError().toStdString();
}

PrintServer::~PrintServer() {
    EXPECT_EQ(Stop(), 0);
    cupsSetServer(nullptr);
    qunsetenv("CUPS_SERVER");
}

void PrintServer::WriteFiles(const std::vector<QueueSetup>& queues, int mostBytes, int port) const {
    const QDir root(directory_.path());
    QFile::setPermissions(root.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                           QFile::ReadOther | QFile::ExeOther);
    for (const char* folder :
         {"bin/backend", "root/ppd", "root/ssl", "spool/tmp", "cache", "run", "log", "jobs"}) {
        ASSERT_TRUE(root.mkpath(S(folder)));
    }
    for (const char* folder : {"filter", "daemon", "notifier"}) {
        QFile::link(S("/usr/lib/cups/") + S(folder), Path("bin/") + S(folder));
    }
    Write(Path("bin/backend/keep"), KeepingBackend, true);

    const std::string path = directory_.path().toStdString();
    const std::string size = std::to_string(mostBytes);
    Write(Path("cupsd.conf"),
          "Listen 127.0.0.1:" + std::to_string(port) + "\nListen " + path +
              "/run/socket\nBrowsing No\nWebInterface No\nDefaultAuthType None\n"
              "LogLevel debug\nPreserveJobHistory Yes\nLimitRequestBody " +
              size +
              "\n<Location />\nOrder allow,deny\nAllow localhost\n</Location>\n"
              "<Policy default>\n<Limit All>\nOrder deny,allow\n</Limit>\n"
              "</Policy>\n<Policy known>\n<Limit Create-Job Send-Document>\n"
              "AuthType Basic\nRequire valid-user\n</Limit>\n<Limit All>\n"
              "Order deny,allow\n</Limit>\n</Policy>\n");
    Write(Path("files.conf"), "ServerRoot " + path + "/root\nServerBin " + path +
                                  "/bin\nCacheDir " + path + "/cache\nStateDir " + path +
                                  "/run\nRequestRoot " + path + "/spool\nTempDir " + path +
                                  "/spool/tmp\nAccessLog " + path + "/log/access\nErrorLog " +
                                  path + "/log/error\nPageLog " + path + "/log/page\n");
    std::string entries;
    for (const QueueSetup& queue : queues) {
        entries += QueueEntry(queue, path + "/jobs");
        if (!queue.DriverPaper.empty()) {
            Write(Path("root/ppd/") + QString::fromStdString(queue.Name) + S(".ppd"),
                  Driver(queue));
        }
    }
    Write(Path("root/printers.conf"), entries);
}

bool PrintServer::Start() {
    // A test that is killed takes its server along.
    process_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    process_.start(S("/usr/sbin/cupsd"),
                   {S("-f"), S("-c"), Path("cupsd.conf"), S("-s"), Path("files.conf")});
    if (!process_.waitForStarted(PatienceMs)) {
        return false;
    }
    const int port = address_.section(u':', 1).toInt();
    return QTest::qWaitFor(
               [&] { return process_.state() == QProcess::NotRunning || Answers(port, Socket()); },
               PatienceMs) &&
           process_.state() == QProcess::Running;
}

std::vector<PrintedJob> PrintServer::Printed(std::size_t count) const {
    const QDir jobs(Path("jobs"));
    const auto done = [&jobs] { return jobs.entryList({S("*.done")}, QDir::Files); };
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return done().size() >= static_cast<qsizetype>(count); }, PatienceMs))
        << "only " << done().size() << " jobs were printed\n"
        << Read(Path("log/error"));
    std::map<int, PrintedJob> byNumber;
    for (const QString& file : done()) {
        const QString name = file.section(u'.', 0, 0);
        const QString base = jobs.filePath(name);
        byNumber[name.toInt()] = {Read(base + S(".document")), Read(base + S(".title")),
                                  Read(base + S(".options")), Read(base + S(".copies"))};
    }
    std::vector<PrintedJob> printed;
    printed.reserve(byNumber.size());
    for (auto& [number, job] : byNumber) {
        printed.push_back(std::move(job));
    }
    EXPECT_EQ(printed.size(), count);
    return printed;
}

std::map<int, int> PrintServer::JobStates() const {
    const std::unique_ptr<http_t, void (*)(http_t*)> connection(
        httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, PatienceMs,
                     nullptr),
        httpClose);
    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs2(connection.get(), &jobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
    EXPECT_GE(count, 0) << cupsLastErrorString();
    std::map<int, int> states;
    for (int i = 0; i < count; ++i) {
        states[jobs[i].id] = jobs[i].state;
    }
    cupsFreeJobs(count, jobs);
    return states;
}

void PrintServer::EndTrouble() const {
    Write(Path("jobs/go-on"), "");
}

void PrintServer::AwaitTrouble(const std::string& queue) const {
    EXPECT_TRUE(QTest::qWaitFor(
        [&queue] {
            const std::string reasons = TellsOf(queue, "printer-state-reasons");
            return !reasons.empty() && reasons != "none";
        },
        PatienceMs));
}

void PrintServer::AwaitIdle(const std::string& queue) const {
    EXPECT_TRUE(
        QTest::qWaitFor([&queue] { return TellsOf(queue, "printer-state") == "3"; }, PatienceMs));
}

void PrintServer::Kill() const {
    ::kill(static_cast<pid_t>(process_.processId()), SIGKILL);
}

void PrintServer::StartAgain() {
    EXPECT_TRUE(process_.state() == QProcess::NotRunning || process_.waitForFinished(PatienceMs));
    EXPECT_TRUE(Start());
}

int PrintServer::Stop() {
    if (process_.state() != QProcess::NotRunning) {
        process_.terminate();
        if (!process_.waitForFinished(PatienceMs)) {
            ADD_FAILURE() << "cupsd does not stop";
            process_.kill();
            process_.waitForFinished(PatienceMs);
        }
    }
    const QString folder = directory_.path();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ProcessesNaming(folder) == 0; }, PatienceMs));
    return ProcessesNaming(folder);
}

} // namespace tarn::testing
