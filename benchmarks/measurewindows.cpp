// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/namelistpanel.h"
#include "app/frmalbum.h"
#include "quietdesk.h"
#include "stopwatch.h"

#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>

#include <cstdio>

/// measure_windows start | picker | next | sort FILE.kvf: the application's own windows, painted off the screen.
/// `start` opens the main window on the file; the others do a thing again and again, each time until the window is
/// painted, and tell the slowest but one in a hundred. Each prints when it began, on the machine's clock, and those
/// seconds.
namespace
{

using namespace stemwright;
using bench::Stopwatch;

class Times
{
public:
    /// Does something and waits until all of it is painted.
    template <typename Action>
    void measure(Action action)
    {
        const Stopwatch watch;
        action();
        QApplication::processEvents();
        m_times.push_back(watch.seconds());
    }

    double percentile99()
    {
        std::sort(m_times.begin(), m_times.end());
        return m_times.at(m_times.size() * 99 / 100);
    }

private:
    std::vector<double> m_times;
};

template <typename Control>
Control& Named(const QObject& window, const char* name)
{
    auto* control = window.findChild<Control*>(QLatin1StringView(name));
    if (control == nullptr) {
        throw Error(QStringLiteral("There is no %1.").arg(QLatin1StringView(name)));
    }
    return *control;
}

/// Types the names of many people into the person picker.
double TypeNames(bench::QuietDesk& desk, const QString& path)
{
    constexpr std::size_t people = 40;
    FamilyFile file;
    std::optional<NameIndex> index;
    if (!OpenFamilyFile(file, path, desk.environment) || !OpenNameIndex(index, file.connection())) {
        throw Error(QStringLiteral("The family file holds nobody."));
    }
    NameListPanel panel(*index, "dtgPeople",
                        {{NameColumn::PersonId, QStringLiteral("Person ID")},
                         {NameColumn::Name, QStringLiteral("Name")},
                         {NameColumn::BirthDate, QStringLiteral("Birth Date")},
                         {NameColumn::DeathDate, QStringLiteral("Death Date")}},
                        HeaderClicks::Sort, desk.talk);
    panel.resize(680, 480);
    panel.show();
    QApplication::processEvents();
    auto& box = Named<QLineEdit>(panel, "txtName");
    Times times;
    for (std::size_t person = 0; person < people; ++person) {
        const QString name = index->fullName(index->rowAt(person * index->size() / people)).simplified();
        for (qsizetype length = 1; length <= name.size(); ++length) {
            times.measure([&] { box.setText(name.left(length)); });
        }
    }
    return times.percentile99();
}

double LeafThrough(const frmAlbum& window)
{
    constexpr int pictures = 300;
    auto& next = Named<QAction>(window, "next");
    Times times;
    for (int picture = 0; picture < pictures; ++picture) {
        times.measure([&next] { next.trigger(); });
    }
    return times.percentile99();
}

double SortAll(const frmAlbum& window)
{
    constexpr int rounds = 20;
    auto& grid = Named<QTableView>(window, "dtgTOC");
    Times times;
    for (int round = 0; round < rounds; ++round) {
        for (int column = 0; column < grid.model()->columnCount(); ++column) {
            times.measure([&grid, column] { Q_EMIT grid.horizontalHeader()->sectionClicked(column); });
        }
    }
    return times.percentile99();
}

double Measure(const QString& work, const QString& path)
{
    bench::QuietDesk desk;
    if (work == QStringLiteral("picker")) {
        return TypeNames(desk, path);
    }
    const Stopwatch watch;
    frmAlbum window(desk.environment);
    window.show();
    window.start(path);
    QApplication::processEvents();
    const double started = watch.seconds();
    return work == QStringLiteral("next")   ? LeafThrough(window)
           : work == QStringLiteral("sort") ? SortAll(window)
                                            : started;
}

} // namespace

int main(int argc, char** argv)
{
    const double began = bench::Now();
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    try {
        if (arguments.size() != 3) {
            std::fputs("Usage: measure_windows start | picker | next | sort FILE.kvf\n", stderr);
            return 2;
        }
        const double seconds = Measure(arguments[1], arguments[2]);
        std::printf("%.6f %.6f\n", began, seconds);
        return 0;
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "measure_windows: %s\n", qPrintable(ErrorText(exception)));
        return 1;
    }
}
