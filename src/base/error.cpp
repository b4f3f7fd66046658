// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/error.h"

#include <utility>

namespace stemwright
{

Error::Error(QString text) : m_text(std::move(text)), m_utf8(m_text.toUtf8()) {}

QString ErrorText(const std::exception& exception)
{
    if (const auto* error = dynamic_cast<const Error*>(&exception)) {
        return error->text();
    }
    return QString::fromUtf8(exception.what());
}

} // namespace stemwright
