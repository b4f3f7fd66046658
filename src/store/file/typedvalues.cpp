// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/typedvalues.h"

#include "base/error.h"
#include "store/engine/schema.h"

#include <QtCore/QStringList>

namespace stemwright
{

int ParseTypedNumber(const QString& column, const QString& typed, int lowest, int highest)
{
    bool isNumber = false;
    const int number = typed.trimmed().toInt(&isNumber);
    if (!isNumber || number < lowest || number > highest) {
        throw Error(QStringLiteral("%1 must be a whole number from %2 to %3, not \"%4\".")
                        .arg(column)
                        .arg(lowest)
                        .arg(highest)
                        .arg(typed));
    }
    return number;
}

bool ParseTypedYesNo(const QString& column, const QString& typed)
{
    const QString word = typed.trimmed().toLower();
    const QStringList yes = {QStringLiteral("1"), QStringLiteral("-1"), QStringLiteral("yes"), QStringLiteral("true")};
    const QStringList no = {QStringLiteral("0"), QStringLiteral("no"), QStringLiteral("false")};
    if (!yes.contains(word) && !no.contains(word)) {
        throw Error(QStringLiteral("%1 must be yes or no (1 or 0), not \"%2\".").arg(column, typed));
    }
    return yes.contains(word);
}

QString ParseTypedText(const QString& column, const QString& typed)
{
    if (const qsizetype characters = typed.toUcs4().size(); characters > maxTextLength) {
        throw Error(QStringLiteral("%1 can hold %2 characters, but the text has %3.")
                        .arg(column)
                        .arg(maxTextLength)
                        .arg(characters));
    }
    return typed;
}

} // namespace stemwright
