// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/oldfamilyfile.h"

#include "base/error.h"
#include "base/files.h"
#include "store/engine/tablesql.h"
#include "store/file/copyfamilyfile.h"
#include "store/jet/jetfile.h"
#include "store/upgrade/convertjet.h"
#include "store/upgrade/tablechanges.h"

#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

/// What tells whether another program has changed or replaced a file.
struct FileState {
    explicit FileState(const QString& path) : size(QFileInfo(path).size()), changed(QFileInfo(path).lastModified()) {}

    bool operator==(const FileState&) const = default;

    qint64 size;
    QDateTime changed;
};

class JetFamilyFile : public OldFamilyFile
{
public:
    JetFamilyFile(const QString& path, const FileState& state, std::unique_ptr<JetFile> source)
        : OldFamilyFile(path, JetFileVersion(*source)), m_state(state), m_source(std::move(source))
    {
        RequireWholeJetFile(*m_source, version());
    }

    FileFormat format() const override { return FileFormat::Jet; }

    void copyTo(const QString& target) const override
    {
        PrepareToReplace(target);
        UnfinishedFile unfinished(target, path());
        WriteWholeFile(unfinished.path(), m_source->content());
        PutFamilyFileInPlace(unfinished);
    }

    void requireUnchanged() const override
    {
        if (FileState(path()) != m_state) {
            throw Error(QStringLiteral("Another program has changed the file meanwhile. Please open it again."));
        }
    }

    QStringList takeOver(const QString& target, Talk& talk) const override
    {
        Connection work(target, OpenMode::CreateNew);
        WriteUnguarded(work);
        return ConvertJetFile(*m_source, work, talk);
    }

private:
    FileState m_state;
    std::unique_ptr<JetFile> m_source;
};

class EngineFamilyFile : public OldFamilyFile
{
public:
    EngineFamilyFile(const QString& path, std::unique_ptr<Connection> connection, const QString& version)
        : OldFamilyFile(path, version), m_connection(std::move(connection))
    {
    }

    FileFormat format() const override { return FileFormat::Engine; }

    void copyTo(const QString& target) const override { CopyFamilyFile(*m_connection, target); }

    /// It is locked.
    void requireUnchanged() const override {}

    QStringList takeOver(const QString& target, Talk&) const override
    {
        copyTo(target);
        Connection work(target, OpenMode::ReadWrite);
        WriteUnguarded(work);
        dropIndexes(work);
        return {};
    }

private:
    /// The steps delete columns, which an index would forbid; the new file gets its own.
    static void dropIndexes(Connection& work)
    {
        QStringList names;
        {
            Statement select =
                work.prepare(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'index' AND sql IS NOT NULL"));
            while (select.step()) {
                names << select.text(0);
            }
        }
        for (const QString& name : names) {
            work.execute(QStringLiteral("DROP INDEX ") + QuotedName(name));
        }
    }

    std::unique_ptr<Connection> m_connection;
};

} // namespace

std::unique_ptr<OldFamilyFile> OpenJetFamilyFile(const QString& path)
{
    const FileState state(path);
    return std::make_unique<JetFamilyFile>(path, state, std::make_unique<JetFile>(path));
}

std::unique_ptr<OldFamilyFile> OldEngineFamilyFile(const QString& path, std::unique_ptr<Connection> connection,
                                                   const QString& version)
{
    return std::make_unique<EngineFamilyFile>(path, std::move(connection), version);
}

} // namespace stemwright
