// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/application.h"
#include "app/common/dialogtalk.h"

#include <QtCore/QLoggingCategory>

#include <gtest/gtest.h>

#ifdef __SANITIZE_ADDRESS__
// The browser engine, which is not built with the sanitizers, deletes objects as other types and keeps some to its end.
extern "C" const char* __asan_default_options()
{
    return "new_delete_type_mismatch=0";
}

extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libQt6WebEngineCore\nleak:libfontconfig\n";
}
#endif

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
