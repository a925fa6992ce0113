// tarn_print_server: a printing system for a test in another language. It prints its address and
// the folder of the jobs it keeps, one line each, and runs until its standard input ends.

#include "paper/PrintServer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>

namespace tarn::testing {
namespace {

constexpr const char* Usage =
    "tarn_print_server [--no-queue | [--stopped] [--not-accepting] [--paper A4|Letter]]\n";

constexpr int WrongUsage = 2;

/// What a PrintServer finds wrong goes to standard error; standard output is for the caller.
class ToStandardError : public ::testing::EmptyTestEventListener {
    void OnTestPartResult(const ::testing::TestPartResult& result) override {
        std::cerr << result.message() << std::endl;
    }
};

/// The queues that the arguments name; nothing for arguments that name none.
std::optional<std::vector<QueueSetup>> QueuesOf(const QStringList& arguments) {
    if (arguments == QStringList{QStringLiteral("--no-queue")}) {
        return std::vector<QueueSetup>();
    }
    QueueSetup queue;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--stopped")) {
            queue.Stopped = true;
        } else if (arguments[i] == QLatin1String("--not-accepting")) {
            queue.Accepting = false;
        } else if (arguments[i] == QLatin1String("--paper") && i + 1 < arguments.size()) {
            queue.DriverPaper = arguments[++i].toStdString();
        } else {
            return std::nullopt;
        }
    }
    return std::vector<QueueSetup>{queue};
}

bool Failed() {
    return ::testing::UnitTest::GetInstance()->Failed();
}

void Serve(const std::vector<QueueSetup>& queues) {
    // The server makes its directory in here: the only one, so the jobs are found. CUPS runs some
    // filters as another user.
    const QTemporaryDir outer;
    QFile::setPermissions(outer.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                            QFile::ReadOther | QFile::ExeOther);
    qputenv("TMPDIR", QFile::encodeName(outer.path()));
    PrintServer server(queues);
    const QStringList made = QDir(outer.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    EXPECT_EQ(made.size(), 1) << "the jobs are not found";
    if (Failed()) {
        return;
    }
    std::cout << server.Address().toStdString() << '\n'
              << outer.filePath(made.front() + QStringLiteral("/jobs")).toStdString() << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
    }
}

} // namespace
} // namespace tarn::testing

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    auto& listeners = ::testing::UnitTest::GetInstance()->listeners();
    delete listeners.Release(listeners.default_result_printer());
    listeners.Append(new tarn::testing::ToStandardError);
    const auto queues = tarn::testing::QueuesOf(QCoreApplication::arguments().mid(1));
    if (!queues) {
        std::cerr << tarn::testing::Usage;
        return tarn::testing::WrongUsage;
    }
    tarn::testing::Serve(*queues);
    return tarn::testing::Failed() ? EXIT_FAILURE : EXIT_SUCCESS;
}
