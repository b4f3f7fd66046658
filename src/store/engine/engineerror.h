// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <exception>

namespace stemwright
{

/// The text to show for any exception: for those of the engine that a user can do something about (a full disk, a file
/// in use, a damaged file) what they mean, otherwise ErrorText().
QString ReasonText(const std::exception& exception);

} // namespace stemwright
