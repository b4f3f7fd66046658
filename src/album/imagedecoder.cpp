// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/imagedecoder.h"

#include "base/error.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibrary>

namespace stemwright
{

namespace
{

using EntryPoint = const ImageDecoder* (*)();

const ImageDecoder& Load()
{
    QLibrary library(QCoreApplication::applicationDirPath() +
                     QStringLiteral("/../lib/stemwright/libstemwright_imagedecoder"));
    const auto entry = reinterpret_cast<EntryPoint>(library.resolve("stemwrightImageDecoder"));
    if (entry == nullptr) {
        throw Error(
            QStringLiteral("Pictures cannot be read: %1. Please install Stemwright again.").arg(library.errorString()));
    }
    return *entry();
}

} // namespace

const ImageDecoder& LoadedImageDecoder()
{
    static const ImageDecoder& decoder = Load();
    return decoder;
}

} // namespace stemwright
