// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/siterun.h"

namespace stemwright
{

/// How a person can be reached, as far as the site may say so: no value for who has no contact data, and for a
/// protected person on a site that hides those.
std::optional<Contact> PublishedContact(const SiteRun& run, TreePosition person);

/// Appends "<A HREF=...>", a link for writing to a mail address or to a web page, which opens in a window of its own.
void BeginMailLink(std::string& page, std::string_view address);
void BeginWebLink(std::string& page, std::string_view address);

/// Appends the e-mail and web icons that follow a person's name in trees and in the index of names.
void AppendContactLinks(std::string& page, const SiteRun& run, TreePosition person);

} // namespace stemwright
