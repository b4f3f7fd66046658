// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/links/contactlinks.h"

#include "web/html/escape.h"

namespace stemwright
{

namespace
{

void AppendMailLink(std::string& page, std::string_view address, std::string_view text)
{
    BeginMailLink(page, address);
    page.append("<IMG SRC=\"graphics/email.gif\" ALT=\"").append(text);
    page.append("\" ALIGN=\"Absmiddle\" VSPACE=\"0\" BORDER=\"0\"></A>");
}

} // namespace

std::optional<Contact> PublishedContact(const SiteRun& run, TreePosition person)
{
    return run.privacy.isLeftOut(person) ? std::nullopt : run.texts.contact(person);
}

void BeginMailLink(std::string& page, std::string_view address)
{
    page.append("<A HREF=\"mailto:");
    AppendMailAddress(page, address);
    page.append("\">");
}

void BeginWebLink(std::string& page, std::string_view address)
{
    page.append("<A HREF=\"");
    AppendWebAddress(page, address);
    page.append("\" TARGET=\"_blank\">");
}

void AppendContactLinks(std::string& page, const SiteRun& run, TreePosition person)
{
    const std::optional<Contact> contact = PublishedContact(run, person);
    if (!contact) {
        return;
    }
    if (!contact->email1.empty() && !contact->email2.empty()) {
        AppendMailLink(page, contact->email1, "Send Email to This Person's 1st Address");
        AppendMailLink(page, contact->email2, "Send Email to This Person's 2nd Address");
    } else if (!contact->email1.empty() || !contact->email2.empty()) {
        AppendMailLink(page, contact->email1.empty() ? contact->email2 : contact->email1, "Send Email to This Person");
    }
    if (!contact->webPage.empty()) {
        BeginWebLink(page, contact->webPage);
        page.append("<IMG SRC=\"graphics/www.gif\" ALT=\"Go to This Person's Web Page\""
                    " ALIGN=\"Absmiddle\" VSPACE=\"0\" BORDER=\"0\"></A>");
    }
}

} // namespace stemwright
