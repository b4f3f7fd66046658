// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/checkfamilyfile.h"

#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(CheckFamilyFile, TellsFaultsFromWhatIsLivedWith)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"INSERT INTO AlbumTOC DEFAULT VALUES; INSERT INTO Pic2Person (PicId, PersId) VALUES (1, 0)", "", ""},
        {"UPDATE TreeHeads SET SetupName = 'default '", "", ""},
        {"INSERT INTO Pic2Person (PicId) VALUES (5)", "Pic2Person.PicId", ""},
        {"INSERT INTO SelectedItems (SetupName) VALUES ('gone')", "SelectedItems.SetupName", ""},
        {"INSERT INTO TreeHeads (SetupName) VALUES ('gone')", "TreeHeads.SetupName", ""},
        {"DROP INDEX Fam2Child_FamId", "index of table Fam2Child", ""},
        {"ALTER TABLE Fam ADD COLUMN extra", "Table Fam", ""},
        {"INSERT INTO GenInfo DEFAULT VALUES", "GenInfo has 2 rows", ""},
        {"PRAGMA ignore_check_constraints = 1; INSERT INTO UniqueIds VALUES (1, 7)", "UniqueIds", ""},
        {"UPDATE TreeHeads SET TreeHeadId = 9", "", "TreeHeads.TreeHeadId"},
        {"INSERT INTO AlbumTOC DEFAULT VALUES; INSERT INTO Pic2Person (PicId, PersId) VALUES (1, 3)", "",
         "Pic2Person.PersId"},
        {"INSERT INTO WebAddr (Id) VALUES (3)", "", "WebAddr.Id"},
        {"INSERT INTO Indi (Id, FAMC) VALUES (1, 2)", "", "Indi.FAMC"},
        {"INSERT INTO Fam (Id, HusbandId) VALUES (1, 2)", "", "Fam.HusbandId"},
        {"INSERT INTO Fam (Id, WifeId) VALUES (1, 2)", "", "Fam.WifeId"},
        {"INSERT INTO Indi (Id) VALUES (3); INSERT INTO Fam2Child (FamId, ChildId) VALUES (2, 3)", "",
         "Fam2Child.FamId"},
        {"INSERT INTO Indi (Id) VALUES (3); INSERT INTO Spouse2Fam (SpouseId, FamId) VALUES (3, 2)", "",
         "Spouse2Fam.FamId"},
    };
    for (const auto& [change, fault, note] : cases) {
        TestWorld world;
        Connection& connection = world.newFamilyFile().connection();
        connection.execute(QString::fromLatin1(change) + QStringLiteral("; PRAGMA ignore_check_constraints = 0"));
        const FamilyFileReport report = CheckFamilyFile(connection);
        for (const auto& [list, expected] : {std::pair(report.faults, fault), std::pair(report.notes, note)}) {
            const bool asExpected = *expected == '\0'
                                        ? list.isEmpty()
                                        : list.size() == 1 && list[0].contains(QString::fromLatin1(expected));
            EXPECT_TRUE(asExpected) << change << ": " << list.join(u'\n').toStdString();
        }
    }
}

} // namespace stemwright::test
