// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

#include <chrono>

/// Shows how a step of the build proceeds, and ends it where the user wishes to stop. Reports come for every record,
/// but only some ten a second reach the display, with a caption that is made only then, so that reporting costs
/// nothing.
namespace stemwright
{

/// The user wished to stop; thrown where nothing is left half done but the site itself.
struct StopWished {
};

class StepProgress
{
public:
    /// `caption` begins every caption of the step; `total` is how many reports will come.
    StepProgress(Progress& progress, QString caption, std::size_t total)
        : m_progress(progress), m_caption(std::move(caption)), m_total(total)
    {
    }

    /// Reports the next record. `name` gives the text (UTF-8) that follows the caption. Throws StopWished.
    template <class Name>
    void report(Name name)
    {
        constexpr std::size_t hundred = 100;
        if (const auto now = std::chrono::steady_clock::now(); now >= m_next) {
            m_next = now + betweenReports;
            m_progress.setCaption(m_caption + QString::fromStdString(std::string(name())));
            m_progress.setPercent(static_cast<int>(m_done * hundred / m_total));
            if (m_progress.stopWished()) {
                throw StopWished{};
            }
        }
        ++m_done;
    }

private:
    static constexpr std::chrono::milliseconds betweenReports{100};

    Progress& m_progress;
    QString m_caption;
    std::size_t m_total;
    std::size_t m_done = 0;
    std::chrono::steady_clock::time_point m_next;
};

} // namespace stemwright
