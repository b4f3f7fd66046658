// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace stemwright
{

/// Creates every missing folder along a path, upper folders first. False when one cannot be created.
bool CreateFolderPath(const QString& path);

/// The whole content of a file. Throws Error with the path and the system's reason.
QByteArray ReadWholeFile(const QString& path);

/// Creates or overwrites a file with one write. Throws Error with the path and the system's reason (full disk,
/// read-only folder); what was written so far is then removed.
void WriteWholeFile(const QString& path, const QByteArray& content);

/// Puts the finished file `from` in the place of `to` (same folder) in one step and makes the change durable: after a
/// power cut either the old or the new file stands there. Throws Error.
void ReplaceFile(const QString& from, const QString& to);

/// A name beside `path` for a file that is being made and will be renamed to `path` when it is whole.
QString UnfinishedName(const QString& path);

} // namespace stemwright
