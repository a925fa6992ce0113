#include "tools/Files.h"

#include "app/OutputFile.h"
#include "tools/Refusal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace tarn {

namespace {

std::string Reason(const QFileDevice& file) {
    return file.errorString().toStdString();
}

void WriteStandardOutput(const std::string& content) {
    const std::size_t written = std::fwrite(content.data(), 1, content.size(), stdout);
    if (written != content.size() || std::fflush(stdout) != 0) {
        throw Refusal("Standard output cannot be written.");
    }
}

/// A file's name without links and dots; that of a file that is not there without dots.
QString PlainName(const std::string& path) {
    const QFileInfo info(QString::fromStdString(path));
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : canonical;
}

} // namespace

std::string ReadWholeFile(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) {
        throw Refusal("The file " + path + " cannot be read: " + Reason(file) + ".");
    }
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        throw Refusal("The file " + path + " cannot be read: " + Reason(file) + ".");
    }
    return content.toStdString();
}

void WriteWholeFile(const std::string& path, const std::string& content) {
    if (path == StandardOutput) {
        WriteStandardOutput(content);
        return;
    }
    WriteOutputFile(path, content);
}

bool IsSameFile(const std::string& path, const std::string& other) {
    return PlainName(path) == PlainName(other);
}

void RequireOtherFile(const std::string& output, const std::string& input) {
    if (!output.empty() && output != StandardOutput && IsSameFile(output, input)) {
        throw Refusal("The file " + output +
                      " cannot be written: the rooms are read from it. Name another file.");
    }
}

} // namespace tarn
