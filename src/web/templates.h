// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <string>
#include <string_view>
#include <vector>

/// Templates: files of the application's folder that pages are made from, with placeholders such as $SiteTitle. They
/// are bytes in the encoding of the pages. Reading throws Error; filling cannot fail. Stands on base.
namespace stemwright
{

/// What takes the place of a placeholder; the value is HTML in the encoding of the pages.
struct Replacement {
    std::string_view placeholder;
    std::string value;
};

/// The whole content of a template file.
std::string ReadTemplate(const QString& path);

/// The template's lines, each ended by CR LF, with all occurrences of the placeholders replaced, in the order given and
/// without regard to case.
std::string FillTemplate(std::string_view content, const std::vector<Replacement>& replacements);

} // namespace stemwright
