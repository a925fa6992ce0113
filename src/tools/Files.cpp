#include "tools/Files.h"

#include "files/OutputFile.h"
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
