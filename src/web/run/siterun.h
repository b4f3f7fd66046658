// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "base/files.h"
#include "index/familytree.h"
#include "web/run/hiddennames.h"
#include "web/run/pageassignment.h"
#include "web/run/personnames.h"
#include "web/run/privacy.h"
#include "web/run/publishedpictures.h"
#include "web/run/sitetexts.h"
#include "web/setup/setup.h"
#include "web/setup/treedisplay.h"

#include <memory>

/// What the page writers of one publication share: the settings of the run, the family tree and its texts, and the
/// trees that are on the site. It is handed to each of them; nothing about a run is kept elsewhere.
namespace stemwright
{

/// The settings of a setup that steer a run, within the bounds that the walk needs.
struct RunSettings {
    int generationsOnPage = 4;
    int totalGenerations = 99;
    int maxPrivacyAge = 90;
    ProtectedPersons protectedPersons = ProtectedPersons::Shown;
    bool personalPages = false;
    int currentYear = 0;

    static RunSettings of(const Setup& setup, const Clock& clock);
};

/// A tree that is on the site (MakePublishedTree in treelinks.h).
struct PublishedTree {
    TreeDefinition definition;
    TreeDisplay display = TreeDisplay::Outline;
    /// The head's name as the setup has it, as far as it may be told; UTF-8.
    std::string headName;
    /// "Outline_3_": what stands before the owner's number in a page's name.
    std::string pageNameStart;
    /// "graphics/icons_tree_09.gif"
    std::string icon;
    /// HTML: what follows the address in an icon link to an entry.
    std::string linkEnd;
    TreeWalk walk;
};

struct SiteRun {
    const Setup& setup;
    RunSettings settings;
    const FamilyTree& tree;
    const SiteTexts& texts;
    const Privacy& privacy;
    const NameParts& names;
    const ApplicationFolder& application;
    /// The output folder's full path.
    QString folder;
    /// The output folder itself, from the moment on in which its first page is written; null before.
    std::unique_ptr<OpenFolder> pages{};
    std::vector<PublishedTree> trees{};
    /// Known once the trees are.
    HiddenNames hiddenNames{};
    PublishedPictures pictures{};

    QString file(std::string_view name) const
    {
        return folder + u'/' + QLatin1StringView(name.data(), static_cast<qsizetype>(name.size()));
    }

    /// Whether the person is in one of the trees, and so has index entry and personal page.
    bool isOnSite(TreePosition person) const;

    /// Whether a page of somebody else may name the person.
    bool mayBeNamed(TreePosition person) const;

    /// Whether the setup lets an item of the person be shown: a private one is hidden for protected persons, one of a
    /// family if either of the couple is protected.
    bool mayShow(const PublishedItem& item, TreePosition person, TreePosition partner = nowhere) const;
};

} // namespace stemwright
