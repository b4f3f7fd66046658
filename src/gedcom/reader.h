// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace stemwright
{

/// Turns a cross-reference such as @I123@ into 123; -1 when no usable number is left.
int XrefToNumber(QStringView text);

} // namespace stemwright
