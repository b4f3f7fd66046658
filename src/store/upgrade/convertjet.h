// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "store/engine/connection.h"
#include "store/jet/jetfile.h"

#include <QtCore/QStringList>

/// Taking the family file of an earlier release over from its database, as it is: its own columns in their own order,
/// which the upgrade steps then change. Fails with Error for a file that is damaged or lacks what its version must
/// have, and as the engine fails. Stands on the Jet reader and the upgrade steps.
namespace stemwright
{

/// The version that the file states. Throws Error for a database that is no family file.
QString JetFileVersion(const JetFile& source);

/// Makes sure, without looking at any value, that all tables which a file of this version has are there with all of
/// their rows.
void RequireWholeJetFile(const JetFile& source, QStringView version);

/// Writes all tables of family files with their rows into `work`, a new file, and looks whether every row and every
/// picture arrived. Returns what stays behind because no family file has it, each as a phrase.
QStringList ConvertJetFile(const JetFile& source, Connection& work, Talk& talk);

} // namespace stemwright
