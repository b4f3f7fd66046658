// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/backgroundstyles.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

bool IsStyle(const QDir& folder)
{
    const auto isThere = [&folder](const char* page) { return folder.exists(QLatin1StringView(page)); };
    constexpr const char* pages[] = {"tree.html", "left.html", "topright.html", "bottom.html", "main.html"};
    return std::all_of(std::begin(pages), std::end(pages), isThere);
}

QString StyleName(int pageStyle, const ApplicationFolder& application)
{
    const QStringList styles = BackgroundStyles(application);
    return styles.value(pageStyle, styles.constFirst());
}

} // namespace

QStringList BackgroundStyles(const ApplicationFolder& application)
{
    QStringList styles = {QStringLiteral("OldBook"), QStringLiteral("Memories")};
    const QDir folder(application.file(QStringLiteral("BgStyles")));
    for (const QString& name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        if (!styles.contains(name) && IsStyle(QDir(folder.filePath(name)))) {
            styles << name;
        }
    }
    return styles;
}

QString StyleFolder(int pageStyle, const ApplicationFolder& application)
{
    return application.file(QStringLiteral("BgStyles/") + StyleName(pageStyle, application));
}

std::optional<QString> StyleSample(int pageStyle, const ApplicationFolder& application)
{
    const QString page = application.file(QStringLiteral("BgDemo/%1/tree.html").arg(StyleName(pageStyle, application)));
    return QFileInfo::exists(page) ? std::optional(page) : std::nullopt;
}

} // namespace stemwright
