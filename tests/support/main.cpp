// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include <QtCore/QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
