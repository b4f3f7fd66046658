// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/appworld.h"
#include "app/wizard/frmconfirm.h"
#include "app/wizard/frmitemstoinclude.h"

#include <QtCore/QFileInfo>
#include <QtGui/QAction>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

class WebSetupsTest : public AppTest
{
protected:
    void closeWizardOf(const QString& setup)
    {
        hand.at("frmSiteWizard", [setup](QWidget& wizard) {
            EXPECT_TRUE(wizard.windowTitle().contains(setup)) << wizard.windowTitle();
            static_cast<QDialog&>(wizard).reject();
        });
    }

    /// Gives the items of the setup "Default" to `act` and presses a button in the end.
    bool editItems(Hand::Action act, const char* end = "cmdOK")
    {
        hand.at("frmItemsToInclude", [act = std::move(act), end](QWidget& items) {
            act(items);
            Press(items, end);
        });
        SetupEditing editing(world.connection(), environment, "Default");
        return EditItemsToInclude(world.connection(), environment, editing, nullptr) && editing.save();
    }

    static void pick(QWidget& items, const char* list, int row)
    {
        auto& view = Find<QAbstractItemView>(items, list);
        view.setCurrentIndex(view.model()->index(row, 0));
    }

    static void pressReturnIn(QWidget& window, const char* list)
    {
        auto& control = Find<QWidget>(window, list);
        control.setFocus();
        QTest::keyClick(&control, Qt::Key_Return);
    }

    static bool isEnabled(QWidget& window, const char* name) { return Find<QWidget>(window, name).isEnabled(); }
};

TEST_F(WebSetupsTest, SetupsAreMadeRenamedDeletedAndRun)
{
    start(familyFile());
    hand.at("frmSetups", [&](QWidget& setups) {
        hand.at("frmNewSetup", [&](QWidget& dialog) {
            for (const auto& [name, message] : {std::pair("", "No Setup Name"), {"default", "Duplicate setup name"}}) {
                Type(dialog, "txtSetupName", name);
                hand.answer(message);
                Press(dialog, "cmdOK");
            }
            EXPECT_FALSE(isEnabled(dialog, "lstSetups"));
            Press(dialog, "chkClone");
            EXPECT_TRUE(isEnabled(dialog, "lstSetups"));
            Type(dialog, "txtSetupName", "Copy");
            closeWizardOf("Copy");
            Press(dialog, "cmdOK");
        });
        Press(setups, "cmdNew");
        EXPECT_EQ(Shown(setups, "lstSetups"), QStringList({"Copy", "Default"}));
        EXPECT_EQ(CurrentRow(setups, "lstSetups"), 0);
        hand.enter("Renaming Setup", "default");
        hand.answer("Duplicate setup name");
        Press(setups, "cmdRename");
        hand.enter("Renaming Setup", "Late");
        Press(setups, "cmdRename");
        EXPECT_EQ(CurrentRow(setups, "lstSetups"), 1);
        closeWizardOf("Late");
        pressReturnIn(setups, "lstSetups");
        for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
            hand.answer("You are about to delete setup \"Late\".", button);
            Press(setups, "cmdDelete");
        }
        closeWizardOf("Default");
        Press(setups, "cmdEdit");
        hand.answer("Confirm Setup Delete", QMessageBox::Yes);
        Press(setups, "cmdDelete");
        for (const char* name : {"cmdEdit", "cmdRename", "cmdDelete"}) {
            EXPECT_FALSE(isEnabled(setups, name)) << name;
        }
        hand.at("frmNewSetup", [](QWidget& dialog) {
            EXPECT_FALSE(isEnabled(dialog, "chkClone"));
            Type(dialog, "txtSetupName", "First");
            Press(dialog, "cmdOK");
        });
        closeWizardOf("First");
        Press(setups, "cmdNew");
        Press(setups, "cmdClose");
    });
    Press(window(), "mnuCreateWebPages");
    EXPECT_EQ(stored("SELECT SetupName FROM WebSiteInfo"), QStringList("First"));
}

TEST_F(WebSetupsTest, TheWebMenuNeedsAFamilyFileThatIsNotBeingEdited)
{
    const auto expectEnabled = [this](bool enabled) {
        for (const char* name : {"mnuCreateWebPages", "mnuViewWebPages", "mnuUploadWebPages"}) {
            EXPECT_EQ(Find<QAction>(window(), name).isEnabled(), enabled) << name;
        }
    };
    hand.at("frmWelcome", [](QWidget& welcome) { static_cast<QDialog&>(welcome).reject(); });
    start();
    expectEnabled(false);
    start(familyFile());
    expectEnabled(true);
    Press(window(), "mnuAddPicRec");
    expectEnabled(false);
    Press(window(), "cmdCancel");
}

TEST_F(WebSetupsTest, ItemsAreChosenAndArrangedWithinTheCallersTransaction)
{
    Connection& connection = world.newFamilyFile().connection();
    const auto add = [this](QWidget& items) {
        pick(items, "lstCatalogue", 2);
        hand.answer("This item is already included.");
        Press(items, "cmdAdd");
        pick(items, "lstCatalogue", 5);
        pressReturnIn(items, "lstCatalogue");
        EXPECT_FALSE(isEnabled(items, "cmdDown"));
        Press(items, "cmdUp");
        EXPECT_EQ(CurrentRow(items, "hfgItems"), 4);
        EXPECT_TRUE(isEnabled(items, "cmdDown"));
        pick(items, "hfgItems", 0);
        EXPECT_FALSE(isEnabled(items, "cmdUp"));
        Press(items, "cmdRemove");
        EXPECT_EQ(Shown(items, "hfgItems"), QStringList({"Given name|Yes||||", "Surname|Yes||||", "Suffix|Yes||||",
                                                         "Birth|||||", "Alias|Yes||||"}));
    };
    const QString names = "SELECT group_concat(substr(ItemValue, 1, 5)) FROM SelectedItems";
    const QStringList before = Rows(connection, names);
    EXPECT_FALSE(editItems(add, "cmdCancel"));
    EXPECT_EQ(Rows(connection, names), before);
    {
        const Transaction undone(connection);
        EXPECT_TRUE(editItems(add));
        EXPECT_NE(Rows(connection, names), before);
    }
    EXPECT_EQ(Rows(connection, names), before);
    EXPECT_TRUE(editItems(add));
    EXPECT_EQ(Rows(connection, names), QStringList("Given,Surna,Suffi,Birth,Alias"));
}

TEST_F(WebSetupsTest, AnItemsOptionsAreFreeOnlyWhereTheyMeanSomething)
{
    world.newFamilyFile();
    editItems([this](QWidget& items) {
        pick(items, "lstCatalogue", 5);
        Press(items, "cmdAdd");
        hand.at("frmItemOptions", [](QWidget& options) {
            const auto enabled = [&options] {
                return std::array{isEnabled(options, "cboBeforeItem"), isEnabled(options, "cboBeforePlace"),
                                  isEnabled(options, "cboAfterItem")};
            };
            EXPECT_EQ(enabled(), (std::array{false, false, false}));
            Press(options, "chkInTree");
            EXPECT_EQ(enabled(), (std::array{true, true, true}));
            Choose(options, "cboBeforeItem", ":");
            Type(options, "cboBeforePlace", " in ");
            Press(options, "chkPrivate");
            Press(options, "chkInTree");
            Press(options, "cmdOK");
        });
        Press(items, "cmdOptions");
        EXPECT_EQ(Shown(items, "hfgItems").last(), "Birth||:| in ||P");
        pick(items, "hfgItems", 4);
        hand.at("frmItemOptions", [this](QWidget& options) {
            EXPECT_FALSE(isEnabled(options, "cboBeforePlace"));
            EXPECT_EQ(Find<QComboBox>(options, "cboAfterItem").findText(":"), -1);
            Find<QComboBox>(options, "cboAfterItem").setEditText(QString(300, u'x'));
            hand.answer("The name of item \"Alias\" and the texts around it are too long");
            Press(options, "cmdOK");
            Choose(options, "cboAfterItem", "\"");
            Press(options, "cmdOK");
        });
        pressReturnIn(items, "hfgItems");
        EXPECT_EQ(Shown(items, "hfgItems")[4], "Alias|Yes|||\"|");
    });
    EXPECT_EQ(Rows(world.connection(), "SELECT ItemValue FROM SelectedItems ORDER BY rowid").last(),
              "Birth\tBIRT\tdp\t\t:\t in \t\tP\tIndi");
}

TEST_F(WebSetupsTest, FinishedPagesAreViewedAndConfirmed)
{
    const QString index = world.write("index.html", "<title>Our family</title>");
    start(familyFile());
    const auto view = [this] { Press(window(), "mnuViewWebPages"); };
    hand.at("frmSelectSetup", [this](QWidget& choice) {
        hand.answer("Your web pages are not yet created.  To create them, use Web > Create Web Pages.");
        Press(choice, "cmdOK");
        Press(choice, "cmdCancel");
    });
    view();
    quit();
    FamilyFile file;
    ASSERT_TRUE(OpenFamilyFile(file, world.path("Family.kvf"), world.environment));
    file.connection().execute(
        QString("UPDATE WebSiteInfo SET WebPageFolder = '%1'").arg(QFileInfo(index).absolutePath()));
    file.close();
    const auto browse = [this] {
        hand.at("frmWebBrowser", [](QWidget& browser) {
            EXPECT_TRUE(Await([&] { return browser.windowTitle() == "Web Browser - Our family"; }));
            Press(browser, "cmdClose");
        });
    };
    start(world.path("Family.kvf"));
    hand.press("frmSelectSetup", "cmdOK");
    browse();
    view();

    hand.at("frmConfirm", [&](QWidget& confirm) {
        EXPECT_TRUE(Find<QLabel>(confirm, "lblConfirm1").text().contains("click 'View My Web Pages'"));
        EXPECT_TRUE(Find<QLabel>(confirm, "lblConfirm2").text().endsWith(QFileInfo(index).absolutePath()));
        EXPECT_EQ(Find<QLabel>(confirm, "lblConfirm3").text(), "and double-click index.html.");
        browse();
        Press(confirm, "cmdBrowser");
        Press(confirm, "chkDontShow");
        Press(confirm, "cmdOK");
    });
    ConfirmWebPages(index, environment, &window());
    ConfirmWebPages(index, environment, &window());
    EXPECT_EQ(stored("DELETE FROM WebSiteInfo RETURNING SetupName"), QStringList("Default"));
    start(world.path("Family.kvf"));
    hand.answer("No web site setup is currently defined.");
    view();
    hand.at("frmUpload", [](QWidget& upload) {
        EXPECT_FALSE(isEnabled(upload, "cmdUpload"));
        Press(upload, "cmdClose");
    });
    Press(window(), "mnuUploadWebPages");
}

TEST_F(WebSetupsTest, UploadSettingsAreCheckedAndNotStored)
{
    start(familyFile());
    hand.at("frmSetups", [&](QWidget& setups) {
        hand.enter("Renaming Setup", "My Family Site");
        Press(setups, "cmdRename");
        Press(setups, "cmdClose");
    });
    Press(window(), "mnuCreateWebPages");
    world.settings.setValue("FTP", "Username", "ida");
    hand.at("frmUpload", [this](QWidget& upload) {
        const auto text = [&upload](const char* name) { return Find<QLineEdit>(upload, name).text(); };
        EXPECT_EQ(text("txtUsername"), "ida");
        EXPECT_EQ(text("txtSubdir"), "My_Family_Site");
        EXPECT_EQ(text("txtFullPath"), "/My_Family_Site");
        Type(upload, "txtRootSubdir", "sites");
        Type(upload, "txtSubdir", "ours");
        EXPECT_EQ(text("txtFullPath"), "sites/ours");
        const std::array<const char*, 3> messages[] = {
            {"txtServer", "Please provide an FTP server name", "example.org"},
            {"txtUsername", "Please provide a username", "otto"},
            {"txtPassword", "Please provide a password", "secret"}};
        Type(upload, "txtUsername", "");
        for (const auto& [field, message, value] : messages) {
            hand.answer(message);
            Press(upload, "cmdSave");
            Type(upload, field, value);
        }
        Press(upload, "cmdSave");
        Press(upload, "cmdUpload");
        EXPECT_FALSE(isEnabled(upload, "spnPort"));
        Press(upload, "chkDefaultPort");
        Find<QSpinBox>(upload, "spnPort").setValue(2121);
        Press(upload, "chkDefaultPort");
        EXPECT_EQ(Find<QSpinBox>(upload, "spnPort").value(), 21);
        Press(upload, "cmdClose");
    });
    Press(window(), "mnuUploadWebPages");
    EXPECT_EQ(world.settings.value("FTP", "Server"), QString());
    EXPECT_EQ(world.settings.value("FTP", "Username"), "ida");
}

} // namespace
