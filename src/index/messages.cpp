// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/messages.h"

namespace stemwright::indexmessages
{

Message NoIndexOfNames()
{
    return {{},
            QStringLiteral("The index of names does not exist. It will be built when you  import a GEDCOM file."),
            Icon::Warning};
}

Message NoListOfNames()
{
    return {{},
            QStringLiteral("The list of names does not exist. It will be generated\nwhen you import a GEDCOM file."),
            Icon::Warning};
}

InputRequest FindName(const QString& lastText)
{
    return {QStringLiteral("Find Name"), QStringLiteral("Type a name or a part of it"), lastText};
}

Message NoMatch()
{
    return {QStringLiteral("No Match"), QStringLiteral("Sorry, couldn't find a match")};
}

Message NoNextMatch()
{
    return {QStringLiteral("No Next Match"), QStringLiteral("Sorry, couldn't find next match")};
}

Message NoPreviousMatch()
{
    return {QStringLiteral("No Previous Match"), QStringLiteral("Sorry, couldn't find previous match")};
}

QString NobodyBeginsSo()
{
    return QStringLiteral("No name begins like this. A title comes before the given name; * stands for any letters.");
}

QString ReadOnlyNote()
{
    return QStringLiteral("The phone number and the street address are \"read only\". "
                          "If you want to change them, use your genealogical program, generate "
                          "a GEDCOM file and re-import it to Stemwright.");
}

} // namespace stemwright::indexmessages
