#include "store/Journal.h"

#include "base/Words.h"
#include "files/DatabaseFormat.h"
#include "store/DatabaseError.h"

#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <optional>

namespace tarn {

namespace {

// The engine's file formats, as far as they are needed. Numbers are big-endian.

/// The head of a journal, and of each of its further segments.
struct SegmentHead {
    static constexpr qint64 Size = 28;
    static constexpr quint32 AllToTheEnd = 0xFFFFFFFF; ///< as Records: all that there are

    quint32 Records = 0; ///< pages in the segment that are sure to be on the disk
    quint32 Seed = 0;    ///< of the pages' check sums
    quint32 PagesBefore = 0;
    quint32 SectorSize = 0;
    quint32 PageSize = 0;
};

// Where the fields of a database file's head stand.
constexpr qsizetype ChangeCounterAt = 24;
constexpr qsizetype PageCountAt = 28;
constexpr qsizetype CounterOfPageCountAt = 92;

/// A part of the head that no change of the content touches: the file's signature, the encoding of
/// texts, the mark of the copy (see DatabaseFile.h), the kind of application, what is reserved.
struct LastingPart {
    qsizetype At;
    qsizetype Size;
};
constexpr std::array<LastingPart, 4> LastingParts = {{{0, 16}, {56, 8}, {68, 4}, {72, 20}}};

quint32 NumberAt(const QByteArray& bytes, qsizetype at) {
    return qFromBigEndian<quint32>(bytes.constData() + at);
}

QByteArray ReadAt(QFile& file, qint64 at, qint64 size) {
    const QByteArray bytes = file.seek(at) ? file.read(size) : QByteArray();
    return bytes.size() == size ? bytes : QByteArray();
}

std::optional<SegmentHead> HeadFrom(const QByteArray& bytes) {
    if (bytes.size() < SegmentHead::Size ||
        std::string_view(bytes.constData(), JournalSignature.size()) != JournalSignature) {
        return std::nullopt;
    }
    return SegmentHead{NumberAt(bytes, 8), NumberAt(bytes, 12), NumberAt(bytes, 16),
                       NumberAt(bytes, 20), NumberAt(bytes, 24)};
}

bool IsUsable(const SegmentHead& head) {
    constexpr quint32 GreatestSize = 65536;
    const auto isSize = [](quint32 size, quint32 least) {
        return size >= least && size <= GreatestSize && (size & (size - 1)) == 0;
    };
    return isSize(head.PageSize, 512) && isSize(head.SectorSize, 32);
}

/// Whether a page was written to the journal whole. The engine adds up every 200th byte.
bool IsWhole(const QByteArray& page, quint32 seed, quint32 sum) {
    constexpr qsizetype Step = 200;
    for (qsizetype at = page.size() - Step; at > 0; at -= Step) {
        seed += static_cast<unsigned char>(page.at(at));
    }
    return seed == sum;
}

/// The head of the file's first page as the change found it; nothing when the journal does not
/// hold it.
QByteArray FirstPageHead(QFile& journal, const SegmentHead& first) {
    const qint64 record = qint64{first.PageSize} + 8; // page number, page, check sum
    const qint64 sector = first.SectorSize;
    qint64 segment = 0;
    while (const auto head = HeadFrom(ReadAt(journal, segment, SegmentHead::Size))) {
        qint64 at = segment + sector;
        const qint64 most = std::max<qint64>(journal.size() - at, 0) / record;
        const qint64 records = head->Records == SegmentHead::AllToTheEnd
                                   ? most
                                   : std::min<qint64>(head->Records, most);
        for (qint64 i = 0; i < records; ++i, at += record) {
            const QByteArray number = ReadAt(journal, at, 4);
            if (number.isEmpty() || NumberAt(number, 0) != 1) {
                continue;
            }
            const QByteArray rest = ReadAt(journal, at + 4, record - 4);
            const QByteArray page = rest.left(first.PageSize);
            if (!rest.isEmpty() && IsWhole(page, head->Seed, NumberAt(rest, first.PageSize))) {
                return page.left(DatabaseHeadSize);
            }
        }
        segment = (at + sector - 1) / sector * sector;
    }
    return {};
}

bool IsNextStateOf(const QByteArray& before, const QByteArray& file) {
    return NumberAt(file, ChangeCounterAt) == NumberAt(before, ChangeCounterAt) + 1 &&
           std::all_of(LastingParts.begin(), LastingParts.end(), [&](const LastingPart& part) {
               return before.mid(part.At, part.Size) == file.mid(part.At, part.Size);
           });
}

bool Belongs(QFile& journal, const SegmentHead& first, QFile& file) {
    const QByteArray head = ReadAt(file, 0, DatabaseHeadSize);
    if (head.isEmpty()) {
        return false;
    }
    if (first.Records == 0) {
        // Nothing of the change has reached the file; all that is taken back is its size.
        return file.size() / first.PageSize == first.PagesBefore;
    }
    const QByteArray before = FirstPageHead(journal, first);
    if (!before.isEmpty()) {
        return head == before || IsNextStateOf(before, head);
    }
    // Another program's change, cut off before it came to the first page.
    const bool tellsPages = NumberAt(head, ChangeCounterAt) == NumberAt(head, CounterOfPageCountAt);
    return !tellsPages || NumberAt(head, PageCountAt) == first.PagesBefore;
}

/// As JournalBeside; nothing when the journal went or changed meanwhile.
std::optional<JournalKind> LookBeside(const QString& database, const QString& beside) {
    QFile journal(beside);
    QFile file(database);
    if (!QFileInfo(journal).isFile() ||
        !journal.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ||
        !file.open(QIODevice::ReadOnly)) {
        return JournalKind::None;
    }
    const QByteArray bytes = ReadAt(journal, 0, SegmentHead::Size);
    const auto first = HeadFrom(bytes);
    if (!first || !IsUsable(*first) || file.size() == 0) {
        return JournalKind::None; // the engine takes nothing from such a one
    }
    const JournalKind kind =
        Belongs(journal, *first, file) ? JournalKind::Own : JournalKind::Foreign;
    QFile again(beside);
    if (!again.open(QIODevice::ReadOnly) || ReadAt(again, 0, SegmentHead::Size) != bytes) {
        return std::nullopt;
    }
    return kind;
}

QString CanonicalPath(const std::string& database) {
    const QFileInfo info(QString::fromStdString(database));
    return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

} // namespace

std::string JournalPath(const std::string& database) {
    return CanonicalPath(database).toStdString() + "-journal";
}

JournalKind JournalBeside(const std::string& database) {
    // A program that is writing right now may change one between the two readings.
    constexpr int Tries = 5;
    constexpr unsigned long Pause = 10; // milliseconds
    const QString beside = QString::fromStdString(JournalPath(database));
    for (int tries = 0; tries < Tries; ++tries) {
        const auto kind = LookBeside(CanonicalPath(database), beside);
        if (kind && *kind != JournalKind::Foreign) {
            return *kind;
        }
        QThread::msleep(Pause);
    }
    return LookBeside(CanonicalPath(database), beside).value_or(JournalKind::Own);
}

void RequireFilesBeside(const std::string& database) {
    const std::string path = CanonicalPath(database).toStdString();
    for (const char* suffix : {"-journal", "-wal"}) {
        const std::string beside = path + suffix;
        const QFileInfo info(QString::fromStdString(beside));
        if (info.exists() && !info.isFile()) {
            throw DatabaseError(
                Words("The database file %1 cannot be opened: %2 is no file. Remove it.", database,
                      beside));
        }
    }
}

void RequireOwnJournal(const std::string& database) {
    if (JournalBeside(database) == JournalKind::Foreign) {
        throw DatabaseError(ForeignJournalText(database));
    }
}

std::string ForeignJournalText(const std::string& database) {
    return Words("The database file %1 is not opened: beside it lies %2, the journal of a change "
                 "that was cut off, and it belongs to another state of the file, as when a backup "
                 "was copied over the file. Together they would give wrong rooms; nothing was "
                 "changed. Put a backup in place with \"tarn-data restore BACKUP --database %1\", "
                 "which sets the journal aside.",
                 database, JournalPath(database));
}

} // namespace tarn
