#include "tools/Files.h"

#include "base/Words.h"
#include "files/Descriptor.h"
#include "tools/Refusal.h"
#include "tools/StandardStreams.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarn {

namespace {

[[noreturn]] void RefuseToRead(const std::string& path, const std::string& cause) {
    throw Refusal(Words("The file %1 cannot be read: %2.", path, cause));
}

/// Raise Refusal unless it is a file, whose bytes come to an end.
void RequireFile(const std::string& path, const struct stat& status) {
    if (S_ISDIR(status.st_mode)) {
        RefuseToRead(path, Words("it is a folder"));
    }
    if (!S_ISREG(status.st_mode)) {
        RefuseToRead(
            path, S_ISFIFO(status.st_mode)
                      ? Words("it is a pipe. Save what comes from it in a file and name that")
                      : Words("it is a device. Save what comes from it in a file and name that"));
    }
}

Descriptor OpenToRead(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        RefuseToRead(path, CauseOf(LastError().code()));
    }
    RequireFile(path, status);
    Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.IsOpen() || ::fstat(file.Number(), &status) != 0) {
        RefuseToRead(path, CauseOf(LastError().code()));
    }
    RequireFile(path, status); // it may have been another a moment ago
    return file;
}

/// A file's name without links and dots, as far as its folders are there.
QString PlainName(const std::string& path) {
    constexpr int MostLinks = 40; // as many as the system follows
    QFileInfo info(QString::fromStdString(path));
    for (int links = 0; info.isSymLink() && !info.exists() && links < MostLinks; ++links) {
        info.setFile(info.symLinkTarget());
    }
    if (info.exists()) {
        return info.canonicalFilePath();
    }
    const QString folder = QFileInfo(info.path()).canonicalFilePath();
    return QDir::cleanPath(folder.isEmpty() ? info.absoluteFilePath()
                                            : folder + u'/' + info.fileName());
}

} // namespace

std::string ReadWholeFile(const std::string& path, std::size_t mostBytes) {
    constexpr std::size_t Step = std::size_t{64} * 1024;
    const Descriptor file = OpenToRead(path);
    std::string content;
    std::size_t size = 0;
    while (size <= mostBytes) {
        content.resize(size + Step);
        const ssize_t count = ::read(file.Number(), content.data() + size, Step);
        if (count < 0 && errno != EINTR) {
            RefuseToRead(path, CauseOf(LastError().code()));
        }
        if (count == 0) {
            content.resize(size);
            return content;
        }
        size += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    constexpr std::size_t Megabyte = std::size_t{1024} * 1024;
    RefuseToRead(path, Words("it has more than %1 MB", std::to_string(mostBytes / Megabyte)));
}

void WriteWholeFile(const std::string& path, const std::string& content, Overwrite over) {
    if (path == StandardOutput) {
        WriteStandardOutput(content);
        return;
    }
    WriteOutputFile(path, content, over);
}

bool IsSameFile(const std::string& path, const std::string& other) {
    return PlainName(path) == PlainName(other);
}

void RequireOtherFile(const std::string& output, const std::string& input) {
    if (!output.empty() && output != StandardOutput && IsSameFile(output, input)) {
        throw Refusal(Words("The file %1 cannot be written: the rooms are read from it. Name "
                            "another file.",
                            output));
    }
}

} // namespace tarn
