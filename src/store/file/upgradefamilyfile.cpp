// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/upgradefamilyfile.h"

#include "base/files.h"
#include "store/file/copyfamilyfile.h"
#include "store/file/recognise.h"
#include "store/tables/createtables.h"
#include "store/upgrade/currentfile.h"
#include "store/upgrade/messages.h"
#include "store/upgrade/tablechanges.h"
#include "store/upgrade/upgradesteps.h"

namespace stemwright
{

namespace
{

class Upgrade
{
public:
    Upgrade(const OldFamilyFile& old, const Environment& environment) : m_old(old), m_environment(environment) {}

    bool run()
    {
        if (IsOlderVersion(m_old.version(), firstVersionWithoutQuestion)) {
            const Button answer = m_environment.talk.ask(upgrademessages::BeforeUpgrade(m_old.path()));
            if (answer == Button::Cancel) {
                return false;
            }
            m_maySkipBackup = answer == Button::No;
            if (answer == Button::Yes) {
                backUp();
            }
        }
        try {
            replace();
        } catch (const UpgradeStopped&) {
            return false;
        }
        report();
        return true;
    }

private:
    void backUp()
    {
        const QString target = BackupPath(m_old.path());
        m_old.copyTo(target);
        m_backup = target;
        m_environment.talk.tell(upgrademessages::BackedUp(target));
    }

    void replace()
    {
        UnfinishedFile work(m_old.path() + QStringLiteral(".old"), m_old.path());
        UnfinishedFile current(m_old.path());
        upgrade(work.path());
        WriteCurrentFile(current.path(), work.path(), m_environment.talk);
        requireOpenable(current.path());
        // What cannot be read back by this release is kept, although nobody was asked.
        const bool replacesFormat = m_old.format() == FileFormat::Jet && !m_maySkipBackup;
        if (m_backup.isEmpty() && (replacesFormat || !m_leftBehind.isEmpty())) {
            backUp();
        }
        m_old.requireUnchanged();
        PutFamilyFileInPlace(current);
        if (m_gainedQueries) {
            ChooseInitialQuery(m_environment.settings);
        }
    }

    void upgrade(const QString& workPath)
    {
        m_leftBehind = m_old.takeOver(workPath, m_environment.talk);
        Connection work(workPath, OpenMode::ReadWrite);
        WriteUnguarded(work);
        UpgradeRun run{work, m_environment, m_old.path(), [this](const QString& target) { m_old.copyTo(target); }, {}};
        RunUpgradeSteps(run, m_old.version());
        m_missingPictures = run.missingPictures;
        m_gainedQueries = run.gainedQueries;
        m_leftBehind += PrepareForCurrentFile(work);
    }

    static void requireOpenable(const QString& path)
    {
        Connection connection(path, OpenMode::ReadWrite);
        RequireFamilyFile(connection);
    }

    void report() const
    {
        if (!m_missingPictures.isEmpty()) {
            m_environment.talk.tell(upgrademessages::PicturesNotFound(m_missingPictures));
        }
        if (!m_leftBehind.isEmpty()) {
            m_environment.talk.tell(upgrademessages::LeftInBackup(m_leftBehind, m_backup));
        }
    }

    const OldFamilyFile& m_old;
    const Environment& m_environment;
    bool m_maySkipBackup = false;
    /// Where the file was backed up; empty before it was.
    QString m_backup;
    QStringList m_leftBehind;
    QStringList m_missingPictures;
    bool m_gainedQueries = false;
};

} // namespace

bool UpgradeFamilyFile(const OldFamilyFile& old, const Environment& environment)
{
    return Upgrade(old, environment).run();
}

} // namespace stemwright
