// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "gedcom/importer.h"
#include "support/testworld.h"

#include <QtCore/QBuffer>

namespace stemwright::test
{

/// The six tree tables as text: a line "Table" and below it a line a row, with each column that is not Null.
QString DumpTree(Connection& connection);

/// A tree built in memory from a GEDCOM text.
struct ImportedTree {
    explicit ImportedTree(QByteArray gedcom);

    Connection connection{":memory:", OpenMode::CreateNew};
    ScriptedTalk talk;
    ImportReport report;
    std::optional<Message> duplicate;

    QString dump() { return DumpTree(connection); }
};

} // namespace stemwright::test
