// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/people/nameindex.h"

#include "base/text.h"
#include "web/html/escape.h"
#include "web/html/pagefile.h"
#include "web/html/templates.h"
#include "web/links/picturelinks.h"
#include "web/links/treelinks.h"
#include "web/people/personalpage.h"

#include <atomic>
#include <future>

namespace stemwright
{

namespace
{

struct SortedPerson {
    QByteArray nameKey;
    std::string afterName;
    TreePosition person;
};

/// The letter A to Z with which a name begins; no value for any other beginning.
std::optional<char> IndexLetter(const std::string& name)
{
    if (name.empty()) {
        return std::nullopt;
    }
    const char letter = QChar::fromLatin1(name.front()).toUpper().toLatin1();
    return letter >= 'A' && letter <= 'Z' ? std::optional(letter) : std::nullopt;
}

/// The personal pages, which two threads write side by side, each taking the next one that is left. One that composes
/// what the other one writes was tried, and is slower.
class PersonalPages
{
public:
    /// `persons` must outlive it.
    PersonalPages(const SiteRun& run, const std::vector<TreePosition>& persons)
        : m_run(run), m_persons(persons), m_top(PersonalPageTop(run.application)),
          m_second(std::async(std::launch::async, [this] {
              PageFile page;
              while (writeNext(page)) {
              }
          }))
    {
    }

    PersonalPages(const PersonalPages&) = delete;
    PersonalPages& operator=(const PersonalPages&) = delete;

    /// Without finish() before, the pages that are left are not written any more.
    ~PersonalPages() { m_next = m_persons.size(); }

    /// Writes one of the pages that are left; false when there is none.
    bool writeNext(PageFile& page)
    {
        const std::size_t number = m_next++;
        if (number >= m_persons.size()) {
            return false;
        }
        WritePersonalPage(m_run, m_top, page, m_persons[number]);
        return true;
    }

    /// Waits for the last page, and throws what kept the second thread from writing one.
    void finish() { m_second.get(); }

private:
    const SiteRun& m_run;
    const std::vector<TreePosition>& m_persons;
    std::string m_top;
    std::atomic<std::size_t> m_next = 0;
    /// Goes first, since it uses the others.
    std::future<void> m_second;
};

class IndexWriter
{
public:
    explicit IndexWriter(const SiteRun& run) : m_run(run)
    {
        m_index.begin(*run.pages, "NameIndex.html");
        page().append(FillTemplate(ReadTemplate(run.application.file(QStringLiteral("html/nameindextop.html"))), {}));
    }

    void writePerson(TreePosition person)
    {
        const std::string name = m_run.names.indexName(person);
        writeHeading(name);
        page().append("<BR>");
        if (m_run.settings.personalPages) {
            page().append("<A HREF = \"");
            AppendPersonalPageName(page(), m_run.tree.individualId(person));
            page().append("\" TITLE=\"This individual's personal page\">");
        }
        AppendText(page(), name);
        page().append(m_run.settings.personalPages ? "</A> " : " ");
        AppendText(page(), TextAfterName(m_run, person));
        page().append("<BR>");
        AppendTreeLinks(page(), m_run, person);
        AppendInfoLinks(page(), m_run, person);
        page().append(PageFile::lineBreak);
        m_index.checkpoint();
    }

    void finish()
    {
        for (const std::string_view tag : {"</FONT>", "</NOBR>", "</BODY>", "</HTML>"}) {
            m_index.line(tag);
        }
        m_index.end();
    }

private:
    std::string& page() { return m_index.bytes(); }

    void writeHeading(const std::string& name)
    {
        const std::optional<char> letter = IndexLetter(name);
        if (!letter || letter == m_letter) {
            return;
        }
        m_letter = letter;
        page().append("<BR><BR><H2><A NAME=\"index_").push_back(*letter);
        page().append("\">").push_back(*letter);
        m_index.line("</A></H2>");
    }

    const SiteRun& m_run;
    PageFile m_index;
    std::optional<char> m_letter;
};

} // namespace

std::vector<TreePosition> PersonsInIndexOrder(const SiteRun& run)
{
    std::vector<SortedPerson> sorted;
    for (TreePosition person = 0; person < run.tree.individuals(); ++person) {
        if (run.isOnSite(person)) {
            const QString name = QString::fromStdString(run.names.indexName(person));
            sorted.push_back({CollationKey(name), TextAfterName(run, person), person});
        }
    }
    // Positions are in the order of the ids.
    std::sort(sorted.begin(), sorted.end(), [](const SortedPerson& first, const SortedPerson& second) {
        return std::tie(first.nameKey, first.afterName, first.person) <
               std::tie(second.nameKey, second.afterName, second.person);
    });
    std::vector<TreePosition> persons;
    persons.reserve(sorted.size());
    for (const SortedPerson& each : sorted) {
        persons.push_back(each.person);
    }
    return persons;
}

std::string TextAfterName(const SiteRun& run, TreePosition person)
{
    return run.privacy.isProtected(person) ? std::string() : LifeYears(run.texts, person);
}

void WriteNameIndex(const SiteRun& run, const std::vector<TreePosition>& persons, StepProgress& progress)
{
    IndexWriter writer(run);
    std::optional<PersonalPages> pages;
    if (run.settings.personalPages) {
        pages.emplace(run, persons);
    }
    PageFile page;
    for (const TreePosition person : persons) {
        progress.report([&] { return run.names.displayName(person); });
        writer.writePerson(person);
        if (pages) {
            pages->writeNext(page);
        }
    }
    writer.finish();
    if (pages) {
        pages->finish();
    }
}

} // namespace stemwright
