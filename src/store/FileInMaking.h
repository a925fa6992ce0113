#pragma once

#include "files/Descriptor.h"

#include <QString>
#include <QTemporaryDir>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// A new file that is made in a temporary folder beside its target and moved there when it is
/// whole and stored on the disk. Unless Place succeeds nothing stays behind: neither the file nor
/// the folders made for it; what a killed run left, the next one removes that makes a file there.
class FileInMaking {
  public:
    /// What may stand at the target.
    enum class Target {
        New,     ///< nothing; what is there is never touched
        Replaced ///< a file, which keeps its place until Place, and gives its permissions on
    };

    /// Make the target's folder when it is missing. Raises DatabaseError, naming the target and the
    /// cause, when it names no file, something else stands there, or the folder takes no files.
    explicit FileInMaking(const std::string& target, Target kind = Target::New);
    ~FileInMaking();
    FileInMaking(const FileInMaking&) = delete;
    FileInMaking& operator=(const FileInMaking&) = delete;

    /// Where to make the file; nothing stands there yet.
    std::string Path() const;
    /// Move the file to its target in one step, with the permissions of data files
    /// (files/FileModes.h) or of the file that it replaces, and see to it that it stays there.
    /// Raises DatabaseError, as the constructor does.
    void Place();

  private:
    void MakeFolder(const QString& folder);
    void MakeWorkshop(const QString& folder);
    void SetPermissions() const;
    void RemoveMadeFolders();
    [[noreturn]] void Refuse(const std::string& cause) const;

    QString target_;
    Target kind_;
    std::vector<std::filesystem::path> madeFolders_; ///< outermost first
    std::optional<QTemporaryDir> workshop_;
    Descriptor lock_; ///< on the workshop, so that no other run takes it for a left-over
    bool placed_ = false;
};

} // namespace tarn
