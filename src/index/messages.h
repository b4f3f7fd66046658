// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

/// The texts that the name search and the contact record show, word for word.
namespace stemwright::indexmessages
{

// There are no individuals to choose from: for a picture, and for the list of names with its contacts.
Message NoIndexOfNames();
Message NoListOfNames();

// The name search. A window beeps when it shows the last three.
InputRequest FindName(const QString& lastText);
Message NoMatch();
Message NoNextMatch();
Message NoPreviousMatch();
/// What was typed is the beginning of nobody's name.
QString NobodyBeginsSo();

/// The note on the contact record.
QString ReadOnlyNote();

} // namespace stemwright::indexmessages
