// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/jet/jetpages.h"

/// Long texts and long binary values, which a row holds itself or keeps in records of other pages. Fails with Error.
/// Stands on the pages.
namespace stemwright
{

/// The whole value. `field` is what stands in the row.
QByteArray ReadLongValue(const JetPages& pages, const JetBytes& field);

} // namespace stemwright
