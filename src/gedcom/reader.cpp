// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/reader.h"

namespace stemwright
{

int XrefToNumber(QStringView)
{
    return -1;
}

} // namespace stemwright
