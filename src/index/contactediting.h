// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"

#include <QtCore/QString>

/// The contact record of an individual while it is edited. Nothing reaches the family file before apply(). Failures:
/// Error for values that do not fit and for an individual who is not in the tree, SQLite::Exception for the family
/// file. Stands on the connection.
namespace stemwright
{

/// What can be edited; empty texts where nothing is known.
struct ContactRecord {
    QString email1;
    QString email2;
    QString webPage;
};

class ContactEditing
{
public:
    ContactEditing(Connection& connection, int individualId);

    /// The individual's full name, and what came with the tree; both read only.
    const QString& name() const { return m_name; }

    const QString& address() const { return m_address; }

    const QString& phone() const { return m_phone; }

    const ContactRecord& record() const { return m_record; }

    void setRecord(const ContactRecord& record) { m_record = record; }

    /// Stores the record. False, with the stored values as they were, when all three texts are empty.
    bool apply();

private:
    Connection& m_connection;
    int m_individualId;
    QString m_name;
    QString m_address;
    QString m_phone;
    ContactRecord m_record;
    /// The row in the family file; 0 for a record that it does not hold yet.
    qint64 m_row = 0;
};

} // namespace stemwright
