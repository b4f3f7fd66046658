// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"

#include <QtCore/QString>

#include <initializer_list>
#include <utility>

namespace stemwright::test
{

/// Fills the tables of a family file with a family tree, as an import leaves them.
class FamilyBuilder
{
public:
    /// A column's name and the value that it gets.
    using Values = std::initializer_list<std::pair<const char*, const char*>>;

    /// From now on the file is not safe from power cuts, which tests need not be.
    explicit FamilyBuilder(Connection& connection) : m_connection(connection) { run("PRAGMA synchronous=OFF"); }

    /// Texts are UTF-8. An Indi row with this id, given name and surname.
    FamilyBuilder& person(int id, const char* givenName, const char* surname, Values others = {});

    /// Persons without a surname, numbered from 1.
    FamilyBuilder& persons(int last);

    /// A Fam row with its links from and to husband, wife and children; 0 stands for nobody.
    FamilyBuilder& family(int id, int husband, int wife, const std::vector<int>& children, Values others = {});

    /// Makes the person a spouse of a family that need not exist.
    FamilyBuilder& spouse(int person, int family);

    FamilyBuilder& contact(int id, const char* email1, const char* email2, const char* webPage);

    /// Runs a statement for what is special to a test.
    FamilyBuilder& run(const QString& sql);

private:
    void set(const char* table, const QString& where, Values values);

    Connection& m_connection;
};

} // namespace stemwright::test
