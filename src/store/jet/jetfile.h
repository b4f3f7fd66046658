// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/jet/jetrows.h"

#include <QtCore/QStringList>

/// A Jet 4.0 database, in which earlier releases kept family files and albums: its tables, their columns and rows. It
/// is only read, and nobody is kept from it meanwhile. Whatever cannot be read - another kind of file, a password,
/// damage - fails with Error, whose text says what the user can do; no file, however damaged, does more harm than that.
/// Stands on base.
namespace stemwright
{

class JetFile
{
public:
    explicit JetFile(const QString& path);

    /// The bytes of the file as they were read.
    const QByteArray& content() const { return m_pages.content(); }

    /// The names of the tables that users and programs made, in the order of the database's own list.
    const QStringList& tableNames() const { return m_tableNames; }

    bool hasTable(QStringView name) const;

    /// The definition of a table, its name compared without regard to case. Throws Error when there is none.
    JetTable table(QStringView name) const;

    /// The rows of a table. The file must outlive them.
    JetRows rows(QStringView name) const { return JetRows(m_pages, table(name)); }

private:
    JetPages m_pages;
    QStringList m_tableNames;
    /// The page on which each table's definition begins.
    std::vector<quint32> m_definitionPages;
};

} // namespace stemwright
