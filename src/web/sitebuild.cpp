// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/sitebuild.h"

#include "base/error.h"
#include "store/engine/engineerror.h"
#include "web/commonpages.h"
#include "web/links/treelinks.h"
#include "web/messages.h"
#include "web/outputfolder.h"
#include "web/people/nameindex.h"
#include "web/pictures/albumpages.h"
#include "web/run/hiddenfacts.h"
#include "web/setup/setupchecks.h"
#include "web/sitereport.h"
#include "web/standardfiles.h"
#include "web/treelist.h"
#include "web/trees/chartpages.h"
#include "web/trees/collapsitree.h"
#include "web/trees/outlinepages.h"
#include "web/worktables.h"

#include <QtCore/QFileInfo>

#include <future>

namespace stemwright
{

namespace
{

/// Ends a build that the user stopped, or of which he has been told that it cannot go on.
struct Stopped {
};

class SiteBuild
{
public:
    SiteBuild(FamilyFile& file, const SiteRequest& request, Environment& environment)
        : m_file(file), m_connection(file.connection()), m_request(request), m_environment(environment),
          m_progress(environment.talk.progress(webmessages::BuildingWebPages(), webmessages::SavingTheSetup()))
    {
    }

    QString run()
    {
        try {
            for (const Step& step : steps()) {
                m_progress->setCaption(step.caption);
                m_progress->setPercent(0);
                if (m_progress->stopWished()) {
                    throw StopWished{};
                }
                (this->*step.work)();
            }
        } catch (const StopWished&) {
            // Before the message, which may stand there for hours.
            m_beside = {};
            m_newTables.reset();
            m_progress.reset();
            stop(webmessages::BuildStopped(m_site));
        }
        m_newTables->commit();
        m_progress.reset();
        return m_folder.path + QStringLiteral("/index.html");
    }

private:
    struct Step {
        QString caption;
        void (SiteBuild::*work)();
    };

    /// All that is asked and read comes before the first file is touched, so that a build which fails or is called off
    /// until then leaves the site of the last one as it is.
    static std::vector<Step> steps()
    {
        using namespace webmessages;
        return {{SavingTheSetup(), &SiteBuild::loadSetup},
                {Initializing(), &SiteBuild::loadTree},
                {PreparingTheOutputFolder(), &SiteBuild::prepareFolder},
                {LoadingPictures(), &SiteBuild::loadPictures},
                {LoadingIndividuals(), &SiteBuild::loadIndividuals},
                {LoadingIndividuals(), &SiteBuild::walkTrees},
                {CopyingStandardFiles(), &SiteBuild::beginSite},
                {BuildingTheTrees(), &SiteBuild::buildTrees},
                {BuildingIndex(), &SiteBuild::buildIndex},
                {ProcessingPicture(), &SiteBuild::buildAlbum},
                {WritingCommonPages(), &SiteBuild::writeCommonPages}};
    }

    void loadSetup()
    {
        m_setup = LoadSetup(m_connection, m_request.setupName);
        if (!m_setup) {
            throw Error(QStringLiteral("There is no setup named \"%1\".").arg(m_request.setupName));
        }
        if (const std::optional<Message> failure = CheckSetup(*m_setup)) {
            stop(*failure);
        }
    }

    void loadTree()
    {
        m_tree = FamilyTree::load(m_connection);
        for (const TreeDefinition& tree : m_setup->trees) {
            if (!tree.headId || !m_tree.findIndividual(*tree.headId)) {
                throw Error(webmessages::NoSuchTreeHead(tree.headName, tree.headId.value_or(0)));
            }
        }
    }

    void prepareFolder()
    {
        const ProtectedPlaces places = ProtectedPlaces::of(m_file.path(), m_environment.application);
        const QString folder = m_request.outputFolder.isEmpty() ? m_setup->folder : m_request.outputFolder;
        std::optional<OutputFolder> agreed = PrepareOutputFolder(folder, places, m_environment.talk);
        if (!agreed) {
            throw Stopped{};
        }
        m_folder = std::move(*agreed);
    }

    void loadPictures() { m_album = AlbumPictures::load(m_connection, m_tree); }

    void loadIndividuals()
    {
        const RunSettings settings = RunSettings::of(*m_setup, m_environment.clock);
        m_texts = SiteTexts::load(m_connection, m_tree, m_setup->items);
        m_privacy.emplace(m_tree, *m_texts, settings.protectedPersons, settings.maxPrivacyAge, settings.currentYear);
        m_names.emplace(*m_texts, *m_privacy, m_tree.individuals());
        m_run.emplace(SiteRun{*m_setup, settings, m_tree, *m_texts, *m_privacy, *m_names, m_environment.application,
                              m_folder.path});
    }

    void walkTrees()
    {
        for (const TreeDefinition& definition : m_setup->trees) {
            addTree(definition);
        }
        TellMissingFamilies(*m_run, m_environment.talk);
        TellProtectedHeads(*m_run, m_environment.talk);
        TellPossiblyLiving(*m_run, m_environment.talk);
        m_run->hiddenNames = HiddenNames(*m_run);
        m_run->pictures = PublishedPictures(std::move(m_album), *m_run);
        TellFactsLeftOut(WithholdFacts(*m_texts, *m_run), *m_run, m_environment.talk);
    }

    /// Standard files are copied and work tables filled by a second thread while the first writes pages: both only read
    /// what the run knows. The tables become lasting after the last page of the site.
    void beginSite()
    {
        RequireTemplates(m_setup->pageStyle, m_environment.application);
        m_site = webmessages::StoppedSite::Begun;
        EmptyOutputFolder(m_folder);
        m_run->pages = std::make_unique<OpenFolder>(m_folder.path);
        m_newTables.emplace(m_connection);
        MakeWorkTables(m_connection);
        m_beside = std::async(std::launch::async, [this] {
            CopyStandardFiles(m_setup->pageStyle, m_environment.application, m_folder.path);
            FillWorkTables(*m_run, m_connection);
        });
    }

    void buildTrees()
    {
        for (const PublishedTree& tree : m_run->trees) {
            const QString headName = QString::fromStdString(tree.headName);
            StepProgress progress(*m_progress,
                                  tree.display == TreeDisplay::CollapsiTree
                                      ? webmessages::CollapsiTreeFor(headName)
                                      : webmessages::EntryOf(DisplayName(tree.display), headName),
                                  tree.walk.entries().size());
            writePages(tree, progress);
        }
    }

    void writePages(const PublishedTree& tree, StepProgress& progress)
    {
        switch (tree.display) {
        case TreeDisplay::Outline:
            WriteOutlinePages(*m_run, tree, progress);
            break;
        case TreeDisplay::CollapsiTree:
            WriteCollapsiTree(*m_run, tree, progress);
            break;
        case TreeDisplay::DescendantTree:
        case TreeDisplay::AncestorTree:
            WriteChartPages(*m_run, tree, progress);
            break;
        }
    }

    void addTree(const TreeDefinition& definition)
    {
        const TreePosition head = *m_tree.findIndividual(*definition.headId);
        const TreeDisplay display = DisplayOf(definition);
        if (display == TreeDisplay::AncestorTree ? !hasParents(head) : m_tree.spouseFamilies(head).empty()) {
            const QString name = QString::fromStdString(m_names->displayName(head));
            if (m_environment.talk.ask(webmessages::FamilylessAncestor(name)) != Button::Ok) {
                throw Stopped{};
            }
            return;
        }
        WalkLimits limits{.totalGenerations = m_run->settings.totalGenerations};
        if (display != TreeDisplay::CollapsiTree) {
            limits.generationsOnPage = m_run->settings.generationsOnPage;
        }
        const auto walk = display == TreeDisplay::AncestorTree ? TreeWalk::ofAncestors : TreeWalk::ofDescendants;
        m_run->trees.push_back(MakePublishedTree(*m_run, definition, walk(m_tree, *m_privacy, head, limits)));
    }

    /// Whether the individual names a family as the parents', be its record missing, and somebody in it.
    bool hasParents(TreePosition individual) const
    {
        const TreePosition family = m_tree.parentFamily(individual);
        return family != nowhere &&
               (!m_tree.hasRecord(family) || m_tree.husband(family) != nowhere || m_tree.wife(family) != nowhere);
    }

    void buildIndex()
    {
        const std::vector<TreePosition> persons = PersonsInIndexOrder(*m_run);
        StepProgress progress(*m_progress,
                              m_run->settings.personalPages ? webmessages::BuildingIndexAndPersonalPages()
                                                            : webmessages::BuildingIndex(),
                              persons.size());
        WriteNameIndex(*m_run, persons, progress);
        m_beside.get();
    }

    void buildAlbum()
    {
        StepProgress progress(*m_progress, webmessages::ProcessingPicture(), m_run->pictures.all().size());
        const std::vector<int> lostTexts = WriteAlbumPages(*m_run, m_connection, progress);
        if (!lostTexts.empty()) {
            m_environment.talk.tell(webmessages::TextsLeftOut(lostTexts));
        }
    }

    void writeCommonPages()
    {
        WriteTreeList(*m_run);
        WriteCommonPages(*m_run, m_connection);
    }

    [[noreturn]] void stop(const Message& message)
    {
        m_environment.talk.tell(message);
        throw Stopped{};
    }

    FamilyFile& m_file;
    Connection& m_connection;
    const SiteRequest& m_request;
    Environment& m_environment;
    std::unique_ptr<Progress> m_progress;
    std::optional<Setup> m_setup;
    OutputFolder m_folder;
    webmessages::StoppedSite m_site = webmessages::StoppedSite::AsBefore;
    FamilyTree m_tree;
    AlbumPictures m_album;
    std::optional<SiteTexts> m_texts;
    std::optional<Privacy> m_privacy;
    std::optional<NameParts> m_names;
    std::optional<SiteRun> m_run;
    std::optional<Transaction> m_newTables;
    /// What beginSite() left to the second thread; it ends before what it uses goes.
    std::future<void> m_beside;
};

} // namespace

std::optional<QString> BuildWebPages(FamilyFile& file, const SiteRequest& request, Environment& environment)
{
    try {
        return SiteBuild(file, request, environment).run();
    } catch (const Stopped&) {
        return std::nullopt;
    } catch (const std::exception& exception) {
        environment.talk.tell(webmessages::CannotBuild(ReasonText(exception)));
        return std::nullopt;
    }
}

std::optional<QString> BuildWebPages(FamilyFile& file, SetupEditing& editing, Environment& environment)
{
    std::optional<QString> index;
    editing.saveAndRun([&] { index = BuildWebPages(file, {editing.setupName(), {}}, environment); });
    return index;
}

bool WantsConfirmation(const Settings& settings)
{
    return settings.value(setting::exportWizard, setting::confirmScreen) != QStringLiteral("0");
}

void TellWebPagesCreated(const QString& index, Environment& environment)
{
    if (WantsConfirmation(environment.settings)) {
        environment.talk.tell(webmessages::WebPagesCreated(QFileInfo(index).path()));
    }
}

} // namespace stemwright
