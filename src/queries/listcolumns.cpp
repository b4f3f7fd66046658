// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "queries/listcolumns.h"

namespace stemwright
{

const std::vector<ListColumn>& ListColumns()
{
    using enum ListValue;
    static const std::vector<ListColumn> columns = {
        {QStringLiteral("Id"), QStringLiteral("PicId"), QStringLiteral("ID"), Number},
        {QStringLiteral("PicDate"), QStringLiteral("PictureDate"), QStringLiteral("Picture Date"), PictureDate},
        {QStringLiteral("Place"), QStringLiteral("Place"), QStringLiteral("Place"), Text},
        {QStringLiteral("Title"), QStringLiteral("Title"), QStringLiteral("Title"), Text},
        {QStringLiteral("Filename"), QStringLiteral("PicFilename"), QStringLiteral("Filename"), Text},
        {QStringLiteral("ModifDate"), QStringLiteral("ModificationDate"), QStringLiteral("Modified"), Time},
        {QStringLiteral("NamesLeft"), QStringLiteral("NamesLeft"), QStringLiteral("Names Left of Picture"), YesNo},
        {QStringLiteral("Rectangle"), QStringLiteral("Rectangle"), QStringLiteral("Rectangle Tool"), YesNo},
    };
    return columns;
}

} // namespace stemwright
