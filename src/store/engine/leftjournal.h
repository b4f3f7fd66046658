// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// What a program that was killed, or whose computer lost its power, left beside a family file: the engine's rollback
/// journal, which holds the pages of the file from before the change that broke off. The engine plays it into whatever
/// file stands in that place when it is opened next. Where another file has come there meanwhile - a backup that was
/// put back, a file of an earlier release - that would destroy it, so journals are looked at first. Their format, and
/// that of the file's head, are described in the engine's "Database File Format" (sqlite.org/fileformat2.html, sections
/// 1.3 and 3). Failures: Error, SQLite::Exception; everything is as it was then. Stands on base.
namespace stemwright
{

/// The files that the engine may keep beside the one at `path`: its journal, its write-ahead log and that one's index.
QStringList CompanionsOf(const QString& path);

/// Lets a new database file count its changes from a number that comes of its content. All files that are made in the
/// same way would count from the same number otherwise, and the journal of one would seem to be that of another. Must
/// not be called while the file is open. A file of another kind stays as it is.
void CountChangesFromContent(const QString& path);

/// Makes sure that the path of a file is not too long for the engine, nor for the names of what it keeps beside the
/// file; otherwise throws Error.
void RequireUsablePath(const QString& path);

/// Gives a journal and a write-ahead log beside the file at `path` that were not written for it other names, under
/// which the engine does not find them; returns these, as full paths. A journal that the engine has done with, but
/// would leave until the next change, is removed. Nothing is done while a program has the file open. Throws Error when
/// a journal cannot be told to be the file's own or not, because the file is damaged either way.
QStringList SetForeignJournalsAside(const QString& path);

} // namespace stemwright
