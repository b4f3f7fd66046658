// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

#include <array>

/// The texts that building a web site shows, word for word.
namespace stemwright::webmessages
{

// The progress window.
QString BuildingWebPages();
QString SavingTheSetup();
QString Initializing();
QString PreparingTheOutputFolder();
QString LoadingPictures();
QString CopyingStandardFiles();
QString LoadingIndividuals();
QString BuildingTheTrees();
QString EntryOf(const QString& display, const QString& headName);
QString CollapsiTreeFor(const QString& headName);
QString BuildingIndex();
QString BuildingIndexAndPersonalPages();
QString ProcessingPicture();
QString WritingCommonPages();

// The output folder.
Message OutputFolderDoesNotExist(const QString& folder);
Message CannotCreateFolder(const QString& folder);
Message OutputFolderHoldsFiles(const QString& folder);
/// Whole sentences for what keeps a folder from being an output folder.
QString NoOutputFolder();
QString IsNotAFullPath(const QString& folder);
QString IsNotAFolder(const QString& path);
QString IsNotWritable(const QString& path);
QString HoldsOtherFiles(const QString& folder, const QString& example);
QString IsRootFolder(const QString& folder);
QString HoldsHomeFolder(const QString& folder);
QString HoldsFamilyFile(const QString& folder);
QString IsApplicationFolder(const QString& folder);
QString CannotDeleteFile(const QString& path);
QString CannotCreateGraphicsFolder(const QString& folder);

// The trees.
Message FamilylessAncestor(const QString& name);
Message MissingFamilyRecord(int familyId);
Message MoreMissingFamilyRecords(std::size_t count);
QString NoSuchTreeHead(const QString& headName, int id);

// The pictures, by their numbers.
Message TextsLeftOut(const std::vector<int>& pictures);

// Persons, by their names.
Message FactsLeftOut(const QStringList& persons);
Message PossiblyLiving(const QStringList& persons);
Message ProtectedHeads(const QStringList& persons);

// The choice of a head.
Message ProposeTreeHead(const QString& name, int id, std::size_t descendants);
QString NoTreeHeadChosen(const QString& setupName);
QString NoFamilies();
QString TreesHaveHeads(const QString& setupName);

// The end.
Message WebPagesCreated(const QString& folder);
/// Its lines: how to view the pages, where they are, and what to do there.
std::array<QString, 3> WebPagesCreatedTexts(const QString& folder);
/// What a build that the user stopped has done to the output folder: nothing, or written a part of the site.
enum class StoppedSite { AsBefore, Begun };
Message BuildStopped(StoppedSite site);

Message CannotBuild(const QString& reason);

} // namespace stemwright::webmessages
