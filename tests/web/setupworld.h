// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/testworld.h"

namespace stemwright::test
{

/// A test world with a new, open family file and an application folder of its own: an emblem and three tree icons.
class SetupWorld : public TestWorld
{
public:
    SetupWorld();

    /// Two individuals, numbered 1 and 2.
    void addIndividuals();
};

} // namespace stemwright::test
