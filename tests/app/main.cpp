// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/application.h"
#include "app/dialogtalk.h"

#include <QtCore/QLoggingCategory>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    stemwright::Application application(argc, argv);
    const stemwright::MemorySettings settings;
    stemwright::DialogTalk talk(settings);
    application.tellThrough(talk);
    QCoreApplication::setApplicationName(QStringLiteral("Stemwright"));
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio.*=false\nqt.webenginecontext=false"));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
