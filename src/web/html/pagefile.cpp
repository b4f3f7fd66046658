// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/html/pagefile.h"

#include "base/files.h"

namespace stemwright
{

void PageFile::begin(const QString& path)
{
    m_path = path;
    m_bytes.clear();
    m_started = false;
}

void PageFile::end()
{
    if (!m_started || !m_bytes.empty()) {
        flush();
    }
}

void PageFile::flush()
{
    const QByteArray content = QByteArray::fromRawData(m_bytes.data(), static_cast<qsizetype>(m_bytes.size()));
    if (m_started) {
        AppendToFile(m_path, content);
    } else {
        WriteWholeFile(m_path, content);
    }
    m_started = true;
    m_bytes.clear();
}

} // namespace stemwright
