// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/jet/jetlongvalue.h"

namespace stemwright
{

namespace
{

constexpr quint32 lengthMask = 0x3FFFFFFF;
constexpr quint32 inRowFlag = 0x80000000;
constexpr quint32 inOneRecordFlag = 0x40000000;
constexpr int firstPlacePlace = 4;
constexpr int inRowPlace = 12;

[[noreturn]] void FailIncomplete()
{
    FailDamaged(QStringLiteral("a long text or picture in it is not complete"));
}

JetBytes RecordAt(const JetPages& pages, quint32 stored)
{
    const JetRecordPlace place = JetRecordPlace::of(stored);
    return ReadRecord(pages.page(place.page, JetPageKind::Data), place.slot).bytes;
}

/// A chain of records, each of which begins with the place of the next one.
QByteArray Joined(const JetPages& pages, quint32 first, qint64 length)
{
    QByteArray value;
    for (quint32 next = first; next != 0;) {
        const JetBytes record = RecordAt(pages, next);
        next = record.number32(0);
        const QByteArray piece = record.part(4, record.size() - 4);
        // A chain that leads back to itself ends here: it grows beyond its length, or does not grow.
        if (piece.isEmpty() || value.size() + piece.size() > length) {
            FailIncomplete();
        }
        value += piece;
    }
    return value;
}

} // namespace

QByteArray ReadLongValue(const JetPages& pages, const JetBytes& field)
{
    const quint32 head = field.number32(0);
    const qint64 length = head & lengthMask;
    if ((head & inRowFlag) != 0) {
        return field.part(inRowPlace, length);
    }
    if (length > qint64(pages.count()) * jetPageSize) {
        FailIncomplete();
    }
    const quint32 place = field.number32(firstPlacePlace);
    const QByteArray value =
        (head & inOneRecordFlag) != 0 ? RecordAt(pages, place).part(0, length) : Joined(pages, place, length);
    if (value.size() != length) {
        FailIncomplete();
    }
    return value;
}

} // namespace stemwright
