// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/familyfile.h"

#include "base/error.h"
#include "base/files.h"
#include "store/file/copyfamilyfile.h"
#include "store/file/createtables.h"
#include "store/file/messages.h"

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
        environment.talk.tell(storemessages::CannotCreate(target, ErrorText(exception)));
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
    try {
        file.adopt(std::make_unique<Connection>(target, OpenMode::ReadWrite));
        return true;
    } catch (const std::exception& exception) {
        environment.talk.tell(storemessages::CannotOpen(target, ErrorText(exception)));
        return false;
    }
}

} // namespace stemwright
