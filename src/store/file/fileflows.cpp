// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/fileflows.h"

#include "store/engine/engineerror.h"
#include "store/file/copyfamilyfile.h"
#include "store/file/messages.h"

#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

bool MayReplace(const QString& path, Talk& talk)
{
    return !QFileInfo(path).isFile() || talk.ask(storemessages::ReplaceExisting(path)) == Button::Yes;
}

void Remember(const FamilyFile& file, Settings& settings)
{
    settings.setValue(setting::openCreateFamFile, setting::lastFamilyFile, file.path());
}

} // namespace

bool CreateNewFamilyFile(FamilyFile& file, const QString& path, Environment& environment)
{
    if (!MayReplace(QFileInfo(path).absoluteFilePath(), environment.talk) ||
        !CreateFamilyFile(file, path, environment)) {
        return false;
    }
    Remember(file, environment.settings);
    if (environment.settings.value(setting::openCreateFamFile, setting::showNewAlbumConfirm).isEmpty()) {
        environment.talk.tell(storemessages::CreationConfirmation());
    }
    return true;
}

bool OpenAlbum(FamilyFile& file, const QString& path, Environment& environment)
{
    if (!OpenFamilyFile(file, path, environment)) {
        return false;
    }
    Remember(file, environment.settings);
    return true;
}

bool SaveFamilyFileAs(FamilyFile& file, const QString& path, Environment& environment)
{
    const QString target = QFileInfo(path).absoluteFilePath();
    try {
        RequireOtherFile(file.connection(), target);
        if (!MayReplace(target, environment.talk)) {
            return false;
        }
        CopyFamilyFile(file.connection(), target);
        return true;
    } catch (const std::exception& exception) {
        environment.talk.tell(storemessages::CannotSaveAs(target, ReasonText(exception)));
        return false;
    }
}

} // namespace stemwright
