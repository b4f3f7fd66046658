// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "base/files.h"
#include "oldalbumgenerator.h"

#include <QtCore/QCoreApplication>

#include <cstdio>

/// stemwright-generate-oldalbum OLD.mdb PICTURES PERSONS
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int pictures = arguments.value(2).toInt();
    const int persons = arguments.value(3).toInt();
    if (arguments.size() != 4 || pictures < 1 || persons < 0) {
        std::fputs("Usage: stemwright-generate-oldalbum OLD.mdb PICTURES PERSONS\n", stderr);
        return 2;
    }
    try {
        stemwright::WriteWholeFile(arguments[1], stemwright::bench::GenerateOldAlbum(
                                                     QStringLiteral(STEMWRIGHT_OLD_ALBUM), {pictures, persons}));
        return 0;
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "stemwright-generate-oldalbum: %s\n", qPrintable(stemwright::ErrorText(exception)));
        return 1;
    }
}
