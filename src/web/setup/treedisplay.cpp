// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/treedisplay.h"

#include <array>

namespace stemwright
{

namespace
{

/// By the number of the display.
constexpr std::array<std::string_view, 4> prefixes = {"Outline", "DescTree", "CTree", "AncTree"};

} // namespace

const QStringList& TreeDisplays()
{
    static const QStringList displays = {QStringLiteral("Outline"), QStringLiteral("Descendant Tree"),
                                         QStringLiteral("CollapsiTree"), QStringLiteral("Ancestor Tree")};
    return displays;
}

QString DisplayName(TreeDisplay display)
{
    return TreeDisplays().at(static_cast<qsizetype>(display));
}

std::string_view FilePrefix(TreeDisplay display)
{
    return prefixes.at(static_cast<std::size_t>(display));
}

std::optional<TreeDisplay> FindDisplay(const QString& name)
{
    for (qsizetype number = 0; number < TreeDisplays().size(); ++number) {
        if (TreeDisplays()[number].compare(name, Qt::CaseInsensitive) == 0) {
            return static_cast<TreeDisplay>(number);
        }
    }
    return std::nullopt;
}

} // namespace stemwright
