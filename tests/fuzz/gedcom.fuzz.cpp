// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "gedcom/importer.h"

#include <QtCore/QBuffer>

#include <cstdlib>

/// Any bytes as a GEDCOM file, imported into a database in memory. An Error is an answer; whatever else the input
/// brings about, and a row count that differs from the report's, is a fault.
namespace stemwright
{

namespace
{

class SilentProgress : public Progress
{
public:
    void setCaption(const QString&) override {}

    void setPercent(int percent) override
    {
        if (percent < 0 || percent > 100) {
            std::abort();
        }
    }

    bool stopWished() override { return false; }
};

void ImportBytes(QByteArray bytes)
{
    static Connection connection(QStringLiteral(":memory:"), OpenMode::CreateNew);
    QBuffer input(&bytes);
    input.open(QIODevice::ReadOnly);
    SilentProgress progress;
    ImportReport report;
    const Transaction undoneAtTheEnd(connection);
    try {
        RebuildTree(input, connection, progress, report);
    } catch (const Error&) {
        return;
    }
    if (connection.countRows(QStringLiteral("Indi")) != report.individuals ||
        connection.countRows(QStringLiteral("Fam")) != report.families ||
        connection.countRows(QStringLiteral("Fam2Child")) != report.childLinks ||
        connection.countRows(QStringLiteral("Spouse2Fam")) != report.spouseLinks) {
        std::abort();
    }
    ReportText(report);
    ReportJson(report);
}

} // namespace

} // namespace stemwright

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    stemwright::ImportBytes(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    return 0;
}
