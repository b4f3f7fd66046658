// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "sqlite.h"
#include "stopwatch.h"

#include <QtCore/QAbstractTableModel>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTableView>

#include <cstdio>

/// limit_windows FILE.kvf: what a window on the album costs at the least, painted off the screen: a program of the same
/// toolkit that reads what the list shows and the first picture, and shows both. Prints when it began, on the machine's
/// clock, and the seconds of the work.
namespace
{

using namespace stemwright::bench;

constexpr int columns = 4;

class List : public QAbstractTableModel
{
public:
    explicit List(const Database& database)
    {
        const Statement select =
            Prepare(database, "SELECT PicId, PictureDate, Place, Title FROM AlbumTOC ORDER BY +PicId");
        while (sqlite3_step(select.get()) == SQLITE_ROW) {
            for (int column = 0; column < columns; ++column) {
                m_cells.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(select.get(), column)));
            }
        }
    }

    int rowCount(const QModelIndex&) const override { return static_cast<int>(m_cells.size()) / columns; }

    int columnCount(const QModelIndex&) const override { return columns; }

    QVariant data(const QModelIndex& index, int role) const override
    {
        const auto cell = static_cast<std::size_t>(index.row() * columns + index.column());
        return role == Qt::DisplayRole ? QVariant(QString::fromStdString(m_cells[cell])) : QVariant();
    }

private:
    std::vector<std::string> m_cells;
};

QPixmap FirstPicture(const Database& database)
{
    const Statement select = Prepare(database, "SELECT Picture FROM AlbumTOC ORDER BY PicId LIMIT 1");
    QPixmap picture;
    if (sqlite3_step(select.get()) == SQLITE_ROW) {
        picture.loadFromData(static_cast<const uchar*>(sqlite3_column_blob(select.get(), 0)),
                             static_cast<uint>(sqlite3_column_bytes(select.get(), 0)));
    }
    return picture;
}

} // namespace

int main(int argc, char** argv)
{
    const double began = Now();
    const QApplication application(argc, argv);
    const Stopwatch watch;
    try {
        const Database database = Open(argc == 2 ? argv[1] : "", SQLITE_OPEN_READONLY);
        List list(database);
        QMainWindow window;
        auto* halves = new QSplitter(Qt::Vertical);
        auto* grid = new QTableView;
        grid->setModel(&list);
        auto* picture = new QLabel;
        picture->setPixmap(FirstPicture(database));
        halves->addWidget(grid);
        halves->addWidget(picture);
        window.setCentralWidget(halves);
        window.resize(1100, 760);
        window.show();
        QApplication::processEvents();
        std::printf("%.6f %.6f\n", began, watch.seconds());
        return 0;
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "limit_windows: %s\n", exception.what());
        return 1;
    }
}
