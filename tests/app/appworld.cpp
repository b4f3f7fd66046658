// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/appworld.h"

#include "album/testpictures.h"
#include "support/familybuilder.h"

#include <QtWidgets/QLabel>

namespace stemwright::test
{

namespace
{

constexpr double margin = 6;

} // namespace

QString AppTest::familyFile(int pictures)
{
    quit();
    Connection& connection = world.newFamilyFile().connection();
    FamilyBuilder builder(connection);
    builder.person(1, "Adam", "Root").person(2, "Eve", "Bough").person(3, "Abel", "Root").person(4, "Ida", "Root");
    builder.family(1, 1, 2, {3}).family(2, 3, 0, {4});
    for (int number = 1; number <= pictures; ++number) {
        builder.run(
            QString("INSERT INTO AlbumTOC (PicId, Title, Place, PictureDate, EncodPicDate, Rectangle, NamesLeft)"
                    " VALUES (%1, 'Picture %1', 'Haven', ' ' || (2000 - %1), (2000 - %1) || '00001', -1, -1)")
                .arg(number));
    }
    const QString path = world.file.path();
    world.file.close();
    return path;
}

QWidget& AppTest::start(const QString& file)
{
    m_window.reset();
    m_window = std::make_unique<frmAlbum>(environment);
    m_window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    m_window->start(file);
    return *m_window;
}

QString AppTest::picture(const QString& name, QSize size)
{
    return world.write(name, JpegOf(CornersPicture(size)));
}

QStringList AppTest::stored(const QString& sql)
{
    quit();
    Connection connection(world.settings.value(setting::openCreateFamFile, setting::lastFamilyFile),
                          OpenMode::ReadWrite);
    return Rows(connection, sql);
}

void AppTest::key(QKeyCombination key)
{
    m_window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    QTest::keyClick(m_window->focusWidget(), key.key(), key.keyboardModifiers());
}

QString AppTest::position()
{
    return Find<QLabel>(*m_window, "lblPosition").text();
}

double ScaleIn(const QWidget& view, QSize picture)
{
    return std::min(
        {(view.width() - 2 * margin) / picture.width(), (view.height() - 2 * margin) / picture.height(), 2.});
}

QPointF InView(const QWidget& view, QSize picture, QPointF place)
{
    const QSizeF shown = QSizeF(picture) * ScaleIn(view, picture);
    return QPointF((view.width() - shown.width()) / 2, (view.height() - shown.height()) / 2) +
           place * ScaleIn(view, picture);
}

void AppTest::Drag(QWidget& view, QSize picture, QPointF from, QPointF to)
{
    QTest::mousePress(&view, Qt::LeftButton, {}, InView(view, picture, from).toPoint());
    QTest::mouseMove(&view, InView(view, picture, (from + to) / 2).toPoint());
    QTest::mouseMove(&view, InView(view, picture, to).toPoint());
    QTest::mouseRelease(&view, Qt::LeftButton, {}, InView(view, picture, to).toPoint());
}

} // namespace stemwright::test
