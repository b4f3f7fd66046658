// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <memory>
#include <optional>
#include <string_view>

struct UConverter;

namespace stemwright
{

/// One of the many character sets that ICU knows by name, if it can be that of a GEDCOM file: one in which ASCII is
/// ASCII and every character stands for itself. Nothing here fails: a name that is unknown, or that of another kind of
/// character set, is no value.
class NamedCharset
{
public:
    /// Opens the character set with this name, in any of the spellings that are in use.
    static std::optional<NamedCharset> open(const QString& name);

    bool isSingleByte() const;

    /// The text; no value when some bytes do not belong to the character set.
    std::optional<QString> decode(std::string_view bytes) const;

private:
    struct Closer {
        void operator()(UConverter* converter) const;
    };

    explicit NamedCharset(UConverter* converter) : m_converter(converter) {}

    bool keepsAscii() const;

    std::unique_ptr<UConverter, Closer> m_converter;
};

/// Whether a name is that of ASCII or of ISO 8859-1, of which Windows-1252 has all characters.
bool IsWithinWindows1252(const QString& name);

} // namespace stemwright
