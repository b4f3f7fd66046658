// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"

#include <QtCore/QStringList>

/// Looks for everything that can be wrong within a family file. Stands on the schema; fails as the engine fails.
namespace stemwright
{

/// What a check found, each a sentence.
struct FamilyFileReport {
    /// What no release writes: damage, a table that is built differently, a tree of a setup that is gone.
    QStringList faults;
    /// What comes from outside and is lived with: GEDCOM files name families and individuals that they do not hold, and
    /// a tree that is imported anew may leave a mark, a contact or a tree head without its individual. Earlier releases
    /// left the marks of a picture that was deleted; its number is not given again.
    QStringList notes;
};

FamilyFileReport CheckFamilyFile(Connection& connection);

} // namespace stemwright
