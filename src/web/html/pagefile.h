// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/files.h"

#include <string>
#include <string_view>

/// A page while it is being written. Its bytes gather in a buffer and reach the file in one call when the page is
/// finished; only pages that grow very large are written in pieces. No file is kept open, so any number of pages may be
/// under way at once. Throws Error when the file cannot be written. Stands on base.
namespace stemwright
{

class PageFile
{
public:
    /// Begins a page; the buffer of the one before is used again.
    /// `folder` must outlive it.
    void begin(const OpenFolder& folder, std::string name);

    /// The page's bytes, to be appended to.
    std::string& bytes() { return m_bytes; }

    /// Appends a line with its line break.
    void line(std::string_view bytes) { m_bytes.append(bytes).append(lineBreak); }

    /// Says that the page is at a good point to put aside what it holds, if that is much.
    void checkpoint()
    {
        if (m_bytes.size() >= piece) {
            flush();
        }
    }

    /// Ends the page: what is left is written.
    void end();

    static constexpr std::string_view lineBreak = "\r\n";

private:
    static constexpr std::size_t piece = std::size_t{1} << 20;

    void flush();

    const OpenFolder* m_folder = nullptr;
    std::string m_name;
    std::string m_bytes;
    bool m_started = false;
};

} // namespace stemwright
