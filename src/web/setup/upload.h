// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/settings.h"
#include "base/talk.h"
#include "store/engine/connection.h"

#include <QtCore/QStringList>

/// What uploading a site to a web server would need to know. In this release it is only collected and checked: nothing
/// is stored, and nothing is sent. Fails as the engine fails. Stands on the settings and the connection.
namespace stemwright
{

struct UploadSettings {
    QString server;
    QString username;
    QString password;
    /// The directory on the server below which all sites stand; may be empty.
    QString rootSubdir;
};

/// The user's settings; missing ones are empty.
UploadSettings LoadUploadSettings(const Settings& settings);

/// The names of the setups whose sites could be uploaded.
QStringList SitesToUpload(Connection& connection);

/// The directory that is proposed for the site of a setup: its name without blanks.
QString UploadSubdir(QString setupName);

/// Where on the server a site stands.
QString UploadPath(const QString& rootSubdir, const QString& subdir);

/// False, after the user was told of the first one, when a setting is missing that an upload could not do without.
bool CheckUploadSettings(const UploadSettings& settings, Talk& talk);

} // namespace stemwright
