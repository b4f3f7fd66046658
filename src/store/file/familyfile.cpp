// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/familyfile.h"

#include "base/error.h"
#include "base/files.h"
#include "store/engine/engineerror.h"
#include "store/engine/leftjournal.h"
#include "store/file/copyfamilyfile.h"
#include "store/file/messages.h"
#include "store/file/recognise.h"
#include "store/file/upgradefamilyfile.h"
#include "store/tables/createtables.h"
#include "store/upgrade/upgradesteps.h"

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

/// Opens a file after the upgrade that it may need; none when the user declined the upgrade.
std::unique_ptr<Connection> OpenRecognised(const QString& path, const Environment& environment)
{
    // What is done in a backup would be gone with the next one.
    if (IsBackup(path)) {
        throw Error(QStringLiteral("It is a backup. Change its extension to \".kvf\" and open it then."));
    }
    const FileFormat format = RecogniseFormat(path);
    if (const QStringList aside = SetForeignJournalsAside(path); !aside.isEmpty()) {
        environment.talk.tell(storemessages::JournalsSetAside(path, aside));
    }
    if (format == FileFormat::Jet) {
        return UpgradeFamilyFile(*OpenJetFamilyFile(FileItself(path)), environment) ? OpenRecognised(path, environment)
                                                                                    : nullptr;
    }
    auto connection = std::make_unique<Connection>(path, OpenMode::ReadWrite);
    const QString version = RequireFamilyFile(*connection);
    if (!NeedsUpgrade(version)) {
        return connection;
    }
    return UpgradeFamilyFile(*OldEngineFamilyFile(FileItself(path), std::move(connection), version), environment)
               ? OpenRecognised(path, environment)
               : nullptr;
}

} // namespace

bool CreateFamilyFile(FamilyFile& file, const QString& path, Environment& environment)
{
    const QString target = QFileInfo(path).absoluteFilePath();
    try {
        if (IsBackup(target)) {
            throw Error(QStringLiteral("Files with the extension \".ffb\" are backups. Choose \".kvf\"."));
        }
        PrepareToReplace(target);
        UnfinishedFile unfinished(target);
        WriteNewFile(unfinished.path(), environment);
        PutFamilyFileInPlace(unfinished);
        ChooseInitialQuery(environment.settings);
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
        std::unique_ptr<Connection> connection = OpenRecognised(target, environment);
        if (connection == nullptr) {
            return false;
        }
        file.adopt(std::move(connection));
        return true;
    } catch (const std::exception& exception) {
        environment.talk.tell(storemessages::CannotOpen(target, ReasonText(exception)));
        return false;
    }
}

} // namespace stemwright
