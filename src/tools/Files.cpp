#include "tools/Files.h"

#include "store/DatabaseFile.h"
#include "tools/Refusal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

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

void Require(bool written, const QFileDevice& file, const std::string& path) {
    if (!written) {
        throw Refusal("The file " + path + " cannot be written: " + Reason(file) + ".");
    }
}

void WriteTo(QFileDevice& file, const std::string& path, const std::string& content) {
    const auto size = static_cast<qint64>(content.size());
    Require(file.open(QIODevice::WriteOnly) && file.write(content.data(), size) == size, file,
            path);
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
    const QString name = QString::fromStdString(path);
    const QFileInfo there(name);
    if (there.exists() && !there.isFile()) {
        // A device or a pipe must not be replaced by a file of its name, nor read from.
        QFile device(name);
        WriteTo(device, path, content);
        Require(device.flush(), device, path);
        return;
    }
    if (IsDatabaseFile(path)) {
        throw Refusal("The file " + path +
                      " is a database and stays as it is. Name another file for the output.");
    }
    QSaveFile file(name);
    WriteTo(file, path, content);
    Require(file.commit(), file, path);
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
