// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "queries/picturetable.h"

class QWidget;

namespace stemwright
{

/// Shows the window that exports a list of pictures, until the file is written or it was cancelled. `familyFile` is
/// never written over.
void ShowExportWindow(const PictureTable& table, const QString& familyFile, Environment& environment, QWidget* parent);

} // namespace stemwright
