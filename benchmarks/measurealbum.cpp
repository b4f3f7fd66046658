// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/thumbnail.h"
#include "base/error.h"
#include "index/namesearch.h"
#include "photofolder.h"
#include "queries/picturetable.h"
#include "quietdesk.h"
#include "stopwatch.h"
#include "store/file/familyfile.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cstdio>

/// measure_album thumbnails FOLDER | names FILE.kvf | list FILE.kvf | gallery FILE.kvf: the work of a window, without
/// the window, from inside a process, where starting a program does not count. Each prints when it began, on the
/// machine's clock, the seconds of the work, and what else is said below.
namespace
{

using namespace stemwright;
using bench::Stopwatch;

class Desk
{
public:
    void open(const QString& path)
    {
        if (!OpenFamilyFile(m_file, path, m_desk.environment)) {
            throw Error(path);
        }
    }

    /// The list of pictures of the user's query, which shows at least one.
    PictureTable list()
    {
        std::optional<PictureTable> list = OpenPictureList(connection(), m_desk.environment, {});
        if (!list || list->rowCount() == 0) {
            throw Error(QStringLiteral("The family file shows no pictures."));
        }
        return std::move(*list);
    }

    Connection& connection() { return m_file.connection(); }

private:
    bench::QuietDesk m_desk;
    FamilyFile m_file;
};

/// Made into thumbnails in memory, the first one once before the watch runs, which loads the decoder.
double MakeThumbnails(const std::string& folder)
{
    std::vector<QByteArray> photos;
    for (const std::string& photo : bench::FilesOf(folder)) {
        photos.push_back(QByteArray::fromStdString(photo));
    }
    MakeThumbnail(ImageFile(photos.at(0)));
    const Stopwatch watch;
    for (const QByteArray& photo : photos) {
        MakeThumbnail(ImageFile(photo));
    }
    return watch.seconds();
}

/// What a keystroke costs when all names lie in memory in the order of the list, folded, and are looked at in turn.
class LinearScan
{
public:
    explicit LinearScan(const NameIndex& index)
    {
        for (std::size_t position = 0; position < index.size(); ++position) {
            m_names.push_back(Pattern::folded(index.fullName(index.rowAt(position))).toStdString());
        }
    }

    std::optional<std::size_t> find(const QString& text) const
    {
        std::string wanted = Pattern::folded(text).toStdString();
        const std::size_t blank = wanted.find(' ');
        if (blank == std::string::npos) {
            return first(wanted);
        }
        const std::optional<std::size_t> untitled = first(std::string(wanted).insert(blank, 1, ' '));
        return untitled ? untitled : first(wanted);
    }

private:
    std::optional<std::size_t> first(const std::string& beginning) const
    {
        const auto found = std::find_if(m_names.begin(), m_names.end(),
                                        [&beginning](const std::string& name) { return name.starts_with(beginning); });
        return found == m_names.end() ? std::nullopt : std::optional<std::size_t>(found - m_names.begin());
    }

    std::vector<std::string> m_names;
};

struct Keystrokes {
    /// Of one keystroke on average, in seconds.
    double ours = 0;
    double scan = 0;
    /// The slowest but one in a hundred.
    double percentile99 = 0;
    double opening = 0;
};

/// Types the names of many people, letter by letter; each keystroke is measured beside the scan.
Keystrokes TypeNames(const QString& path)
{
    constexpr std::size_t people = 300;
    Desk desk;
    desk.open(path);
    const Stopwatch opening;
    std::optional<NameIndex> index;
    if (!OpenNameIndex(index, desk.connection())) {
        throw Error(QStringLiteral("The family file holds nobody."));
    }
    Keystrokes result;
    result.opening = opening.seconds();
    const LinearScan scan(*index);
    NameSearch search(*index);
    std::vector<double> times;
    for (std::size_t person = 0; person < people; ++person) {
        const QString name =
            index->fullName(index->rowAt(person * index->size() / people)).simplified().section(u'\'', 0, 0);
        for (qsizetype length = 1; length <= name.size(); ++length) {
            const QString typed = name.left(length);
            const Stopwatch ours;
            search.setText(typed);
            times.push_back(ours.seconds());
            const Stopwatch theirs;
            const std::optional<std::size_t> found = scan.find(typed);
            result.scan += theirs.seconds();
            if (found && *found != index->positionOf(search.currentRow())) {
                throw Error(QStringLiteral("The search and the scan differ for \"%1\".").arg(typed));
            }
        }
    }
    const auto keystrokes = static_cast<double>(times.size());
    for (const double time : times) {
        result.ours += time / keystrokes;
    }
    result.scan /= keystrokes;
    std::sort(times.begin(), times.end());
    result.percentile99 = times[times.size() * 99 / 100];
    return result;
}

/// A family file opened until its list of pictures is in memory.
double OpenList(const QString& path)
{
    Desk desk;
    const Stopwatch watch;
    desk.open(path);
    const PictureTable list = desk.list();
    return watch.seconds();
}

/// All thumbnails of an open family file, a page of 24 after the other.
double LeafThroughGallery(const QString& path)
{
    Desk desk;
    desk.open(path);
    const std::vector<int> pictures = desk.list().pictureIds();
    const Stopwatch watch;
    Statement select = desk.connection().prepare(QStringLiteral("SELECT Thumb FROM AlbumTOC WHERE PicId = ?1"));
    for (const int picture : pictures) {
        if (!select.bind(1, picture).step() || select.bytes(0).isEmpty()) {
            throw Error(QStringLiteral("A picture has no thumbnail."));
        }
        select.reset();
    }
    return watch.seconds();
}

} // namespace

int main(int argc, char** argv)
{
    const double began = bench::Now();
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString command = arguments.value(1);
    const QString path = arguments.value(2);
    try {
        if (arguments.size() != 3) {
            std::fputs("Usage: measure_album thumbnails FOLDER | names FILE | list FILE | gallery FILE\n", stderr);
            return 2;
        }
        if (command == QStringLiteral("names")) {
            const Keystrokes typed = TypeNames(path);
            std::printf("%.6f %.9f %.9f %.9f %.6f\n", began, typed.ours, typed.scan, typed.percentile99, typed.opening);
            return 0;
        }
        const double seconds = command == QStringLiteral("thumbnails") ? MakeThumbnails(path.toStdString())
                               : command == QStringLiteral("list")     ? OpenList(path)
                                                                       : LeafThroughGallery(path);
        std::printf("%.6f %.6f\n", began, seconds);
        return 0;
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "measure_album: %s\n", qPrintable(ErrorText(exception)));
        return 1;
    }
}
