// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/sitelinks.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

namespace stemwright::test
{

namespace
{

QStringList Captured(const QString& page, const QString& pattern)
{
    const QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
    QStringList found;
    auto matches = expression.globalMatch(page);
    while (matches.hasNext()) {
        found << matches.next().captured(1);
    }
    return found;
}

} // namespace

QStringList DeadLinks(const std::map<QString, std::string>& files)
{
    std::map<QString, QSet<QString>> anchors;
    QStringList dead;
    for (const auto& [name, bytes] : files) {
        const QStringList names =
            Captured(QString::fromLatin1(bytes), QStringLiteral("<A (?:NAME|ID) ?= ?[\"']([^\"']*)[\"']"));
        anchors[name] = QSet<QString>(names.begin(), names.end());
    }
    for (const auto& [name, bytes] : files) {
        if (!name.endsWith(QStringLiteral(".html"))) {
            continue;
        }
        // A script that puts a target together from pieces is not followed.
        const QString pattern = QStringLiteral("(?:HREF|SRC|BACKGROUND) ?= ?[\"']([^\"'$]*)[\"'](?! \\+)");
        for (const QString& target : Captured(QString::fromLatin1(bytes), pattern)) {
            const QString file = target.section(u'#', 0, 0);
            const QString anchor = target.section(u'#', 1);
            const bool isOutside =
                target.startsWith(QStringLiteral("http")) || target.startsWith(QStringLiteral("mailto:"));
            if (!isOutside && (files.count(file) == 0 || (!anchor.isEmpty() && !anchors[file].contains(anchor)))) {
                dead << name + QStringLiteral(": ") + target;
            }
        }
    }
    return dead;
}

} // namespace stemwright::test
