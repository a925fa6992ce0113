#include "files/DeviceOutput.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace tarn {
namespace {

using namespace std::chrono_literals;

/// A named pipe in a directory of its own.
class NamedPipe : public ::testing::Test {
  protected:
    NamedPipe() { EXPECT_EQ(::mkfifo(Path().c_str(), S_IRUSR | S_IWUSR), 0); }

    std::string Path() const { return directory_.filePath(QStringLiteral("pipe")).toStdString(); }
    int OpenToRead() const { return ::open(Path().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); }

    /// The error of writing, none when it was written.
    std::error_code Write(std::string_view content, const DevicePatience& patience) const {
        try {
            WriteToDevice(Path(), content, patience);
        } catch (const std::system_error& error) {
            return error.code();
        }
        return {};
    }

  private:
    QTemporaryDir directory_;
};

constexpr DevicePatience Little{50ms, 50ms};
constexpr DevicePatience Much{60000ms, 60000ms};

/// Everything that comes through the pipe until its writer is done.
std::string ReadAll(const std::string& path) {
    std::string content;
    const int pipe = ::open(path.c_str(), O_RDONLY | O_CLOEXEC); // waits for the writer
    std::array<char, 1000> buffer{};
    for (;;) {
        const ssize_t count = ::read(pipe, buffer.data(), buffer.size());
        if (count <= 0) {
            break;
        }
        content.append(buffer.data(), static_cast<std::size_t>(count));
    }
    ::close(pipe);
    return content;
}

TEST_F(NamedPipe, ThatNobodyOpensIsGivenUp) {
    EXPECT_EQ(Write("text", Little), std::errc::timed_out);
}

TEST_F(NamedPipe, IsWaitedForUntilAReaderOpensIt) {
    std::string content;
    std::thread reader([&] { content = ReadAll(Path()); });
    EXPECT_EQ(Write("text", Much), std::error_code());
    reader.join();
    EXPECT_EQ(content, "text");
}

TEST_F(NamedPipe, PassesMoreThanItHolds) {
    std::string sent;
    for (int i = 0; i < 100000; ++i) {
        sent += std::to_string(i);
    }
    std::string content;
    std::thread reader([&] { content = ReadAll(Path()); });
    EXPECT_EQ(Write(sent, Much), std::error_code());
    reader.join();
    EXPECT_EQ(content, sent);
}

TEST_F(NamedPipe, ThatNobodyReadsOnFromIsGivenUp) {
    const int reader = OpenToRead();
    EXPECT_EQ(Write(std::string(1000000, 'x'), Little), std::errc::timed_out);
    ::close(reader);
}

TEST_F(NamedPipe, WhoseReaderGoesAwayIsToldAndEndsNoProgram) {
    const int pipe = OpenToRead();
    std::thread reader([&] {
        // Once it is full: the writer waits then.
        std::array<char, 10> buffer{};
        while (::read(pipe, buffer.data(), buffer.size()) <= 0) {
            std::this_thread::yield();
        }
        ::close(pipe);
    });
    EXPECT_EQ(Write(std::string(1000000, 'x'), Much), std::errc::broken_pipe);
    reader.join();
    sigset_t pending{};
    sigpending(&pending);
    EXPECT_EQ(sigismember(&pending, SIGPIPE), 0) << "the signal is left for later";
}

} // namespace
} // namespace tarn
