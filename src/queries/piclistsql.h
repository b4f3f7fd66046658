// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "queries/picturequery.h"

#include <vector>

/// The statement of a picture list query. What the user typed stands in it as it was typed, so that an operand with an
/// apostrophe makes a statement that the engine refuses. Stands on picture queries and the family tree.
namespace stemwright
{

struct PicListSql {
    QString queryName;
    /// The statement, in the dialect of earlier releases (store/engine/jetsql.h). It fetches all that is known of a
    /// picture, the picture itself included.
    QString text;
    /// What of that the list shows: the first columns of the statement.
    std::vector<ListColumn> shown;
    /// For running it: a statement that selects the same pictures, except that it asks for no person, and fetches only
    /// the picture's number, the encoded date and what is shown, in no particular order. The engine finds all of that
    /// in the list's own index and reads neither pictures nor the rows around them.
    QString listText;
    /// Of those pictures the ones whose numbers this statement gives; empty when the query asks for no person.
    QString personText;
};

/// Makes the statement of a query. When the query asks for a person, the table UniqueIds is made anew, in one
/// transaction, and filled with that person and the relatives asked for. Throws Error when there is no query with this
/// name, and when it asks for a person but none was chosen.
PicListSql BuildPicListSQL(Connection& connection, const QString& queryName);

} // namespace stemwright
