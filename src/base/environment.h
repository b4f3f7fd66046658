// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/applicationfolder.h"
#include "base/clock.h"
#include "base/settings.h"
#include "base/talk.h"

namespace stemwright
{

/// What a procedure needs of the world around it. The program's main function makes one and hands it down; tests make
/// their own. It holds references only, so it is cheap to pass and must not outlive what it refers to.
struct Environment {
    Talk& talk;
    Settings& settings;
    const Clock& clock;
    const ApplicationFolder& application;
};

} // namespace stemwright
