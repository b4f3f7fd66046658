// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "index/namesearch.h"
#include "store/file/familyfile.h"

class QWidget;

/// The individuals of the open family file in the windows that list them. The index of names is read when it is needed
/// first. Nothing here fails; what goes wrong is told. Stands on the name index.
namespace stemwright
{

class People
{
public:
    /// `file` and `environment` must outlive it.
    People(FamilyFile& file, Environment& environment) : m_file(file), m_environment(environment) {}

    /// Forgets the index, after the tree or the family file was replaced.
    void forget() { m_index.reset(); }

    /// Shows the list of names with their contacts.
    void editContacts(QWidget* parent);
    /// Lets the user choose somebody.
    std::optional<ChosenPerson> pick();

private:
    /// Makes the index available. False, after `absence` was told, when the tree has nobody.
    bool open(const Message& absence);

    FamilyFile& m_file;
    Environment& m_environment;
    std::optional<NameIndex> m_index;
};

} // namespace stemwright
