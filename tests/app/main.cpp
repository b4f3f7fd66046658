// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include <QtCore/QLoggingCategory>
#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Stemwright"));
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio.*=false"));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
