// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <vector>

/// The columns that a list of pictures can show, as data. Stands on nothing.
namespace stemwright
{

/// What stands in a column, which decides how it is shown and sorted.
enum class ListValue { Number, PictureDate, Text, Time, YesNo };

struct ListColumn {
    /// What the columns of PicListQueries that are about it begin with: "Id" of IdShow, IdFilter and so on.
    QString key;
    /// The column of AlbumTOC.
    QString column;
    QString caption;
    ListValue value;
};

/// In the order in which lists show them.
const std::vector<ListColumn>& ListColumns();

} // namespace stemwright
