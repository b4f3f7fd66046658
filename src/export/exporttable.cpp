// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "export/exporttable.h"

#include "base/error.h"
#include "export/messages.h"

#include <QtCore/QStringList>

namespace stemwright
{

ExportOutcome ExportTable(const PictureTable& table, std::size_t columnCount, const QString& delimiter,
                          EncodedText& file, Talk& talk)
{
    const QString separator = delimiter == tabDelimiter ? QStringLiteral("\t") : delimiter;
    PictureTable rows = table;
    if (columnCount > rows.columns().size()) {
        talk.tell(exportmessages::TooManyColumns());
        return ExportOutcome::Refused;
    }
    rows.unsort();
    QStringList values;
    for (std::size_t column = 0; column < columnCount; ++column) {
        values << rows.columns()[column].column;
    }
    if (!file.writeLine(values.join(separator))) {
        throw Error(QStringLiteral("The delimiter \"%1\" cannot be written in this encoding.").arg(delimiter));
    }
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        values.clear();
        for (std::size_t column = 0; column < columnCount; ++column) {
            values << rows.value(row, column);
        }
        const QString line = values.join(separator);
        if (!file.writeLine(line) && talk.ask(exportmessages::CannotWriteRow(line)) != Button::Ok) {
            return ExportOutcome::Aborted;
        }
    }
    return ExportOutcome::Complete;
}

} // namespace stemwright
