// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace stemwright::test
{

/// A family file's whole content in a few words: its number of rows and a checksum over all values, tables and indexes.
/// Left out are the tables that a publication writes for itself alone, and the moment of the last import. Two files
/// with the same fingerprint hold the same tree, with the same note of where it came from. Throws the engine's
/// exception when the file cannot be read to its end.
QString Fingerprint(const QString& path);

} // namespace stemwright::test
