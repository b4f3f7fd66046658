// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "support/familybuilder.h"

namespace stemwright::test
{

namespace
{

/// A value as it stands in a statement; no value is Null.
QString Quoted(const char* text)
{
    return text == nullptr ? "NULL" : u'\'' + QString(text).replace(u'\'', "''") + u'\'';
}

QString IdOrNull(int id)
{
    return id == 0 ? "NULL" : QString::number(id);
}

} // namespace

FamilyBuilder& FamilyBuilder::person(int id, const char* givenName, const char* surname, Values others)
{
    run(QString("INSERT INTO Indi (Id, GivenName, Surname) VALUES (%1, %2, %3)")
            .arg(QString::number(id), Quoted(givenName), Quoted(surname)));
    set("Indi", QString("Id = %1").arg(id), others);
    return *this;
}

FamilyBuilder& FamilyBuilder::persons(int last)
{
    for (int id = 1; id <= last; ++id) {
        person(id, "P", "");
    }
    return *this;
}

FamilyBuilder& FamilyBuilder::family(int id, int husband, int wife, const std::vector<int>& children, Values others)
{
    run(QString("INSERT INTO Fam (Id, HusbandId, WifeId) VALUES (%1, %2, %3)")
            .arg(QString::number(id), IdOrNull(husband), IdOrNull(wife)));
    for (const int each : {husband, wife}) {
        if (each != 0) {
            spouse(each, id);
        }
    }
    for (const int child : children) {
        run(QString("INSERT INTO Fam2Child (FamId, ChildId) VALUES (%1, %2)").arg(id).arg(child));
        run(QString("UPDATE Indi SET FAMC = %1 WHERE Id = %2 AND FAMC IS NULL").arg(id).arg(child));
    }
    set("Fam", QString("Id = %1").arg(id), others);
    return *this;
}

FamilyBuilder& FamilyBuilder::spouse(int person, int family)
{
    return run(QString("INSERT INTO Spouse2Fam (SpouseId, FamId) VALUES (%1, %2)").arg(person).arg(family));
}

FamilyBuilder& FamilyBuilder::contact(int id, const char* email1, const char* email2, const char* webPage)
{
    return run(QString("INSERT INTO WebAddr (Id, Email1, Email2, WebPage) VALUES (%1, %2, %3, %4)")
                   .arg(QString::number(id), Quoted(email1), Quoted(email2), Quoted(webPage)));
}

FamilyBuilder& FamilyBuilder::run(const QString& sql)
{
    m_connection.execute(sql);
    return *this;
}

void FamilyBuilder::set(const char* table, const QString& where, Values values)
{
    for (const auto& [column, value] : values) {
        run(QString("UPDATE %1 SET \"%2\" = %3 WHERE %4").arg(table, column, Quoted(value), where));
    }
}

} // namespace stemwright::test
