// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/worktables.h"

#include "store/engine/schema.h"
#include "store/engine/tablesql.h"
#include "web/links/picturelinks.h"
#include "web/people/nameindex.h"
#include "web/run/ancestorchain.h"

namespace stemwright
{

namespace
{

class EntryWriter
{
public:
    EntryWriter(const SiteRun& run, Connection& connection)
        : m_run(run), m_insert(connection.prepare(QStringLiteral(
                          "INSERT INTO Indi2Page (IndiId, AncestorId, TreeNumber, PageOwnerId, GenDisplayType, Name,"
                          " Name4Index, AfterName, Links2Info, AncestorChain)"
                          " VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10)")))
    {
    }

    /// A duplicate leads to the page of the main entry, so that is its page here as well.
    void write(const PublishedTree& tree, EntryNumber number)
    {
        const TreeEntry& entry = tree.walk.entries()[number];
        const std::string ancestor = entry.reachedFrom == noEntry ? std::string() : id(tree.walk, entry.reachedFrom);
        const std::string treeNumber = std::to_string(tree.definition.number);
        const std::string owner = std::to_string(m_run.tree.individualId(tree.walk.pageOwner(entry.person)));
        const std::string name = m_run.names.displayName(entry.person);
        const std::string indexName = m_run.names.indexName(entry.person);
        const std::string afterName = TextAfterName(m_run, entry.person);
        std::string links;
        AppendInfoLinks(links, m_run, entry.person);
        const std::string chain = AncestorChainText(tree.walk, m_run.tree, number, maxTextLength);
        m_insert.bind(1, m_run.tree.individualId(entry.person));
        bindOrNull(2, ancestor);
        m_insert.bindUtf8(3, treeNumber).bindUtf8(4, owner).bindUtf8(5, FilePrefix(tree.display));
        m_insert.bindUtf8(6, CutToColumn(name)).bindUtf8(7, CutToColumn(indexName));
        bindOrNull(8, afterName);
        bindOrNull(9, links);
        bindOrNull(10, chain);
        m_insert.run();
    }

private:
    std::string id(const TreeWalk& walk, EntryNumber number) const
    {
        return std::to_string(m_run.tree.individualId(walk.entries()[number].person));
    }

    void bindOrNull(int parameter, const std::string& text)
    {
        if (text.empty()) {
            m_insert.bindNull(parameter);
        } else {
            m_insert.bindUtf8(parameter, text);
        }
    }

    const SiteRun& m_run;
    Statement m_insert;
};

const TableDefinition& Indi2Page()
{
    return TableNamed(u"Indi2Page");
}

const TableDefinition& UniqueIds()
{
    return TableNamed(u"UniqueIds");
}

void FillIndi2Page(const SiteRun& run, Connection& connection)
{
    EntryWriter writer(run, connection);
    for (const PublishedTree& tree : run.trees) {
        for (EntryNumber number = 0; number < tree.walk.entries().size(); ++number) {
            if (tree.walk.entries()[number].person != nowhere) {
                writer.write(tree, number);
            }
        }
    }
    // Sorting once is faster than finding the place of each row.
    CreateIndexes(connection, Indi2Page());
}

bool IsRepeated(const SiteRun& run, TreePosition person)
{
    return std::any_of(run.trees.begin(), run.trees.end(), [person](const PublishedTree& tree) {
        const EntryNumber first = tree.walk.firstEntry(person);
        return first != noEntry && tree.walk.entries()[first].nextOfPerson != noEntry;
    });
}

void FillUniqueIds(const SiteRun& run, Connection& connection)
{
    Statement insert =
        connection.prepare(QStringLiteral("INSERT INTO UniqueIds (Id, DuplicatesAlreadyFound) VALUES (?1, ?2)"));
    for (TreePosition person = 0; person < run.tree.individuals(); ++person) {
        if (run.isOnSite(person)) {
            insert.bind(1, run.tree.individualId(person)).bind(2, IsRepeated(run, person) ? -1 : 0).run();
        }
    }
}

} // namespace

void MakeWorkTables(Connection& connection)
{
    DropTable(connection, Indi2Page());
    CreateBareTable(connection, Indi2Page());
    DropTable(connection, UniqueIds());
    CreateTable(connection, UniqueIds());
}

void FillWorkTables(const SiteRun& run, Connection& connection)
{
    FillIndi2Page(run, connection);
    FillUniqueIds(run, connection);
}

} // namespace stemwright
