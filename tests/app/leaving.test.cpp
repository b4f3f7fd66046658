// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/appworld.h"

#include <QtWidgets/QMenu>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

const QString savingTheChanges = "Saving the changes";

class LeavingTest : public AppTest
{
protected:
    void change(const char* title)
    {
        key(Qt::Key_F2);
        Type(window(), "txtTitle", title);
    }

    /// Whether the record was left by the answer.
    bool leaves(const std::function<void()>& action, QMessageBox::StandardButton answer)
    {
        hand.answer(savingTheChanges, answer);
        action();
        hand.wait();
        return position() != "Editing";
    }
};

TEST_F(LeavingTest, AsksWhatBecomesOfUnsavedWorkAndDoesThat)
{
    start(familyFile(2));
    // Each goes on to a dialog that is cancelled, unless the record is not left.
    const std::pair<const char*, const char*> ways[] = {{"mnuOpen", "Open Existing Family File"},
                                                        {"mnuNew", "Create New Family File"},
                                                        {"mnuSaveAs", "Save Family File As"},
                                                        {"mnuExit", nullptr}};
    for (const auto& [name, next] : ways) {
        const auto action = [this, name = name] { Press(window(), name); };
        window().show();
        change("lost");
        EXPECT_FALSE(leaves(action, QMessageBox::Cancel)) << name;
        EXPECT_TRUE(window().isVisible()) << name;
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            const bool saves = answer == QMessageBox::Yes;
            if (saves) {
                window().show();
                change(name);
            }
            hand.answer(savingTheChanges, answer);
            if (next != nullptr) {
                hand.choose(next, {});
            }
            action();
            hand.wait();
            EXPECT_EQ(position(), "Picture 1 of 2") << name;
            EXPECT_EQ(window().isVisible(), next != nullptr) << name;
            EXPECT_EQ(Shown(window(), "dtgTOC").first().contains(name), saves) << name;
            EXPECT_FALSE(Shown(window(), "dtgTOC").first().contains("lost")) << name;
        }
    }
}

TEST_F(LeavingTest, WhatChangesTheListWaitsForTheRecord)
{
    start(familyFile(2));
    change("Changed");
    for (const char* name : {"mnuImportGedcom", "mnuQueries", "runquery", "mnuDelPicRec", "mnuAddPicRec", "next",
                             "mnuContEdit", "mnuFind", "mnuExportTabletoText"}) {
        EXPECT_FALSE(Find<QAction>(window(), name).isEnabled()) << name;
    }
    for (const char* name : {"cboQuery", "dtgTOC"}) {
        EXPECT_FALSE(Find<QWidget>(window(), name).isEnabled()) << name;
    }
    EXPECT_FALSE(leaves([this] { key(Qt::Key_Escape); }, QMessageBox::Cancel));
    EXPECT_TRUE(leaves([this] { key(Qt::Key_Escape); }, QMessageBox::No));
    change("Changed");
    QStringList keys = AccessKeys(window());
    EXPECT_EQ(keys.removeDuplicates(), 1) << "Show and Hide Pointer take turns";
    EXPECT_TRUE(leaves([this] { Find<QMenu>(window(), "mnuRecent").actions().first()->trigger(); }, QMessageBox::Yes));
    EXPECT_EQ(stored("SELECT Title FROM AlbumTOC WHERE PicId = 1"), QStringList("Changed"));
}

} // namespace
