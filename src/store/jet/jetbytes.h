// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Bytes of a Jet database, of which nothing is believed: every look at a place that is not there ends in an Error.
/// Numbers are stored with their lowest byte first. Stands on base.
namespace stemwright
{

/// Throws the Error that says that a Jet database is damaged, and how it can be helped. `what` names what is wrong, as
/// a part of a sentence.
[[noreturn]] void FailDamaged(const QString& what);

class JetBytes
{
public:
    JetBytes() = default;

    explicit JetBytes(QByteArray bytes) : m_bytes(std::move(bytes)) {}

    qint64 size() const { return m_bytes.size(); }

    const QByteArray& all() const { return m_bytes; }

    /// The unsigned number of 8, 16 or 32 bits at this place.
    quint8 number8(qint64 place) const;
    quint16 number16(qint64 place) const;
    quint32 number32(qint64 place) const;
    /// The floating-point number of 64 bits at this place.
    double real(qint64 place) const;
    /// A copy of `length` bytes.
    QByteArray part(qint64 place, qint64 length) const;

private:
    void require(qint64 place, qint64 length) const;

    template <typename Number>
    Number take(qint64 place) const;

    QByteArray m_bytes;
};

} // namespace stemwright
