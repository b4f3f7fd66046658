// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/html/pagefile.h"
#include "web/run/siterun.h"

/// What the parts of a personal page are made of: its tables, and the links to other persons. Nothing here fails.
/// Stands on the run.
namespace stemwright
{

class PersonPart
{
public:
    /// A part of the page of this person.
    PersonPart(const SiteRun& run, PageFile& file, TreePosition person) : m_run(run), m_person(person), m_file(file) {}

protected:
    static constexpr std::string_view rule = "<HR COLOR=\"BLACK\">";
    static constexpr std::string_view nothing = "&nbsp;";
    static constexpr std::string_view unknownCell = "&lt;Unknown&gt;";

    std::string& page() { return m_file.bytes(); }

    void line(std::string_view bytes) { m_file.line(bytes); }

    void cell(std::string_view content) { page().append("\t<TD>").append(content).append("</TD>\r\n"); }

    /// A table with borders, and the tags and texts of its heads.
    void beginTable(std::string_view first, std::string_view second, std::string_view third);

    /// The row of an item; the cells are HTML.
    void writeRow(const PublishedItem& item, std::string_view date, std::string_view text);

    /// The row of an event.
    void writeEvent(const PublishedItem& item, std::string_view date, std::string_view place);

    /// How the page names another person: with links where that person has a page of his own, without a name where he
    /// or she must not be named.
    void appendPersonLink(TreePosition person);

    const SiteRun& m_run;
    TreePosition m_person;

private:
    PageFile& m_file;
};

} // namespace stemwright
