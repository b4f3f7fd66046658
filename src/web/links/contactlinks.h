// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/siterun.h"

namespace stemwright
{

/// How a person can be reached, as far as the site may say so: no value for who has no contact data, and for a
/// protected person on a site that hides those.
std::optional<Contact> PublishedContact(const SiteRun& run, TreePosition person);

/// Appends the e-mail and web icons that follow a person's name in trees and in the index of names.
void AppendContactLinks(std::string& page, const SiteRun& run, TreePosition person);

} // namespace stemwright
