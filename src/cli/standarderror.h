// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace stemwright
{

/// Writes to standard error in the terminal's encoding, at once. A failure is not noticed.
void PrintError(const QString& text);

} // namespace stemwright
