// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/importcommand.h"

#include "gedcom/importer.h"
#include "gedcom/messages.h"
#include "index/fullname.h"
#include "store/engine/schema.h"
#include "store/file/copyfamilyfile.h"

#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

/// The path of the GEDCOM file last imported; empty when there was none.
QString StoredGedcomPath(Connection& connection)
{
    Statement statement = connection.prepare(QStringLiteral("SELECT GEDCOMFile FROM GenInfo"));
    return statement.step() ? statement.text(0) : QString();
}

/// Backs the family file up and settles a conflict of GEDCOM files, if it is known where the tree came from. False when
/// the user does not want to go on.
bool PrepareToReplaceTree(Connection& connection, const QString& path, const QString& stored, Talk& talk)
{
    talk.tell(gedcommessages::CreatingBackup());
    BackupFamilyFile(connection, talk);
    return stored.isEmpty() || stored.compare(path, Qt::CaseInsensitive) == 0 ||
           talk.ask(gedcommessages::FileConflict(path, stored)) == Button::Yes;
}

void NoteImport(Connection& connection, const QString& path, const Clock& clock)
{
    Statement statement = connection.prepare(QStringLiteral("UPDATE GenInfo SET GEDCOMFile = ?1, ImportDate = ?2"));
    statement.bind(1, path).bind(2, clock.now().toString(Qt::ISODate)).run();
}

} // namespace

std::optional<QString> ChooseGedcomFile(Environment& environment)
{
    const QString folder = environment.settings.value(setting::gedcom, setting::gedcomPath);
    return environment.talk.chooseFile(gedcommessages::SelectGedcomFile(folder));
}

bool ImportGedcomFile(FamilyFile& file, const QString& path, Environment& environment, ImportReport& report)
{
    report = {};
    Connection& connection = file.connection();
    const QFileInfo info(QFileInfo(path).absoluteFilePath());
    // A path longer than its column is compared by what the column holds.
    const QString noted = CutToColumn(info.filePath());
    try {
        QFile input(info.filePath());
        OpenGedcomFile(input);
        input.close();
        const QString stored = StoredGedcomPath(connection);
        const bool holdsTree = !stored.isEmpty() || HasIndividuals(connection);
        if (holdsTree && !PrepareToReplaceTree(connection, noted, stored, environment.talk)) {
            return false;
        }
        environment.settings.setValue(setting::gedcom, setting::gedcomPath, info.path());
        Transaction transaction(connection);
        NoteImport(connection, noted, environment.clock);
        const bool ranToItsEnd = ImportGedcom(connection, info.filePath(), environment, report);
        if (report.outcome != ImportOutcome::Failed) {
            transaction.commit();
        }
        return ranToItsEnd;
    } catch (const std::exception& exception) {
        report.outcome = ImportOutcome::Failed;
        environment.talk.tell(gedcommessages::ImportFailed(connection.path(), exception));
        return false;
    }
}

} // namespace stemwright
