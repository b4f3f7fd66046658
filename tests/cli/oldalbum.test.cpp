// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/cliworld.h"
#include "support/testworld.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <gtest/gtest.h>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

const QString album = TestData("jet/albums/album-8.mdb");

/// A family file in the folder, with three cats and an old album.
class OldAlbumCommands : public testing::Test
{
protected:
    OldAlbumCommands()
    {
        const QString tree = world.write("cats.ged", "0 HEAD\n1 CHAR UTF-8\n0 @I1@ INDI\n1 NAME Tom /Whiskerby/\n"
                                                     "0 @I2@ INDI\n1 NAME Tommy /Whiskerby/\n"
                                                     "0 @I3@ INDI\n1 NAME Tom /O'Neil/\n0 TRLR\n");
        EXPECT_EQ(world.run({"new", file}).status, 0);
        EXPECT_EQ(world.run({"--yes", "import", file, tree}).status, 0);
        imported = world.run({"--quiet", "--json", "import-album", file, album});
    }

    QJsonDocument names() const
    {
        return QJsonDocument::fromJson(world.run({"--json", "match", file}).output.toUtf8());
    }

    /// Who is marked on each of the pictures 1 to 7.
    QString marked() const
    {
        QStringList all;
        for (int picture = 1; picture <= 7; ++picture) {
            const Outcome list = world.run({"--json", "mark", "list", file, QString::number(picture)});
            QStringList persons;
            for (const QJsonValue mark : QJsonDocument::fromJson(list.output.toUtf8()).array()) {
                persons << mark["Name"].toString().simplified();
            }
            all << persons.join(u'+');
        }
        return all.join(u'|');
    }

    CliWorld world;
    const QString file = world.path("f.kvf");
    Outcome imported;
};

} // namespace

TEST_F(OldAlbumCommands, ImportAndList)
{
    ASSERT_EQ(imported.status, 0) << imported;
    const QJsonDocument report = QJsonDocument::fromJson(imported.output.toUtf8());
    EXPECT_EQ(report["imported"].toInt(), 7);
    EXPECT_EQ(report["missing"].toArray().size(), 7);
    EXPECT_TRUE(imported.errors.contains("D:\\scan\\obraz ó.jpg"));
    EXPECT_EQ(names()[0]["Pictures"], QJsonValue(QJsonArray{1, 2, 3, 7}));
    EXPECT_EQ(names()[2]["Proposals"][1]["Name"].toString().trimmed(), "Whiskerby, Tommy");
    const Outcome again = world.run({"import-album", file, album});
    EXPECT_EQ(again.status, 1) << "the names are still waiting: " << again;
}

TEST_F(OldAlbumCommands, MatchByDecisions)
{
    const auto decide = [this](const QByteArray& json) {
        return world.run({"match", file, "--decisions", world.write("d.json", json)}).status;
    };
    for (const char* wrong : {"{}", "[1", R"([{"Name":"Nobody","Decision":1}])", R"([{"Name":"Murka","Decision":9}])",
                              R"([{"Name":"Murka","Decision":"next"},{"Name":"Žofia","Decision":"?"}])"}) {
        EXPECT_EQ(decide(wrong), 1) << wrong;
    }
    EXPECT_EQ(marked(), "||||||");
    EXPECT_EQ(decide(R"([{"Name":"murka","Decision":"next"},{"Name":"Whiskerby, Tom","Decision":2},{"Name":"Žofia"}])"),
              0);
    EXPECT_EQ(marked(), "Murka||Murka+Whiskerby, Tommy||Murka|Murka|");
}

TEST_F(OldAlbumCommands, MatchOnATerminal)
{
    // Looked up and chosen; next; accepted; passed over; stopped.
    const Outcome outcome = world.runOnTerminal({"match", file}, "O'N\n1\n\n2\nc\nn\nc\ny\n");
    EXPECT_EQ(outcome.status, 0) << outcome;
    EXPECT_TRUE(outcome.output.contains("3 of 6: Whiskerby, Tom")) << outcome;
    EXPECT_EQ(marked(), "Murka+O'Neil, Tom|O'Neil, Tom|Murka+O'Neil, Tom+Whiskerby, Tommy||Murka|Murka|O'Neil, Tom");
}
