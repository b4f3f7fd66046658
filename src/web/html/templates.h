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

/// A template that many pages are made from: gone through once, then filled by copying. Its lines end as FillTemplate()
/// ends them; a placeholder within a value stays as it is.
class PreparedTemplate
{
public:
    PreparedTemplate(std::string_view content, const std::vector<std::string_view>& placeholders);

    /// Appends the template, each placeholder replaced by the value at its place among the placeholders.
    void append(std::string& page, const std::vector<std::string_view>& values) const;

private:
    /// A piece of text, and the number of the value that follows it.
    struct Piece {
        std::string text;
        std::size_t value;
    };

    std::vector<Piece> m_pieces;
    std::string m_end;
};

} // namespace stemwright
