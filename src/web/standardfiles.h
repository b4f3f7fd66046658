// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/applicationfolder.h"

namespace stemwright
{

/// Reads every template, so that one that is missing is noticed before a site is begun. Throws Error for it.
void RequireTemplates(int pageStyle, const ApplicationFolder& application);

/// Fills the "graphics" folder of a site with the application's images and those of the page style, which win where
/// both have a file. Throws Error when the folder or a file cannot be written.
void CopyStandardFiles(int pageStyle, const ApplicationFolder& application, const QString& outputFolder);

} // namespace stemwright
