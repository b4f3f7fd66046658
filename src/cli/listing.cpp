// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/listing.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <utility>

namespace stemwright
{

namespace
{

QString Cell(const QJsonValue& value)
{
    if (value.isBool()) {
        return value.toBool() ? QStringLiteral("yes") : QString();
    }
    if (value.isDouble()) {
        return QString::number(value.toInteger());
    }
    return OnOneLine(value.toString());
}

} // namespace

QString OnOneLine(QString text)
{
    std::replace_if(
        text.begin(), text.end(),
        [](QChar character) { return character < u' ' || (character >= u'\x7F' && character < u'\xA0'); }, u' ');
    return text;
}

Listing::Listing(QStringList captions) : m_captions(std::move(captions)) {}

Listing& Listing::row(std::vector<QJsonValue> values)
{
    m_rows.push_back(std::move(values));
    return *this;
}

QByteArray Listing::json() const
{
    QJsonArray rows;
    for (const std::vector<QJsonValue>& values : m_rows) {
        QJsonObject object;
        for (std::size_t column = 0; column < values.size(); ++column) {
            object.insert(m_captions[static_cast<qsizetype>(column)], values[column]);
        }
        rows.append(object);
    }
    return QJsonDocument(rows).toJson();
}

QString Listing::text() const
{
    std::vector<QStringList> lines = {m_captions};
    for (const std::vector<QJsonValue>& values : m_rows) {
        QStringList& cells = lines.emplace_back();
        std::transform(values.begin(), values.end(), std::back_inserter(cells), Cell);
    }
    QString table;
    std::vector<qsizetype> widths(static_cast<std::size_t>(m_captions.size()));
    for (const QStringList& cells : lines) {
        for (std::size_t column = 0; column < widths.size(); ++column) {
            widths[column] = std::max(widths[column], cells[static_cast<qsizetype>(column)].size());
        }
    }
    for (const QStringList& cells : lines) {
        QString printed;
        for (std::size_t column = 0; column < widths.size(); ++column) {
            printed += cells[static_cast<qsizetype>(column)].leftJustified(widths[column] + 2);
        }
        while (printed.endsWith(u' ')) {
            printed.chop(1);
        }
        table += printed + u'\n';
    }
    return table;
}

void Listing::print(CommandLine& line) const
{
    if (line.options().format == OutputFormat::Json) {
        line.out() << json();
    } else {
        line.out() << text();
    }
    line.out().flush();
}

} // namespace stemwright
