// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "gedcom/importer.h"

#include <QtCore/QBuffer>

namespace stemwright::test
{

/// The six tree tables as text: a line "Table" and below it a line a row, with each column that is not Null.
QString DumpTree(Connection& connection);

/// Progress that only keeps what the bar was set to.
class RecordedProgress : public Progress
{
public:
    void setCaption(const QString&) override {}

    void setPercent(int percent) override { percents.push_back(percent); }

    bool stopWished() override { return false; }

    std::vector<int> percents;
};

/// A tree built in memory from a GEDCOM text.
struct ImportedTree {
    explicit ImportedTree(QByteArray gedcom);

    Connection connection{QStringLiteral(":memory:"), OpenMode::CreateNew};
    RecordedProgress progress;
    ImportReport report;
    std::optional<Message> duplicate;

    QString dump() { return DumpTree(connection); }
};

} // namespace stemwright::test
