// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

/// The texts that picture list queries show, word for word.
namespace stemwright::querymessages
{

/// What the window with the list of queries and the one in which a query is edited explain.
QString QueryListExplanation();
QString QueryEditorExplanation();

// The list of queries.
Message NoQueryName();
Message DuplicateQueryName(const QString& name);
Message ConfirmQueryDelete(const QString& name);
InputRequest NewNameOfQuery();
/// A query that could not be made, changed or run, with the reason as a whole sentence.
Message QueryFailed(const QString& reason);

// The query being edited.
Message NoNameIndex();
Message LoseChanges();

// The list of pictures.
Message CannotFindQuery(const QString& wanted, const QString& used);
/// The statement of a query was refused.
Message ListFailed(const QString& reason);

} // namespace stemwright::querymessages
