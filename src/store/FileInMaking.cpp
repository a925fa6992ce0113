#include "store/FileInMaking.h"

#include "store/DatabaseError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tarn {

FileInMaking::FileInMaking(const std::string& target)
    : target_(QFileInfo(QString::fromStdString(target)).absoluteFilePath()) {
    const QFileInfo info(target_);
    if (info.exists() || info.isSymLink()) {
        Refuse("it is there already and stays as it is");
    }
    MakeFolder(info.absolutePath());
    workshop_.emplace(info.absolutePath() + QStringLiteral("/.tarn-XXXXXX"));
    if (!workshop_->isValid()) {
        workshop_.reset();
        RemoveMadeFolders();
        Refuse("its folder takes no files");
    }
}

FileInMaking::~FileInMaking() {
    workshop_.reset();
    if (!placed_) {
        RemoveMadeFolders();
    }
}

std::string FileInMaking::Path() const {
    return workshop_->filePath(QFileInfo(target_).fileName()).toStdString();
}

void FileInMaking::Place() {
    if (!QFile::rename(QString::fromStdString(Path()), target_)) {
        Refuse("it cannot be moved into its folder, or another program made it meanwhile");
    }
    placed_ = true;
}

void FileInMaking::MakeFolder(const QString& folder) {
    QStringList missing;
    for (QString path = folder; !QFileInfo::exists(path); path = QFileInfo(path).absolutePath()) {
        missing.prepend(path);
    }
    for (const QString& path : missing) {
        if (!QDir().mkdir(path)) {
            RemoveMadeFolders();
            Refuse("its folder cannot be made");
        }
        madeFolders_.append(path);
    }
}

void FileInMaking::RemoveMadeFolders() {
    while (!madeFolders_.isEmpty()) {
        QDir().rmdir(madeFolders_.takeLast()); // one that holds something by now stays
    }
}

void FileInMaking::Refuse(const char* cause) const {
    throw DatabaseError("The file " + target_.toStdString() + " cannot be made: " + cause + ".");
}

} // namespace tarn
