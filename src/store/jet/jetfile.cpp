// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/jet/jetfile.h"

#include "base/error.h"

namespace stemwright
{

namespace
{

// The database's list of what it holds is a table, too.
constexpr quint32 catalogPage = 2;
const QString catalogName = QStringLiteral("MSysObjects");
constexpr int typeTable = 1;
constexpr quint32 systemFlags = 0x80000002;
constexpr quint32 pageMask = 0x00FFFFFF;

int CatalogColumn(const JetTable& catalog, QStringView name)
{
    const std::optional<int> column = catalog.column(name);
    if (!column) {
        FailDamaged(QStringLiteral("its list of tables cannot be read"));
    }
    return *column;
}

} // namespace

JetFile::JetFile(const QString& path) : m_pages(path)
{
    JetRows catalog(m_pages, ReadTable(m_pages, catalogPage, catalogName));
    const int id = CatalogColumn(catalog.table(), u"Id");
    const int name = CatalogColumn(catalog.table(), u"Name");
    const int type = CatalogColumn(catalog.table(), u"Type");
    const int flags = CatalogColumn(catalog.table(), u"Flags");
    while (catalog.next()) {
        if (catalog.integer(type) == typeTable && (static_cast<quint32>(catalog.integer(flags)) & systemFlags) == 0) {
            m_tableNames << catalog.text(name);
            m_definitionPages.push_back(static_cast<quint32>(catalog.integer(id)) & pageMask);
        }
    }
}

bool JetFile::hasTable(QStringView name) const
{
    return m_tableNames.contains(name, Qt::CaseInsensitive);
}

JetTable JetFile::table(QStringView name) const
{
    for (qsizetype i = 0; i < m_tableNames.size(); ++i) {
        if (name.compare(m_tableNames[i], Qt::CaseInsensitive) == 0) {
            return ReadTable(m_pages, m_definitionPages[static_cast<std::size_t>(i)], m_tableNames[i]);
        }
    }
    throw Error(QStringLiteral("The database has no table %1.").arg(name));
}

} // namespace stemwright
