// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/people/contactinfo.h"

#include "web/html/escape.h"
#include "web/links/contactlinks.h"
#include "web/people/personpart.h"

namespace stemwright
{

namespace
{

class ContactInfo : PersonPart
{
public:
    using PersonPart::PersonPart;

    void write()
    {
        const std::optional<Contact> contact = PublishedContact(m_run, m_person);
        if (!contact || (contact->email1.empty() && contact->email2.empty() && contact->webPage.empty())) {
            return;
        }
        line("<BR><B>Contact Info:</B>");
        line(rule);
        line("<TABLE WIDTH=\"80%\" CELLPADDING=\"2\" CELLSPACING=\"0\">");
        for (const std::string_view address : {contact->email1, contact->email2}) {
            if (!address.empty()) {
                std::string link;
                BeginMailLink(link, address);
                AppendText(link, address);
                writeContactRow("Email address:", link);
            }
        }
        if (!contact->webPage.empty()) {
            std::string link;
            BeginWebLink(link, contact->webPage);
            link.append(NamesWebScheme(contact->webPage) ? "" : "http://");
            AppendText(link, contact->webPage);
            writeContactRow("Web address:", link);
        }
        line("</TABLE>");
    }

private:
    void writeContactRow(std::string_view caption, const std::string& link)
    {
        line("<TR>");
        cell(caption);
        cell(link + "</A>");
        line("</TR>");
    }
};

} // namespace

void WriteContactInfo(const SiteRun& run, PageFile& file, TreePosition person)
{
    ContactInfo(run, file, person).write();
}

} // namespace stemwright
