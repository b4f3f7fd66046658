// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

/// Shows how a step of the build proceeds. Reports come for every record, but only every few hundredth reaches the
/// display, with a caption that is made only then, so that reporting costs nothing. Nothing here fails.
namespace stemwright
{

class StepProgress
{
public:
    /// `caption` begins every caption of the step; `total` is how many reports will come.
    StepProgress(Progress& progress, QString caption, std::size_t total)
        : m_progress(progress), m_caption(std::move(caption)), m_total(total)
    {
    }

    /// Reports the next record. `name` gives the text (UTF-8) that follows the caption.
    template <class Name>
    void report(Name name)
    {
        constexpr std::size_t interval = 500;
        constexpr std::size_t hundred = 100;
        if (m_done % interval == 0) {
            m_progress.setCaption(m_caption + QString::fromStdString(std::string(name())));
            m_progress.setPercent(static_cast<int>(m_done * hundred / m_total));
        }
        ++m_done;
    }

private:
    Progress& m_progress;
    QString m_caption;
    std::size_t m_total;
    std::size_t m_done = 0;
};

} // namespace stemwright
