// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/jet/jetbytes.h"

#include "base/error.h"

#include <QtCore/QtEndian>

#include <bit>

namespace stemwright
{

void FailDamaged(const QString& what)
{
    throw Error(QStringLiteral("The database is damaged: %1. Open a backup of it, or have it repaired by Microsoft "
                               "Access (Compact and Repair) and try again.")
                    .arg(what));
}

void JetBytes::require(qint64 place, qint64 length) const
{
    if (place < 0 || length < 0 || place > m_bytes.size() || length > m_bytes.size() - place) {
        FailDamaged(QStringLiteral("something in it ends too early"));
    }
}

template <typename Number>
Number JetBytes::take(qint64 place) const
{
    require(place, sizeof(Number));
    return qFromLittleEndian<Number>(m_bytes.constData() + place);
}

quint8 JetBytes::number8(qint64 place) const
{
    return take<quint8>(place);
}

quint16 JetBytes::number16(qint64 place) const
{
    return take<quint16>(place);
}

quint32 JetBytes::number32(qint64 place) const
{
    return take<quint32>(place);
}

double JetBytes::real(qint64 place) const
{
    return std::bit_cast<double>(take<quint64>(place));
}

QByteArray JetBytes::part(qint64 place, qint64 length) const
{
    require(place, length);
    return m_bytes.mid(place, length);
}

} // namespace stemwright
