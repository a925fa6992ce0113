#include "store/Drafts.h"

#include "base/Words.h"
#include "files/FileModes.h"
#include "files/OutputFile.h"
#include "files/QtText.h"
#include "store/Names.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <algorithm>
#include <cstdlib>
#include <system_error>

namespace tarn {

namespace fs = std::filesystem;

namespace {

/// No draft is larger; what is, was written by something else.
constexpr qint64 LargestFile = 16777216;

/// The beginning of a draft's file name, and its end.
constexpr const char* Prefix = "draft-";
constexpr const char* Suffix = ".json";

std::optional<fs::path> AbsolutePathIn(const char* variable) {
    const char* value = std::getenv(variable);
    if (value == nullptr || !fs::path(value).is_absolute()) {
        return std::nullopt;
    }
    return fs::path(value);
}

/// The one path of a file, whatever links lead to it.
std::string RealPath(const std::string& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    const fs::path real = fs::weakly_canonical(absolute, error);
    return error ? absolute.string() : real.string();
}

/// What the names of a project's files have in common and no other project's.
QString KeyOf(const std::string& database, std::string_view project) {
    QCryptographicHash hash(QCryptographicHash::Sha1);
    const std::string text = database + '\n' + StoredName(project);
    hash.addData(QByteArray::fromStdString(text));
    return QString::fromLatin1(Prefix) + QString::fromLatin1(hash.result().toHex().left(20)) +
           QLatin1Char('-');
}

std::optional<std::string> ReadAll(const std::string& path) {
    const QString name = ToQt(path);
    const QFileInfo info(name);
    if (!info.isFile() || info.size() > LargestFile) {
        return std::nullopt; // a pipe would keep the program waiting
    }
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.read(LargestFile).toStdString();
}

void RemoveFile(const std::string& file) noexcept {
    std::error_code error;
    fs::remove(file, error);
}

/// A failure of a draft's file as one of its folder: the file's name tells nobody anything.
std::string FolderFailure(const std::string& file, std::string failure) {
    constexpr std::string_view Cause = "\x01"; // stands where the cause does
    const std::string named = Words("The file %1 cannot be written: %2.", file, Cause);
    const std::string begin = named.substr(0, named.find(Cause));
    if (failure.starts_with(begin)) {
        const std::string folder = fs::path(file).parent_path().string();
        const std::string instead = Words("The folder %1 cannot be written: %2.", folder, Cause);
        failure.replace(0, begin.size(), instead.substr(0, instead.find(Cause)));
    }
    return failure;
}

/// Raises OutputFileError.
void WriteFile(const std::string& file, const DraftRecord& record) {
    const fs::path folder = fs::path(file).parent_path();
    try {
        MakePrivateFolder(folder);
        WriteOutputFile(file, DraftText(record), Overwrite::Chosen, NewFile::Private);
    } catch (const fs::filesystem_error& error) {
        throw OutputFileError(
            Words("The folder %1 cannot be written: %2.", folder.string(), error.code().message()));
    } catch (const OutputFileError& error) {
        throw OutputFileError(FolderFailure(file, error.what()));
    }
}

template <typename Action>
void DoWhatCanBeDone(Action&& action) noexcept {
    try {
        action();
    } catch (const std::exception&) {
        // A draft too many does no harm.
    }
}

} // namespace

std::optional<fs::path> UserStateDirectory() {
    if (const auto state = AbsolutePathIn("XDG_STATE_HOME")) {
        return *state / "tarn";
    }
    if (const auto home = AbsolutePathIn("HOME")) {
        return *home / ".local" / "state" / "tarn";
    }
    return std::nullopt;
}

Drafts UserDrafts(const std::string& database) {
    const auto folder = UserStateDirectory();
    return folder ? Drafts(*folder, database)
                  : Drafts(Words("There is no folder for it: the environment names no home."));
}

Drafts::Drafts(std::string reason)
    : reason_(std::move(reason)) {}

Drafts::Drafts(const fs::path& folder, const std::string& database)
    : folder_(folder)
    , database_(RealPath(database))
    , run_(QUuid::createUuid().toString(QUuid::Id128).left(16)) {}

std::string Drafts::NewFile(std::string_view project) {
    const QString name = KeyOf(database_, project) + run_ + QLatin1Char('-') +
                         QString::number(++count_) + QLatin1String(Suffix);
    return (folder_ / FromQt(name)).string();
}

void Drafts::Write(const std::string& file, std::string_view project, const Draft& draft,
                   const QDateTime& now) const {
    if (!reason_.empty()) {
        throw OutputFileError(reason_);
    }
    WriteFile(file, {database_, StoredName(project), now, {}, draft});
}

std::optional<DraftRecord> Drafts::Read(const std::string& file) const {
    const auto text = ReadAll(file);
    auto record = text ? ReadDraftText(*text) : std::nullopt;
    return record && record->Database == database_ ? record : std::nullopt;
}

std::vector<std::string> Drafts::FilesLike(const QString& pattern) const {
    std::vector<std::string> files;
    if (!reason_.empty()) {
        return files;
    }
    const QDir folder(ToQt(folder_.string()));
    for (const QString& name : folder.entryList({pattern}, QDir::Files)) {
        files.push_back((folder_ / FromQt(name)).string());
    }
    return files;
}

std::vector<std::string> Drafts::FilesOf(std::string_view project) const {
    return FilesLike(KeyOf(database_, project) + QLatin1Char('*') + QLatin1String(Suffix));
}

std::vector<KeptDraft> Drafts::Of(std::string_view project) const {
    std::vector<KeptDraft> drafts;
    for (const std::string& file : FilesOf(project)) {
        if (auto record = Read(file); record && record->Project == StoredName(project)) {
            drafts.push_back({file, std::move(*record)});
        }
    }
    std::sort(drafts.begin(), drafts.end(), [](const KeptDraft& a, const KeptDraft& b) {
        return a.Record.Written != b.Record.Written ? a.Record.Written > b.Record.Written
                                                    : a.File > b.File;
    });
    return drafts;
}

void Drafts::Remove(const std::string& file) const noexcept {
    RemoveFile(file);
}

void Drafts::Supersede(std::string_view project, const std::string& except,
                       const QDateTime& now) const noexcept {
    DoWhatCanBeDone([&] {
        std::size_t kept = 0;
        for (KeptDraft& draft : Of(project)) {
            if (++kept > MostDrafts && draft.File != except) {
                RemoveFile(draft.File);
            } else if (draft.File != except && !draft.Record.Superseded.isValid()) {
                draft.Record.Superseded = now;
                DoWhatCanBeDone([&] { WriteFile(draft.File, draft.Record); });
            }
        }
    });
}

void Drafts::Move(std::string_view project, std::string_view newName) noexcept {
    DoWhatCanBeDone([&] {
        End(newName);
        for (KeptDraft& draft : Of(project)) {
            draft.Record.Project = StoredName(newName);
            DoWhatCanBeDone([&] {
                WriteFile(NewFile(newName), draft.Record);
                RemoveFile(draft.File);
            });
        }
    });
}

void Drafts::End(std::string_view project) const noexcept {
    DoWhatCanBeDone([&] {
        for (const std::string& file : FilesOf(project)) {
            RemoveFile(file);
        }
    });
}

void Drafts::EndExpired(const QDateTime& now) const noexcept {
    DoWhatCanBeDone([&] {
        const QString every = QLatin1String(Prefix) + QLatin1Char('*') + QLatin1String(Suffix);
        for (const std::string& file : FilesLike(every)) {
            const auto text = ReadAll(file);
            const auto record = text ? ReadDraftText(*text) : std::nullopt;
            if (record && record->Superseded.isValid() &&
                record->Superseded.addDays(DraftDays) < now) {
                RemoveFile(file);
            }
        }
    });
}

} // namespace tarn
