// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/selecteditem.h"

#include <QtCore/QStringList>

namespace stemwright
{

namespace
{

/// A field as it can stand in a record: a TAB or a line break typed into it would end the field or the record.
QString Field(QString text)
{
    std::replace_if(
        text.begin(), text.end(), [](QChar character) { return character < u' '; }, u' ');
    return text;
}

} // namespace

SelectedItem SelectedItem::fromRecord(const QString& record)
{
    const QStringList fields = record.split(u'\t');
    const auto field = [&fields](qsizetype number) { return fields.value(number); };
    return {field(0), field(1), field(2), field(3) == QStringLiteral("Yes"),
            field(4), field(5), field(6), field(7) == QStringLiteral("P"),
            field(8)};
}

QString SelectedItem::toRecord() const
{
    const QString tree = inTree ? QStringLiteral("Yes") : QString();
    const QString privacy = isPrivate ? QStringLiteral("P") : QString();
    return QStringList{Field(name),        Field(source),    kind,    tree, Field(beforeItem),
                       Field(beforePlace), Field(afterItem), privacy, table}
        .join(u'\t');
}

} // namespace stemwright
