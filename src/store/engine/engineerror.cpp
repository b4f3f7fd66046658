// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/engineerror.h"

#include "base/error.h"

#include <SQLiteCpp/Exception.h>

#include <sqlite3.h>

namespace stemwright
{

QString ReasonText(const std::exception& exception)
{
    const auto* engine = dynamic_cast<const SQLite::Exception*>(&exception);
    // Copying gives the engine's finer codes, whose lowest byte is the plain one.
    constexpr int plainCode = 0xFF;
    switch (engine == nullptr ? SQLITE_OK : engine->getErrorCode() & plainCode) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return QStringLiteral("It is in use by this or another program.");
    case SQLITE_FULL:
        return QStringLiteral("The disk is full.");
    case SQLITE_READONLY:
        return QStringLiteral("It is write-protected.");
    case SQLITE_CANTOPEN:
        return QStringLiteral("The file or its folder cannot be written.");
    case SQLITE_IOERR:
        return QStringLiteral("The disk cannot be read or written. It may be full, damaged or gone.");
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        return QStringLiteral("The file is damaged. Please use its backup, the file with the extension \".ffb\".");
    default:
        return ErrorText(exception);
    }
}

} // namespace stemwright
