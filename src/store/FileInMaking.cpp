#include "store/FileInMaking.h"

#include "files/FileModes.h"
#include "store/DatabaseError.h"

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
    SetPrivateMode(Path(), QFileInfo(target_).absolutePath().toStdString());
    if (!QFile::rename(QString::fromStdString(Path()), target_)) {
        Refuse("it cannot be moved into its folder, or another program made it meanwhile");
    }
    placed_ = true;
}

void FileInMaking::MakeFolder(const QString& folder) {
    try {
        madeFolders_ = MakePrivateFolder(folder.toStdString());
    } catch (const std::filesystem::filesystem_error&) {
        Refuse("its folder cannot be made");
    }
}

void FileInMaking::RemoveMadeFolders() {
    for (; !madeFolders_.empty(); madeFolders_.pop_back()) {
        std::error_code ignored;
        std::filesystem::remove(madeFolders_.back(), ignored); // one that holds something stays
    }
}

void FileInMaking::Refuse(const char* cause) const {
    throw DatabaseError("The file " + target_.toStdString() + " cannot be made: " + cause + ".");
}

} // namespace tarn
