// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/setupviewing.h"

#include "store/engine/engineerror.h"
#include "web/setup/setup.h"
#include "web/setup/setupmessages.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace stemwright
{

QStringList SetupsToView(Connection& connection, Talk& talk)
{
    QStringList names;
    try {
        Statement statement = connection.prepareJet(QStringLiteral("SELECT * FROM WebSiteInfo"));
        const int name = statement.column(u"SetupName");
        while (statement.step()) {
            names << statement.text(name);
        }
    } catch (const std::exception& exception) {
        talk.tell(setupmessages::SetupFailed(ReasonText(exception)));
        return {};
    }
    if (names.isEmpty()) {
        talk.tell(setupmessages::NoSetupToView());
    }
    return names;
}

std::optional<QString> FindPagesToView(Connection& connection, const QString& setupName, Talk& talk)
{
    try {
        const SetupRow found = RequireSetup(connection, setupName);
        Statement statement =
            connection.prepare(QStringLiteral("SELECT WebPageFolder FROM WebSiteInfo WHERE rowid = ?1"));
        const QString folder = statement.bind(1, found.row).step() ? statement.text(0) : QString();
        const QFileInfo firstPage(QDir(folder), QStringLiteral("index.html"));
        if (!folder.isEmpty() && firstPage.isFile()) {
            return firstPage.absoluteFilePath();
        }
        talk.tell(setupmessages::PagesNotYetCreated());
    } catch (const std::exception& exception) {
        talk.tell(setupmessages::SetupFailed(ReasonText(exception)));
    }
    return std::nullopt;
}

} // namespace stemwright
