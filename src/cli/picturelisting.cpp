// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/picturelisting.h"

#include "cli/listing.h"

namespace stemwright
{

namespace
{

QJsonValue ValueOf(const PictureTable& table, std::size_t row, std::size_t column)
{
    const QString text = table.value(row, column);
    switch (table.columns()[column].value) {
    case ListValue::Number:
        return text.toInt();
    case ListValue::YesNo:
        return text == u"True";
    case ListValue::PictureDate:
        return text.trimmed();
    default:
        return text;
    }
}

} // namespace

void PrintPictures(const PictureTable& table, CommandLine& line)
{
    QStringList captions;
    for (const ListColumn& column : table.columns()) {
        captions << column.caption;
    }
    Listing listing(captions);
    for (std::size_t row = 0; row < table.rowCount(); ++row) {
        std::vector<QJsonValue> values;
        for (std::size_t column = 0; column < table.columns().size(); ++column) {
            values.push_back(ValueOf(table, row, column));
        }
        listing.row(std::move(values));
    }
    listing.print(line);
}

} // namespace stemwright
