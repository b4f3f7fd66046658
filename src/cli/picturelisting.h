// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/commandline.h"
#include "queries/picturetable.h"

namespace stemwright
{

/// Prints the list of pictures that a query selects, the shown columns with their captions.
void PrintPictures(const PictureTable& table, CommandLine& line);

} // namespace stemwright
