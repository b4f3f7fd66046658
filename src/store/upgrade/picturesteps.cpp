// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/imagestructure.h"
#include "album/picturesearch.h"
#include "album/thumbnail.h"
#include "base/error.h"
#include "base/files.h"
#include "store/upgrade/messages.h"
#include "store/upgrade/tablechanges.h"
#include "store/upgrade/upgradesteps.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>

#include <vector>

namespace stemwright
{

namespace
{

const QString album = QStringLiteral("AlbumTOC");
const QString setups = QStringLiteral("WebSiteInfo");

/// Columns that name a file, and those which the file moves into.
struct FileColumns {
    QString table;
    QString name;
    QString type;
    QString content;
};

struct NamedFile {
    qint64 row;
    QString stored;
};

std::vector<NamedFile> FilesNamedBy(Connection& work, const FileColumns& columns)
{
    std::vector<NamedFile> files;
    Statement select = work.prepare(
        QStringLiteral("SELECT rowid, %1 FROM %2 WHERE %1 <> '' ORDER BY rowid").arg(columns.name, columns.table));
    while (select.step()) {
        files.push_back({select.integer64(0), select.text(1)});
    }
    return files;
}

/// A family file may come from anyone and name any file of this computer, which a site would then publish. Pictures
/// with flaws move in, as they always have.
bool IsPicture(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && ClaimedFormat(file.read(6)).has_value();
}

/// Whether the file was found and is now in the family file. One that cannot be read, or is no picture, is as good as
/// none.
bool MoveIn(UpgradeRun& run, PictureSearch& search, const FileColumns& columns, const NamedFile& file)
{
    const QString path = search.find(file.stored);
    if (path.isEmpty() || !IsPicture(path)) {
        return false;
    }
    QByteArray content;
    try {
        // Read to its end before anything is written: in the working copy, nothing can be undone.
        content = ReadWholeFile(path);
    } catch (const Error&) {
        return false;
    }
    Statement update = run.work.prepare(QStringLiteral("UPDATE %1 SET %2 = ?2, %3 = ?3 WHERE rowid = ?1")
                                            .arg(columns.table, columns.type, columns.content));
    update.bind(1, file.row).bind(2, QFileInfo(path).suffix()).bindBytes(3, content).run();
    return true;
}

void MoveAllIn(UpgradeRun& run, const FileColumns& columns, const std::function<void(const NamedFile&)>& whenMoved)
{
    AddColumn(run.work, columns.table, columns.type, ColumnType::Text);
    AddColumn(run.work, columns.table, columns.content, ColumnType::Binary);
    if (!HasColumn(run.work, columns.table, columns.name)) {
        return;
    }
    const std::vector<NamedFile> files = FilesNamedBy(run.work, columns);
    PictureSearch search({QFileInfo(run.path).absolutePath()});
    const auto progress = run.environment.talk.progress(upgrademessages::upgrading, upgrademessages::movingPictures);
    for (std::size_t done = 0; done < files.size(); ++done) {
        progress->setPercent(static_cast<int>(100 * done / files.size()));
        StopWhenWished(*progress);
        if (MoveIn(run, search, columns, files[done])) {
            whenMoved(files[done]);
        } else {
            run.missingPictures << files[done].stored;
        }
    }
    progress->setPercent(100);
    DropColumn(run.work, columns.table, columns.name);
}

/// The file's folder and base name, and as its ending the time of day.
QString SecondBackupPath(const UpgradeRun& run)
{
    const QFileInfo info(run.path);
    const QString time = run.environment.clock.now().toString(QStringLiteral("HH_mm_ss"));
    return info.absoluteDir().filePath(info.completeBaseName() + u'.' + time);
}

} // namespace

void MovePicturesIn(UpgradeRun& run)
{
    const QString backup = SecondBackupPath(run);
    run.environment.talk.tell(upgrademessages::SecondBackup(backup));
    // One that did not become whole is known by another time of day.
    const QFileInfo old(run.path);
    RemoveLeftovers(old.absoluteDir(),
                    QRegularExpression::escape(old.completeBaseName()) + QStringLiteral("\\.\\d\\d_\\d\\d_\\d\\d"));
    run.copyFile(backup);

    // The name would go with its column, so it is kept in the one that a later step gives to all pictures.
    AddColumn(run.work, album, QStringLiteral("PicFilename"), ColumnType::Text);
    if (HasColumn(run.work, album, u"PictureFilename")) {
        run.work.execute(QStringLiteral("UPDATE AlbumTOC SET PicFilename = PictureFilename"));
    }
    Statement update = run.work.prepare(QStringLiteral("UPDATE AlbumTOC SET PicFilename = ?2 WHERE rowid = ?1"));
    MoveAllIn(run, {album, QStringLiteral("PictureFilename"), QStringLiteral("PicType"), QStringLiteral("Picture")},
              [&update](const NamedFile& file) { update.bind(1, file.row).bind(2, BaseNameOf(file.stored)).run(); });
    MoveAllIn(
        run,
        {setups, QStringLiteral("EmblemFilename"), QStringLiteral("EmblemFiletype"), QStringLiteral("EmblemPicture")},
        [](const NamedFile&) {});
}

void AddThumbnails(UpgradeRun& run)
{
    AddColumn(run.work, album, QStringLiteral("Thumb"), ColumnType::Binary);
    AddColumn(run.work, album, QStringLiteral("PicWidth"), ColumnType::Integer);
    AddColumn(run.work, album, QStringLiteral("PicHeight"), ColumnType::Integer);
    if (!CreateAllThumbnails(run.work, run.environment.talk)) {
        throw UpgradeStopped{};
    }
}

} // namespace stemwright
