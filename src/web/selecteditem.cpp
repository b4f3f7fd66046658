// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/selecteditem.h"

#include <QtCore/QStringList>

namespace stemwright
{

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
    return QStringList{name,       source,      kind,      inTree ? QStringLiteral("Yes") : QString(),
                       beforeItem, beforePlace, afterItem, isPrivate ? QStringLiteral("P") : QString(),
                       table}
        .join(u'\t');
}

} // namespace stemwright
