// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/familybuilder.h"
#include "support/testworld.h"

#include <QtCore/QStringList>

#include <map>
#include <string>

namespace stemwright::test
{

/// A test world that publishes: a new family file with its setup "Default", small templates of its own, and an output
/// folder that does not exist yet.
class SiteWorld : public TestWorld
{
public:
    /// Uses the tests' own templates, or those of the given application folder.
    explicit SiteWorld(const QString& application = TestData("web/share"));

    /// Sets columns of the setup: "PersPages = 1, HideLiving = 1".
    SiteWorld& setup(const QString& assignments);
    /// Gives the first tree this head, or adds a tree.
    SiteWorld& head(int id, const char* name, const char* display = "Outline");
    /// Adds an item to the setup as its stored record, the fields separated by "|".
    SiteWorld& item(const char* record);

    /// Builds the site into the output folder, answering the question about the folder and taking note of the end.
    /// False when it was not built.
    bool publish();

    QString site() const { return path("site"); }

    /// The bytes of a page, with LF for CR LF; empty for a missing page.
    std::string page(const QString& name) const;

    /// All files of the site with their bytes.
    std::map<QString, std::string> files() const;

    FamilyBuilder build;

private:
    int m_trees = 0;
};

/// Adds the family and the items of tests/data/web/harts.sql, and a tree of its eldest.
void AddHarts(SiteWorld& world);

} // namespace stemwright::test
