// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/applicationfolder.h"

#include <QtCore/QStringList>

/// The background styles that the application's folder holds, numbered from 0 as setups store them. Nothing here fails.
/// Stands on base.
namespace stemwright
{

/// The names of the styles: OldBook and Memories, and after them by name whatever other folders there are beside theirs
/// with the pages of a style.
QStringList BackgroundStyles(const ApplicationFolder& application);

/// The folder with a style's templates; that of the first style for a number without one.
QString StyleFolder(int pageStyle, const ApplicationFolder& application);

/// The first page of the sample site that shows a style; no value for a style without one.
std::optional<QString> StyleSample(int pageStyle, const ApplicationFolder& application);

} // namespace stemwright
