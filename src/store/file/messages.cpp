// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/messages.h"

#include <QtCore/QDir>

namespace stemwright::storemessages
{

Message CouldNotReopen()
{
    return {{}, QStringLiteral("Internal error: Could not reopen new database"), Icon::Critical};
}

Message CannotCreate(const QString& path, const QString& reason)
{
    return {QStringLiteral("Cannot create family file"),
            QStringLiteral("The family file %1 cannot be created.\n\n%2").arg(QDir::toNativeSeparators(path), reason),
            Icon::Critical};
}

Message CannotOpen(const QString& path, const QString& reason)
{
    return {QStringLiteral("Cannot open family file"),
            QStringLiteral("The family file %1 cannot be opened.\n\n%2").arg(QDir::toNativeSeparators(path), reason),
            Icon::Critical};
}

} // namespace stemwright::storemessages
