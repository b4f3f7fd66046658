// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/jet/jetvalues.h"

#include "store/jet/jetbytes.h"

#include <QtCore/QDateTime>
#include <QtCore/QtEndian>

#include <cmath>

namespace stemwright
{

namespace
{

// The years 100 to 9999.
constexpr double firstDay = -657'434;
constexpr double lastDay = 2'958'466;
constexpr double secondsOfDay = 86'400;

QString Plain(const QByteArray& bytes)
{
    QString text(bytes.size() / 2, Qt::Uninitialized);
    qFromLittleEndian<quint16>(bytes.constData(), text.size(), text.data());
    return text;
}

QString Compressed(QByteArrayView bytes)
{
    QString text;
    text.reserve(bytes.size());
    bool oneByte = true;
    for (qsizetype i = 0; i < bytes.size();) {
        if (bytes[i] == '\0') {
            oneByte = !oneByte;
            ++i;
        } else if (oneByte) {
            text += QLatin1Char(bytes[i]);
            ++i;
        } else if (i + 1 < bytes.size()) {
            text += QChar(qFromLittleEndian<quint16>(bytes.data() + i));
            i += 2;
        } else {
            FailDamaged(QStringLiteral("a text ends within a character"));
        }
    }
    return text;
}

} // namespace

QString DecodeJetText(const QByteArray& bytes)
{
    if (bytes.isEmpty()) {
        return QStringLiteral("");
    }
    if (bytes.startsWith("\xFF\xFE")) {
        const QString text = Compressed(QByteArrayView(bytes).sliced(2));
        return text.isNull() ? QStringLiteral("") : text;
    }
    if (bytes.size() % 2 != 0) {
        FailDamaged(QStringLiteral("a text ends within a character"));
    }
    return Plain(bytes);
}

QString DecodeJetDate(double days)
{
    if (!(days >= firstDay && days < lastDay)) {
        FailDamaged(QStringLiteral("a date lies outside of the calendar"));
    }
    const double whole = std::trunc(days);
    const auto seconds = std::llround(std::abs(days - whole) * secondsOfDay);
    const QDateTime epoch(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC);
    return epoch.addDays(static_cast<qint64>(whole)).addSecs(seconds).toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
}

} // namespace stemwright
