// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/files.h"
#include "store/file/checkfamilyfile.h"
#include "support/testworld.h"

#include <QtCore/QDir>

#include <gtest/gtest.h>

#include <random>

namespace stemwright::test
{

namespace
{

/// A user who wants everything opened, and keeps what was said last.
class EagerTalk : public Talk
{
public:
    Button ask(const Message& message) override
    {
        last = message;
        return message.preset;
    }

    void tell(const Message& message) override { last = message; }

    bool tellWithCheckBox(const Message&, const QString&) override { return false; }

    std::optional<QString> input(const InputRequest&) override { return {}; }

    std::optional<QString> chooseFile(const FileRequest&) override { return {}; }

    std::unique_ptr<Progress> progress(const QString&, const QString&) override
    {
        return std::make_unique<NoProgress>();
    }

    Message last;

private:
    class NoProgress : public Progress
    {
        void setCaption(const QString&) override {}

        void setPercent(int) override {}

        bool stopWished() override { return false; }
    };
};

/// A few notice a mistake; CONTRIBUTING.md says how to try many.
int CopiesToDamage()
{
    return qEnvironmentVariable("STEMWRIGHT_DAMAGED_COPIES", "30").toInt();
}

class DamagedFiles : public testing::TestWithParam<const char*>
{
protected:
    /// Opens a file of this content: either it ends as a sound family file, or it is refused and stays as it is.
    void open(const QByteArray& content)
    {
        const QString path = m_world.write("damaged.kvf", content);
        FamilyFile file;
        if (OpenFamilyFile(file, path, m_environment)) {
            ++opened;
            for (const QString& fault : CheckFamilyFile(file.connection()).faults) {
                EXPECT_TRUE(fault.contains("belong to a setup that is gone")) << fault;
            }
            return;
        }
        EXPECT_EQ(m_talk.last.title, "Cannot open family file");
        EXPECT_EQ(ReadWholeFile(path), content);
        EXPECT_EQ(QDir(m_world.path({})).entryList({"*unfinished*"}), QStringList());
    }

    const QByteArray m_whole = ReadWholeFile(TestData(QString("jet/family-%1/cats-%1.kvf").arg(GetParam())));
    std::mt19937 m_random{20260312};
    int opened = 0;

private:
    TestWorld m_world;
    EagerTalk m_talk;
    Environment m_environment{m_talk, m_world.settings, m_world.clock, m_world.application};
};

} // namespace

TEST_P(DamagedFiles, OfAnyLengthAreRefusedOrWhole)
{
    for (int i = 0; i < CopiesToDamage(); ++i) {
        open(m_whole.left(static_cast<qsizetype>(m_random()) % m_whole.size()));
    }
    EXPECT_LT(opened, CopiesToDamage() / 2);
}

TEST_P(DamagedFiles, WithOtherBytesAreRefusedOrSound)
{
    for (int i = 0; i < CopiesToDamage(); ++i) {
        QByteArray damaged = m_whole;
        for (int bytes = 1 << (i % 10); bytes > 0; --bytes) {
            damaged[static_cast<qsizetype>(m_random()) % damaged.size()] = static_cast<char>(m_random());
        }
        open(damaged);
    }
    EXPECT_GT(opened, CopiesToDamage() / 10);
    EXPECT_LT(opened, CopiesToDamage() * 9 / 10);
}

INSTANTIATE_TEST_SUITE_P(Versions, DamagedFiles, testing::Values("2.2", "3.0.2"));

} // namespace stemwright::test
