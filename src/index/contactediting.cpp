// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/contactediting.h"

#include "index/fullname.h"
#include "store/engine/schema.h"

namespace stemwright
{

ContactEditing::ContactEditing(Connection& connection, int individualId)
    : m_connection(connection), m_individualId(individualId), m_name(StoredFullName(connection, individualId))
{
    Statement individual =
        connection.prepare(QStringLiteral("SELECT coalesce(Address, ''), coalesce(Phone, '') FROM Indi WHERE Id = ?1"));
    if (individual.bind(1, individualId).step()) {
        m_address = individual.text(0);
        m_phone = individual.text(1);
    }
    Statement stored = connection.prepare(
        QStringLiteral("SELECT rowid, coalesce(Email1, ''), coalesce(Email2, ''), coalesce(WebPage, '') FROM WebAddr"
                       " WHERE Id = ?1 ORDER BY rowid"));
    if (stored.bind(1, individualId).step()) {
        m_row = stored.integer64(0);
        m_record = {stored.text(1), stored.text(2), stored.text(3)};
    }
}

bool ContactEditing::apply()
{
    RequireShortText(m_record.email1, QStringLiteral("Email1"));
    RequireShortText(m_record.email2, QStringLiteral("Email2"));
    RequireShortText(m_record.webPage, QStringLiteral("WebPage"));
    if (m_record.email1.isEmpty() && m_record.email2.isEmpty() && m_record.webPage.isEmpty()) {
        return false;
    }
    Transaction transaction(m_connection);
    Statement write = m_connection.prepare(
        m_row == 0 ? QStringLiteral("INSERT INTO WebAddr (Id, Email1, Email2, WebPage) VALUES (?1, ?2, ?3, ?4)")
                   : QStringLiteral("UPDATE WebAddr SET Id = ?1, Email1 = ?2, Email2 = ?3, WebPage = ?4"
                                    " WHERE rowid = ?5"));
    write.bind(1, m_individualId);
    int parameter = 2;
    for (const QString& text : {m_record.email1, m_record.email2, m_record.webPage}) {
        write.bind(parameter++, text.isNull() ? QStringLiteral("") : text);
    }
    if (m_row != 0) {
        write.bind(5, m_row);
    }
    write.run();
    if (m_row == 0) {
        m_row = m_connection.lastInsertId();
    }
    transaction.commit();
    return true;
}

} // namespace stemwright
