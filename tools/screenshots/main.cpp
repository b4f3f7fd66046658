// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/dialogtalk.h"
#include "base/error.h"
#include "store/tables/createtables.h"
#include "tour.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QLoggingCategory>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>

#include <cstdio>

/// stemwright-screenshots: takes a picture of each window of the program, without a display. The sample family is what
/// they show, and nothing of the machine: neither its settings nor its clock, fonts and colours.
namespace stemwright::screenshots
{

namespace
{

struct Wishes {
    QString output = QStringLiteral(".");
    QString family;
    QString scale = QStringLiteral("1");
    QSize size{1024, 700};
    int points = 9;
    bool dark = false;
};

Wishes WishesOf(const QStringList& arguments)
{
    const QCommandLineOption output(QStringLiteral("output"), QStringLiteral("Where the pictures go"),
                                    QStringLiteral("FOLDER"), QStringLiteral("."));
    const QCommandLineOption family(QStringLiteral("family"), QStringLiteral("A family file instead of the sample"),
                                    QStringLiteral("FILE"));
    const QCommandLineOption scale(QStringLiteral("scale"), QStringLiteral("Pixels of the picture for each pixel"),
                                   QStringLiteral("FACTOR"), QStringLiteral("1"));
    const QCommandLineOption size(QStringLiteral("size"), QStringLiteral("The main window's size"),
                                  QStringLiteral("WIDTHxHEIGHT"), QStringLiteral("1024x700"));
    const QCommandLineOption points(QStringLiteral("font-size"), QStringLiteral("The size of letters"),
                                    QStringLiteral("POINTS"), QStringLiteral("9"));
    const QCommandLineOption dark(QStringLiteral("dark"), QStringLiteral("Light text on dark ground"));
    QCommandLineParser parser;
    parser.addOptions({output, family, scale, size, points, dark});
    if (!parser.parse(arguments)) {
        throw Error(parser.errorText());
    }
    const QStringList sides = parser.value(size).split(u'x');
    return {parser.value(output),         parser.value(family),
            parser.value(scale),          QSize(sides.value(0).toInt(), sides.value(1).toInt()),
            parser.value(points).toInt(), parser.isSet(dark)};
}

QPalette DarkPalette()
{
    QPalette palette(QColor(53, 53, 53), QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    palette.setColor(QPalette::ToolTipBase, QColor(35, 35, 35));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::BrightText, QPalette::HighlightedText}) {
        palette.setColor(role, Qt::white);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(140, 140, 140));
    }
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    return palette;
}

/// Gives the family file names as an old album leaves them, on a picture of the children in the snow.
void AddOldNames(const QString& familyFile)
{
    Connection connection(familyFile, OpenMode::ReadWrite);
    CreatePreV2IndiTable(connection);
    CreatePreV2Pic2PersonTable(connection);
    connection.execute(QStringLiteral(
        "INSERT INTO PreV2Indi (Name) VALUES ('Whiskerton, H'), ('the snowman'), ('Whiskerton, Tobias'), "
        "('Whiskerton, Clementine'), ('Rufus'), ('Old Grimalkin');"
        "INSERT INTO PreV2Pic2Person (PicId, PersId, X, Y) VALUES (7, 1, '446', '425'), (7, 2, '223', '375'), "
        "(7, 3, '580', '380'), (5, 3, '122', '230'), (7, 4, '705', '435'), (5, 4, '250', '243'), (8, 4, '345', '185'), "
        "(7, 5, '115', '470'), (1, 6, '436', '337')"));
}

/// Lets the trees that have no head yet begin at somebody with a family: without a head no pages are built.
void AddTreeHeads(const QString& familyFile)
{
    Connection connection(familyFile, OpenMode::ReadWrite);
    connection.execute(QStringLiteral(
        "UPDATE TreeHeads SET (TreeHeadId, TreeHeadName) = (SELECT Id, GivenName || ' ' || Surname FROM Indi "
        "WHERE Id IN (SELECT SpouseId FROM Spouse2Fam) ORDER BY Id LIMIT 1) WHERE TreeHeadId IS NULL"));
}

int Run(const Wishes& wishes)
{
    const QTemporaryDir folder;
    const ApplicationFolder application = ApplicationFolder::ofProgram();
    const QString file = folder.filePath(QStringLiteral("Whiskerton.kvf"));
    const QString tree = folder.filePath(QStringLiteral("felinity.ged"));
    if (!folder.isValid() || !QDir().mkpath(wishes.output) ||
        !QFile::copy(wishes.family.isEmpty() ? application.sampleFile() : wishes.family, file) ||
        !QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner) ||
        !QFile::copy(QStringLiteral(STEMWRIGHT_SAMPLES "/felinity.ged"), tree)) {
        throw Error(QStringLiteral("The family file cannot be copied to %1").arg(folder.path()));
    }
    AddOldNames(file);
    AddTreeHeads(file);
    MemorySettings settings;
    DialogTalk talk(settings);
    const FixedClock clock(QDateTime({2026, 5, 17}, {20, 15}));
    Environment environment{talk, settings, clock, application};
    Camera camera{QDir(wishes.output)};
    frmAlbum window(environment);
    window.resize(wishes.size);
    window.show();
    Tour tour(window, environment, camera, tree);
    tour.start();
    tour.album(file);
    return camera.failures() == 0 ? 0 : 1;
}

} // namespace

} // namespace stemwright::screenshots

int main(int argc, char** argv)
{
    using namespace stemwright::screenshots;
    try {
        QStringList arguments;
        for (int number = 0; number < argc; ++number) {
            arguments << QString::fromLocal8Bit(argv[number]);
        }
        const Wishes wishes = WishesOf(arguments);
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
            // A screen of a common size: message boxes are as wide as theirs allows.
            qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" STEMWRIGHT_SCREEN);
        }
        qputenv("QT_SCALE_FACTOR", wishes.scale.toUtf8());
        QApplication program(argc, argv);
        QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext=false"));
        QApplication::setApplicationName(QStringLiteral("Stemwright"));
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), wishes.points));
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        if (wishes.dark) {
            QApplication::setPalette(DarkPalette());
        }
        return Run(wishes);
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "screenshots: %s\n", qUtf8Printable(stemwright::ErrorText(exception)));
        return 2;
    }
}
