// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/leftjournal.h"

#include "base/error.h"
#include "base/files.h"
#include "store/engine/heldfile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QtEndian>

#include <sqlite3.h>

#include <optional>

namespace stemwright
{

namespace
{

const QString journalSuffix = QStringLiteral("-journal");
const QString logSuffix = QStringLiteral("-wal");

// The head of a database file.
constexpr qsizetype headSize = 100;
constexpr qsizetype writeFormatPlace = 18;
constexpr char logFormat = 2;
constexpr qsizetype changeCounterPlace = 24;
/// The change with which the number of pages was written down.
constexpr qsizetype pageCountChangePlace = 92;

// Records of a journal are a page's number, its bytes and a checksum; they stand in segments, each with a head that
// fills a sector.
constexpr qint64 segmentHeadSize = 28;
constexpr qint64 recordFrame = 8;
constexpr quint32 allThatFollow = 0xFFFFFFFF;

quint32 NumberAt(const QByteArray& bytes, qsizetype place)
{
    return qFromBigEndian<quint32>(bytes.constData() + place);
}

bool IsDatabaseHead(const QByteArray& head)
{
    return head.size() == headSize && head.startsWith(QByteArray("SQLite format 3\0", 16));
}

class Journal
{
public:
    struct Segment {
        qint64 place;
        quint32 records;
        quint32 originalPages;
        quint32 sectorSize;
        quint32 pageSize;
    };

    explicit Journal(const QString& path) : m_file(path)
    {
        if (m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            m_first = segmentAt(0);
            m_isEmptied = read(0, magic.size()) == QByteArray(magic.size(), '\0');
        }
    }

    /// Whether the engine would play it back at all.
    bool isHot() const { return m_first.has_value(); }

    /// Whether its change was settled, or had not yet reached the file: the engine never looks at it again, but writes
    /// over it with the next change.
    bool isEmptied() const { return m_isEmptied; }

    /// The size of the file before the change, in bytes.
    qint64 originalSize() const { return qint64{m_first->originalPages} * m_first->pageSize; }

    /// The head of the file from before the change, unless its page was still unchanged.
    std::optional<QByteArray> head()
    {
        for (std::optional<Segment> segment = m_first; segment;) {
            const qint64 recordSize = recordFrame + m_first->pageSize;
            qint64 place = segment->place + m_first->sectorSize;
            for (quint32 number = 0; number < segment->records; ++number, place += recordSize) {
                const QByteArray record = read(place, 4 + headSize);
                if (record.size() < 4 + headSize) {
                    return std::nullopt;
                }
                if (NumberAt(record, 0) == 1) {
                    return record.mid(4);
                }
            }
            const qint64 sector = m_first->sectorSize;
            segment = segmentAt((place + sector - 1) / sector * sector);
        }
        return std::nullopt;
    }

private:
    QByteArray read(qint64 place, qint64 length) { return m_file.seek(place) ? m_file.read(length) : QByteArray(); }

    std::optional<Segment> segmentAt(qint64 place)
    {
        const QByteArray head = read(place, segmentHeadSize);
        if (head.size() < segmentHeadSize || !head.startsWith(magic)) {
            return std::nullopt;
        }
        Segment segment{place, NumberAt(head, 8), NumberAt(head, 16), NumberAt(head, 20), NumberAt(head, 24)};
        if (segment.sectorSize < segmentHeadSize || segment.pageSize < headSize) {
            return std::nullopt;
        }
        if (segment.records == allThatFollow) {
            const qint64 following = m_file.size() - place - segment.sectorSize;
            segment.records = static_cast<quint32>(following / (recordFrame + segment.pageSize));
        }
        return segment;
    }

    const QByteArray magic = QByteArray::fromHex("d9d505f920a163d7");
    QFile m_file;
    std::optional<Segment> m_first;
    bool m_isEmptied = false;
};

/// A copy on which it is tried what playing back a journal would do.
class Trial
{
public:
    enum class With { Journal, NoJournal };

    Trial(const HeldFile& file, With with) : m_copy(file.path() + QStringLiteral(".trial"), file.path())
    {
        constexpr qint64 piece = 1 << 20;
        WriteWholeFile(m_copy.path(), {});
        for (qint64 place = 0; place < file.size(); place += piece) {
            AppendToFile(m_copy.path(), file.read(place, piece));
        }
        if (with == With::Journal && !QFile::copy(file.path() + journalSuffix, m_copy.path() + journalSuffix)) {
            throw Error(QStringLiteral("The journal beside the file cannot be copied. The disk may be full."));
        }
    }

    Trial(const Trial&) = delete;
    Trial& operator=(const Trial&) = delete;

    ~Trial()
    {
        for (const QString& companion : CompanionsOf(m_copy.path())) {
            QFile::remove(companion);
        }
    }

    /// Reading the copy plays back its journal.
    bool isSound() const
    {
        try {
            SQLite::Database copy(m_copy.path().toUtf8().constData(), SQLite::OPEN_READWRITE);
            copy.exec("PRAGMA ignore_check_constraints=ON");
            return copy.execAndGet("PRAGMA quick_check(1)").getString() == "ok";
        } catch (const SQLite::Exception& exception) {
            const int code = exception.getErrorCode();
            if (code == SQLITE_CORRUPT || code == SQLITE_NOTADB || code == SQLITE_ERROR) {
                return false;
            }
            // The disk is full, say, which tells nothing of the file.
            throw;
        }
    }

private:
    UnfinishedFile m_copy;
};

bool IsSoundWithJournal(const HeldFile& file)
{
    if (Trial(file, Trial::With::Journal).isSound()) {
        return true;
    }
    if (Trial(file, Trial::With::NoJournal).isSound()) {
        return false;
    }
    throw Error(QStringLiteral("The file is damaged, and the journal beside it, which a program left that was ended in "
                               "the middle of a change, does not mend it. Please use its backup, the file with the "
                               "extension \".ffb\"."));
}

/// A change writes the file's first page last of all, and counts itself on it.
bool IsOwn(const HeldFile& file, const QByteArray& head, Journal& journal)
{
    const std::optional<QByteArray> before = journal.head();
    if (!before) {
        // The first page would be there if the file had grown, and a file shrinks only when the journal is done with.
        return file.size() == journal.originalSize() && IsSoundWithJournal(file);
    }
    const quint32 counted = NumberAt(head, changeCounterPlace) - NumberAt(*before, changeCounterPlace);
    return counted == 0 ? head == *before : counted == 1 && IsSoundWithJournal(file);
}

/// Goes on with a checksum, word by word in the manner of FNV (draft-eastlake-fnv), which keeps up with any disk. Its
/// upper half is the better mixed one.
quint64 Summed(quint64 sum, const QByteArray& bytes)
{
    constexpr quint64 prime = 0x100000001B3;
    constexpr qsizetype word = sizeof(quint64);
    for (qsizetype place = 0; place + word <= bytes.size(); place += word) {
        sum = (sum ^ qFromLittleEndian<quint64>(bytes.constData() + place)) * prime;
    }
    return sum;
}

QString Renamed(const QString& path)
{
    const QString aside = path + QStringLiteral("-of-another-file");
    QString name = aside;
    for (int number = 2; QFileInfo::exists(name); ++number) {
        name = aside + u'-' + QString::number(number);
    }
    if (!QFile::rename(path, name)) {
        throw Error(QStringLiteral("The file %1, which belongs to another file, cannot be renamed.").arg(path));
    }
    return name;
}

} // namespace

QStringList CompanionsOf(const QString& path)
{
    return {path + journalSuffix, path + logSuffix, path + QStringLiteral("-shm")};
}

void CountChangesFromContent(const QString& path)
{
    constexpr qint64 piece = 1 << 20;
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)) {
        FailToWrite(path, file.errorString());
    }
    if (!IsDatabaseHead(file.peek(headSize))) {
        return;
    }
    quint64 sum = 0;
    for (QByteArray bytes = file.read(piece); !bytes.isEmpty(); bytes = file.read(piece)) {
        sum = Summed(sum, bytes);
    }
    QByteArray number(sizeof(quint32), Qt::Uninitialized);
    qToBigEndian(static_cast<quint32>(sum >> 32), number.data());
    for (const qsizetype place : {changeCounterPlace, pageCountChangePlace}) {
        if (!file.seek(place) || file.write(number) != number.size()) {
            FailToWrite(path, file.errorString());
        }
    }
    if (!file.flush()) {
        FailToWrite(path, file.errorString());
    }
}

void RequireUsablePath(const QString& path)
{
    // In bytes; the second is the engine's own limit.
    constexpr qsizetype longestName = 255;
    constexpr qsizetype longestPath = 511;
    const QByteArray journal = QFile::encodeName(path + journalSuffix);
    if (journal.size() - journal.lastIndexOf('/') - 1 > longestName) {
        throw Error(QStringLiteral("The name of the file is too long. Please choose a shorter one."));
    }
    if (journal.size() > longestPath) {
        throw Error(QStringLiteral("The path of the file is too long. Please choose a folder with a shorter one."));
    }
}

QStringList SetForeignJournalsAside(const QString& path)
{
    QStringList aside;
    const HeldFile file(path);
    if (!file.isHeld()) {
        return aside;
    }
    const QByteArray head = file.read(0, headSize);
    const bool isDatabase = IsDatabaseHead(head);
    Journal journal(file.path() + journalSuffix);
    if (journal.isHot() && !(isDatabase && IsOwn(file, head, journal))) {
        aside << Renamed(file.path() + journalSuffix);
    } else if (journal.isEmptied()) {
        QFile::remove(file.path() + journalSuffix);
    }
    const bool mayHaveLog = isDatabase && head.at(writeFormatPlace) == logFormat;
    if (!mayHaveLog && QFileInfo(file.path() + logSuffix).size() > 0) {
        aside << Renamed(file.path() + logSuffix);
    }
    return aside;
}

} // namespace stemwright
