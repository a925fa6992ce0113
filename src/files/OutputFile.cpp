#include "files/OutputFile.h"

#include "files/DatabaseFormat.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace tarn {

namespace {

void Require(bool written, const QFileDevice& file, const std::string& path) {
    if (!written) {
        throw OutputFileError("The file " + path +
                              " cannot be written: " + file.errorString().toStdString() + ".");
    }
}

void WriteTo(QFileDevice& file, const std::string& path, const std::string& content) {
    const auto size = static_cast<qint64>(content.size());
    Require(file.open(QIODevice::WriteOnly) && file.write(content.data(), size) == size, file,
            path);
}

} // namespace

void WriteOutputFile(const std::string& path, const std::string& content) {
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
        throw OutputFileError(
            "The file " + path +
            " is a database and stays as it is. Name another file for the output.");
    }
    QSaveFile file(name);
    WriteTo(file, path, content);
    Require(file.commit(), file, path);
}

} // namespace tarn
