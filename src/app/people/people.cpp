// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/people/people.h"

#include "app/common/dialogtalk.h"
#include "app/common/messages.h"
#include "app/people/frmindex4addr.h"
#include "app/people/frmpeople.h"
#include "index/messages.h"
#include "store/engine/engineerror.h"

#include <QtWidgets/QApplication>

namespace stemwright
{

void People::editContacts(QWidget* parent)
{
    if (open(indexmessages::NoListOfNames())) {
        ShowListOfNames(*m_index, m_file.connection(), m_environment, parent);
    }
}

std::optional<ChosenPerson> People::pick()
{
    if (!open(indexmessages::NoIndexOfNames())) {
        return std::nullopt;
    }
    return ChoosePerson(*m_index, m_environment, FrontWindow());
}

bool People::open(const Message& absence)
{
    if (m_index) {
        return true;
    }
    bool opened = false;
    std::optional<QString> failure;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    try {
        opened = OpenNameIndex(m_index, m_file.connection());
    } catch (const std::exception& exception) {
        failure = ReasonText(exception);
    }
    QApplication::restoreOverrideCursor();
    if (!opened) {
        m_environment.talk.tell(failure ? appmessages::Failed(*failure) : absence);
    }
    return opened;
}

} // namespace stemwright
