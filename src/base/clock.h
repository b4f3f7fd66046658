// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QDateTime>

namespace stemwright
{

/// Where the current time comes from, so that whatever depends on it (privacy, pages, default rows) can be repeated.
class Clock
{
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    /// The local date and time.
    virtual QDateTime now() const = 0;
};

/// The machine's clock.
class SystemClock : public Clock
{
public:
    QDateTime now() const override;
};

/// A clock that stands still.
class FixedClock : public Clock
{
public:
    explicit FixedClock(QDateTime moment);

    QDateTime now() const override { return m_moment; }

private:
    QDateTime m_moment;
};

} // namespace stemwright
