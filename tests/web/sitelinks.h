// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include <QtCore/QStringList>

namespace stemwright::test
{

/// What on the pages of a site leads nowhere: links, images, frames and anchors, each as "page: target". Addresses of
/// other sites and mail addresses are left out. The site is given by its files' names and bytes.
QStringList DeadLinks(const std::map<QString, std::string>& files);

} // namespace stemwright::test
