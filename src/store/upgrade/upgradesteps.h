// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/engine/connection.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

/// The steps that bring a family file of an earlier release to the tables of this one. They work on a copy of the file
/// and so may fail at any place: with Error, or as the engine fails. A column or table that is there already is left as
/// it is, since earlier releases upgraded the file itself and sometimes broke off. Stands on the tables and on album/.
namespace stemwright
{

/// Ends an upgrade when the user wished to stop it.
struct UpgradeStopped {
};

void StopWhenWished(Progress& progress);

/// An upgrade that is under way.
struct UpgradeRun {
    /// The copy that is upgraded.
    Connection& work;
    const Environment& environment;
    /// The file that is being upgraded, and how a copy of it is made, which replaces the file at the given path.
    QString path;
    std::function<void(const QString& target)> copyFile;
    /// The picture files that were looked for and not found, as the old file named them.
    QStringList missingPictures;
    /// Whether the file had no picture list queries and got its first one.
    bool gainedQueries = false;
};

/// Whether a version, as a family file states it, is older than another one: they compare as texts, without regard to
/// case.
bool IsOlderVersion(QStringView version, QStringView other);

/// Files of older versions are backed up before they are upgraded if the user wishes so. The last steps came later.
inline const QString firstVersionWithoutQuestion = QStringLiteral("2.2.9920");

/// Whether a file of this version needs any step.
bool NeedsUpgrade(QStringView version);

/// The tables that a file of this version must have before its upgrade.
QStringList TablesOfVersion(QStringView version);

/// Runs the steps that a file of this version needs, in their order, and states the running version when there were
/// any.
void RunUpgradeSteps(UpgradeRun& run, QStringView version);

// The steps.

/// WebSiteInfo gains the limit of all generations and the switch that hides living people.
void AddTotalGenerations(UpgradeRun& run);
/// Pictures and the emblem, until then files on the disk, move into the family file.
void MovePicturesIn(UpgradeRun& run);
/// Where the names stand on a picture's page, which personal pages are made, and whether an item is included.
void AddNamePlacement(UpgradeRun& run);
/// Setups get names; pictures get their file names and drawing tool, marks their size.
void NameSetups(UpgradeRun& run);
void AddPictureQueries(UpgradeRun& run);
void AddThumbnails(UpgradeRun& run);
void AddImportDate(UpgradeRun& run);
/// Each setup's tree head moves into the table of tree heads; descriptions of pictures become memos.
void MoveTreeHeads(UpgradeRun& run);

} // namespace stemwright
