// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

namespace stemwright
{

/// When the progress bar of an import moves: at the end of a record once more than 100 lines were read since it last
/// could have, to the part of the file that was read, known in whole blocks of 128 bytes.
class ImportProgress
{
public:
    /// `fileLength` is in bytes.
    ImportProgress(Progress& progress, qint64 fileLength) : m_progress(progress), m_fileLength(fileLength) {}

    void countLine() { ++m_count; }

    /// `position` is how far the file was read, in bytes.
    void recordEnded(qint64 position)
    {
        if (m_count <= linesPerMove) {
            return;
        }
        m_count -= linesPerMove;
        const qint64 read = position / blockSize * blockSize;
        m_progress.setPercent(static_cast<int>(std::min<qint64>(100, read * 100 / std::max<qint64>(1, m_fileLength))));
    }

private:
    static constexpr int linesPerMove = 100;
    static constexpr qint64 blockSize = 128;

    Progress& m_progress;
    qint64 m_fileLength;
    int m_count = 0;
};

} // namespace stemwright
