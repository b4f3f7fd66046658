// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/commandline.h"
#include "store/engine/connection.h"

#include <memory>
#include <string>

/// What the commands below "picture" and "mark" share.
namespace stemwright
{

/// The family file and the picture that a command is about.
struct PictureArguments {
    std::string file;
    int pictureId = 0;

    Connection& open(CommandLine& line) const { return line.open(file).connection(); }
};

/// Adds FILE and PICID to a command.
std::shared_ptr<PictureArguments> AddPictureArguments(CLI::App& command);

} // namespace stemwright
