// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/familyfile.h"

#include "base/files.h"
#include "store/engine/engineerror.h"
#include "store/file/copyfamilyfile.h"
#include "store/file/createtables.h"
#include "store/file/messages.h"
#include "store/file/recognise.h"

#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

void WriteNewFile(const QString& path, Environment& environment)
{
    Connection connection(path, OpenMode::CreateNew);
    Transaction transaction(connection);
    CreateFamilyFileTables(connection, environment);
    transaction.commit();
}

std::unique_ptr<Connection> OpenRecognised(const QString& path)
{
    RequireEngineFile(path);
    auto connection = std::make_unique<Connection>(path, OpenMode::ReadWrite);
    RequireFamilyFile(*connection);
    return connection;
}

} // namespace

bool CreateFamilyFile(FamilyFile& file, const QString& path, Environment& environment)
{
    const QString target = QFileInfo(path).absoluteFilePath();
    try {
        PrepareToReplace(target);
        UnfinishedFile unfinished(target);
        WriteNewFile(unfinished.path(), environment);
        unfinished.putInPlace();
    } catch (const std::exception& exception) {
        environment.talk.tell(storemessages::CannotCreate(target, ReasonText(exception)));
        return false;
    }
    if (!OpenFamilyFile(file, target, environment)) {
        environment.talk.tell(storemessages::CouldNotReopen());
        return false;
    }
    return true;
}

bool OpenFamilyFile(FamilyFile& file, const QString& path, Environment& environment)
{
    const QString target = QFileInfo(path).absoluteFilePath();
    if (file.isOpen() && IsSameFile(file.path(), target)) {
        return true;
    }
    try {
        file.adopt(OpenRecognised(target));
        return true;
    } catch (const std::exception& exception) {
        environment.talk.tell(storemessages::CannotOpen(target, ReasonText(exception)));
        return false;
    }
}

} // namespace stemwright
