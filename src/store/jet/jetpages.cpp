// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/jet/jetpages.h"

#include "base/error.h"
#include "base/files.h"

#include <QtCore/QFileInfo>

// It names types of GLib without including it.
#include <glib.h>

#include <mdbtools.h>

namespace stemwright
{

struct JetPages::Library {
    struct Closer {
        void operator()(MdbHandle* handle) const { mdb_close(handle); }
    };

    std::unique_ptr<MdbHandle, Closer> handle;
};

namespace
{

/// No database of this family can be larger.
constexpr qint64 largestDatabase = 0x80000000;

constexpr int versionPlace = 0x14;
constexpr quint8 versionJet3 = 0;
constexpr quint8 versionJet4 = 1;

constexpr int passwordPlace = 0x42;
constexpr int passwordLength = 40;
constexpr int creationDatePlace = 0x72;

constexpr int recordCountPlace = 12;
constexpr int recordListPlace = 14;
constexpr int placeMask = 0x1FFF;
constexpr int pointerFlag = 0x4000;
constexpr int hiddenFlag = 0x8000;

/// Refuses, by the unmasked beginning of the file, what this reader does not read.
void RequireJet4(const QByteArray& content)
{
    if (!IsJetContent(content)) {
        throw Error(QStringLiteral("It is not a Jet database (.mdb, .kvf)."));
    }
    if (content.size() < jetPageSize) {
        FailDamaged(QStringLiteral("all but its beginning is missing"));
    }
    const auto version = static_cast<quint8>(content.at(versionPlace));
    if (content.mid(4).startsWith("Standard ACE DB") || version > versionJet4) {
        throw Error(QStringLiteral("It is a database of Microsoft Access 2007 or later, in which Stemwright never kept "
                                   "anything. Save it in the format of Access 2002-2003 and try again."));
    }
    if (version == versionJet3) {
        throw Error(QStringLiteral("It is a database of Microsoft Access 97 or earlier. Convert it to the format of "
                                   "Access 2002-2003 and try again."));
    }
}

/// libmdb leaves the password alone, but whoever set one does not wish the file to be read without.
void RequireNoPassword(const JetBytes& firstPage)
{
    const double date = firstPage.real(creationDatePlace);
    const bool fits = date > -2147483649.0 && date < 2147483648.0;
    const quint32 key = fits ? static_cast<quint32>(static_cast<qint32>(date)) : 0;
    const QByteArray password = firstPage.part(passwordPlace, passwordLength);
    for (int i = 0; i < passwordLength; ++i) {
        const auto mask = static_cast<quint8>(key >> (8 * (i % 4)));
        if (static_cast<quint8>(password.at(i)) != mask) {
            throw Error(QStringLiteral("It is protected by a password. Open it in Microsoft Access, remove the "
                                       "password and try again."));
        }
    }
}

QByteArray ReadDatabase(const QString& path)
{
    if (QFileInfo(path).size() > largestDatabase) {
        throw Error(QStringLiteral("It is larger than any Jet database."));
    }
    return ReadWholeFile(path);
}

} // namespace

bool IsJetContent(const QByteArray& head)
{
    return head.mid(4).startsWith("Standard Jet DB") || head.mid(4).startsWith("Standard ACE DB");
}

JetPages::JetPages(const QString& path) : m_content(ReadDatabase(path)), m_library(std::make_unique<Library>())
{
    RequireJet4(m_content);
    m_count = static_cast<quint32>(m_content.size() / jetPageSize);
    m_library->handle.reset(mdb_open_buffer(m_content.data(), static_cast<std::size_t>(m_content.size()), MDB_NOFLAGS));
    if (!m_library->handle) {
        FailDamaged(QStringLiteral("its first page cannot be read"));
    }
    // Opening leaves the first page unmasked, which reading it again would not.
    RequireNoPassword(JetBytes(QByteArray(reinterpret_cast<const char*>(m_library->handle->pg_buf), jetPageSize)));
}

JetPages::~JetPages() = default;

JetBytes JetPages::page(quint32 number) const
{
    if (number >= m_count) {
        FailDamaged(QStringLiteral("a part of it is missing"));
    }
    MdbHandle* handle = m_library->handle.get();
    if (mdb_read_pg(handle, number) != jetPageSize) {
        FailDamaged(QStringLiteral("page %1 cannot be read").arg(number));
    }
    return JetBytes(QByteArray(reinterpret_cast<const char*>(handle->pg_buf), jetPageSize));
}

JetBytes JetPages::page(quint32 number, JetPageKind kind) const
{
    JetBytes bytes = page(number);
    if (!IsOfKind(bytes, kind)) {
        FailDamaged(QStringLiteral("page %1 holds something else than it should").arg(number));
    }
    return bytes;
}

bool IsOfKind(const JetBytes& page, JetPageKind kind)
{
    return page.number8(0) == static_cast<quint8>(kind);
}

int CountRecords(const JetBytes& dataPage)
{
    const int count = dataPage.number16(recordCountPlace);
    if (recordListPlace + 2 * count > jetPageSize) {
        FailDamaged(QStringLiteral("a page lists more records than it can hold"));
    }
    return count;
}

JetRecord ReadRecord(const JetBytes& dataPage, int slot)
{
    const int count = CountRecords(dataPage);
    if (slot >= count) {
        FailDamaged(QStringLiteral("a record is not where it should be"));
    }
    const int entry = dataPage.number16(recordListPlace + 2 * slot);
    const int begin = entry & placeMask;
    // Records fill a page from its end; each one ends where the one before it begins.
    const int end = slot == 0 ? jetPageSize : dataPage.number16(recordListPlace + 2 * (slot - 1)) & placeMask;
    if (begin < recordListPlace + 2 * count || begin > end) {
        FailDamaged(QStringLiteral("a record does not fit its page"));
    }
    const bool pointer = (entry & pointerFlag) != 0;
    const bool hidden = (entry & hiddenFlag) != 0;
    if (pointer && hidden) {
        return {JetRecordKind::Deleted, {}};
    }
    const JetRecordKind kind = pointer  ? JetRecordKind::Pointer
                               : hidden ? JetRecordKind::Arrived
                                        : JetRecordKind::Whole;
    return {kind, JetBytes(dataPage.part(begin, end - begin))};
}

} // namespace stemwright
