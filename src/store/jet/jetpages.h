// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/jet/jetbytes.h"

#include <QtCore/QString>

#include <memory>

/// The pages of a Jet 4.0 database, read and decoded by libmdb, and the records on them. Of that library no more is
/// used than this: what it does beyond reading pages prints to the terminal, obeys environment variables, follows
/// places in the file without a look whether they are there, and ends the program when a page is missing. So everything
/// on the pages is read by our own code, which checks every place and every length. Fails with Error. Stands on base.
namespace stemwright
{

/// In bytes.
inline constexpr int jetPageSize = 4096;

/// Whether a file that begins with these bytes (32 are enough) is a database of this family, of whatever age.
bool IsJetContent(const QByteArray& head);

/// Where a record stands: its page, and its place in the page's list of records.
struct JetRecordPlace {
    quint32 page = 0;
    int slot = 0;

    /// The place from the form in which databases store it.
    static JetRecordPlace of(quint32 stored) { return {stored >> 8, static_cast<int>(stored & 0xFF)}; }
};

enum class JetRecordKind {
    Whole,   ///< the record stands here
    Pointer, ///< it was moved; here is the place where it stands now
    Arrived, ///< it was moved here and is reached through its pointer
    Deleted
};

struct JetRecord {
    JetRecordKind kind = JetRecordKind::Deleted;
    JetBytes bytes;
};

enum class JetPageKind : quint8 { Data = 1, Table = 2, UsageMap = 5 };

class JetPages
{
public:
    /// Reads the file into memory, so that neither a failing disk nor another program that writes the file meanwhile
    /// can surprise anyone. Refuses whatever is no Jet 4.0 database that can be read without a password.
    explicit JetPages(const QString& path);
    JetPages(const JetPages&) = delete;
    JetPages& operator=(const JetPages&) = delete;
    ~JetPages();

    /// The whole file.
    const QByteArray& content() const { return m_content; }

    /// The number of whole pages; they are numbered from 0.
    quint32 count() const { return m_count; }

    JetBytes page(quint32 number) const;

    /// A page that must be of this kind.
    JetBytes page(quint32 number, JetPageKind kind) const;

private:
    struct Library;

    QByteArray m_content;
    quint32 m_count = 0;
    std::unique_ptr<Library> m_library;
};

bool IsOfKind(const JetBytes& page, JetPageKind kind);

/// The number of records that a data page lists.
int CountRecords(const JetBytes& dataPage);

/// A record of a data page, which must list it.
JetRecord ReadRecord(const JetBytes& dataPage, int slot);

} // namespace stemwright
