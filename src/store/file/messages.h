// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

/// The texts that creating, opening and copying family files shows, word for word.
namespace stemwright::storemessages
{

Message CouldNotReopen();
Message CannotCreate(const QString& path, const QString& reason);
Message CannotOpen(const QString& path, const QString& reason);

} // namespace stemwright::storemessages
