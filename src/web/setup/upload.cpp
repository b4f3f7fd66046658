// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/upload.h"

#include "web/setup/setupmessages.h"

namespace stemwright
{

UploadSettings LoadUploadSettings(const Settings& settings)
{
    const auto value = [&settings](const QString& key) { return settings.value(setting::ftp, key); };
    return {value(setting::ftpServer), value(setting::ftpUsername), value(setting::ftpPassword),
            value(setting::ftpRootSubdir)};
}

QStringList SitesToUpload(Connection& connection)
{
    QStringList names;
    Statement statement = connection.prepareJet(QStringLiteral("SELECT SetupName FROM WebSiteInfo"));
    while (statement.step()) {
        names << statement.text(0);
    }
    return names;
}

QString UploadSubdir(QString setupName)
{
    return setupName.replace(u' ', u'_');
}

QString UploadPath(const QString& rootSubdir, const QString& subdir)
{
    return rootSubdir + u'/' + subdir;
}

bool CheckUploadSettings(const UploadSettings& settings, Talk& talk)
{
    const std::pair<const QString&, Message (*)()> needed[] = {{settings.server, setupmessages::NoServerName},
                                                               {settings.username, setupmessages::NoUsername},
                                                               {settings.password, setupmessages::NoPassword}};
    for (const auto& [value, message] : needed) {
        if (value.isEmpty()) {
            talk.tell(message());
            return false;
        }
    }
    return true;
}

} // namespace stemwright
