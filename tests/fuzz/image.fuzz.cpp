// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/thumbnail.h"
#include "base/error.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLoggingCategory>

#include <cstdlib>

/// Any bytes as a picture file, made into a thumbnail. An Error is an answer; a thumbnail that does not fit its box is
/// a fault.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static int count = 1;
    static char name[] = "fuzz_image";
    static char* arguments[] = {name, nullptr};
    static const QCoreApplication findsTheImagePlugins(count, arguments);
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio.*=false"));
    try {
        const stemwright::ImageFile image(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
        const QSize thumbnail = QImage::fromData(stemwright::MakeThumbnail(image), "BMP").size();
        if (thumbnail != stemwright::ThumbnailSize(image.size())) {
            std::abort();
        }
    } catch (const stemwright::Error&) {
        return 0;
    }
    return 0;
}
