// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/upgrade/upgradesteps.h"

#include "base/version.h"
#include "store/tables/createtables.h"
#include "store/upgrade/tablechanges.h"

#include <array>

namespace stemwright
{

namespace
{

struct UpgradeStep {
    /// The first version whose files do not need the step.
    const char* doneIn;
    void (*run)(UpgradeRun&);
    /// The tables that it creates.
    std::array<const char*, 2> creates = {};
};

constexpr std::array<UpgradeStep, 8> steps = {{{"2.1", AddTotalGenerations},
                                               {"2.1.2", MovePicturesIn},
                                               {"2.2", AddNamePlacement},
                                               {"2.2.9900", NameSetups},
                                               {"2.2.9910", AddPictureQueries, {"PicListQueries"}},
                                               {"2.2.9920", AddThumbnails},
                                               {"2.2.9930", AddImportDate},
                                               {"2.2.9940", MoveTreeHeads, {"TreeHeads", "Indi2Page"}}}};

bool IsNeeded(const UpgradeStep& step, QStringView version)
{
    return IsOlderVersion(version, QString::fromLatin1(step.doneIn));
}

} // namespace

void StopWhenWished(Progress& progress)
{
    if (progress.stopWished()) {
        throw UpgradeStopped{};
    }
}

bool IsOlderVersion(QStringView version, QStringView other)
{
    return version.compare(other, Qt::CaseInsensitive) < 0;
}

bool NeedsUpgrade(QStringView version)
{
    return IsNeeded(steps.back(), version);
}

QStringList TablesOfVersion(QStringView version)
{
    QStringList names;
    for (const TableDefinition& table : FamilyFileTables()) {
        names << table.name;
    }
    for (const UpgradeStep& step : steps) {
        for (const char* table : step.creates) {
            if (IsNeeded(step, version)) {
                names.removeAll(QString::fromLatin1(table));
            }
        }
    }
    // These two are filled anew whenever they are needed.
    names.removeAll(QStringLiteral("Indi2Page"));
    names.removeAll(QStringLiteral("UniqueIds"));
    return names;
}

void RunUpgradeSteps(UpgradeRun& run, QStringView version)
{
    for (const UpgradeStep& step : steps) {
        if (IsNeeded(step, version)) {
            step.run(run);
        }
    }
    if (NeedsUpgrade(version)) {
        Statement update = run.work.prepare(
            QStringLiteral("UPDATE GenInfo SET StemoraVersion = ?1 WHERE rowid = (SELECT min(rowid) FROM GenInfo)"));
        update.bind(1, QString::fromLatin1(versionText)).run();
    }
}

void AddPictureQueries(UpgradeRun& run)
{
    if (!run.work.hasTable(u"PicListQueries")) {
        CreatePicListQueriesTable(run.work, run.environment.clock);
        run.gainedQueries = true;
    }
}

void AddImportDate(UpgradeRun& run)
{
    AddColumn(run.work, QStringLiteral("GenInfo"), QStringLiteral("ImportDate"), ColumnType::Date);
}

} // namespace stemwright
