// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/html/pagefile.h"

namespace stemwright
{

void PageFile::begin(const OpenFolder& folder, std::string name)
{
    m_folder = &folder;
    m_name = std::move(name);
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
        m_folder->appendToFile(m_name, content);
    } else {
        m_folder->writeWholeFile(m_name, content);
    }
    m_started = true;
    m_bytes.clear();
}

} // namespace stemwright
