// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

/// The texts that exporting a table shows, word for word.
namespace stemwright::exportmessages
{

/// What the window explains.
QString Explanation(const QString& queryName);
/// The save dialog behind the window's browse button.
FileRequest ChooseOutputFile();

Message NoSuchFolder(const QString& folder);
Message CannotCreateFolder(const QString& folder);
Message FileExists(const QString& path);
Message TooManyColumns();
/// `line` is the row as it would stand in the file.
Message CannotWriteRow(const QString& line);
/// Any other reason why the file could not be written, as a whole sentence.
Message ExportFailed(const QString& reason);

} // namespace stemwright::exportmessages
