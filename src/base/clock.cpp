// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/clock.h"

#include <utility>

namespace stemwright
{

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTime();
}

FixedClock::FixedClock(QDateTime moment) : m_moment(std::move(moment)) {}

} // namespace stemwright
