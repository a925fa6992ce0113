#pragma once

#include <QString>
#include <QTemporaryDir>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// A new file that is made in a temporary folder beside its target and moved there when it is
/// whole. Unless Place succeeds nothing stays behind: neither the file nor the folders made for it.
/// An existing target is never touched.
class FileInMaking {
  public:
    /// Make the target's folder when it is missing. Raises DatabaseError, naming the target and the
    /// cause, when something stands at `target` or the folder takes no files.
    explicit FileInMaking(const std::string& target);
    ~FileInMaking();
    FileInMaking(const FileInMaking&) = delete;
    FileInMaking& operator=(const FileInMaking&) = delete;

    /// Where to make the file; nothing stands there yet.
    std::string Path() const;
    /// Move the file to its target, with the permissions of data files (files/FileModes.h). Raises
    /// DatabaseError, as the constructor does.
    void Place();

  private:
    void MakeFolder(const QString& folder);
    void RemoveMadeFolders();
    [[noreturn]] void Refuse(const char* cause) const;

    QString target_;
    std::vector<std::filesystem::path> madeFolders_; ///< outermost first
    std::optional<QTemporaryDir> workshop_;
    bool placed_ = false;
};

} // namespace tarn
