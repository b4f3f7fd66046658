// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/setupcolumns.h"

#include "base/error.h"
#include "store/file/typedvalues.h"

#include <QtCore/QDir>
#include <QtCore/QStringList>

#include <limits>

namespace stemwright
{

namespace
{

/// The run settings are 16-bit numbers.
constexpr int largestRunSetting = std::numeric_limits<qint16>::max();
constexpr int largestColour = 0xFFFFFF;

std::vector<SetupColumn> MakeSetupColumns()
{
    using enum SettingKind;
    using enum WizardPage;
    return {
        {QStringLiteral("SiteTitle"), Text, FirstPage, 0, 0, QStringLiteral("The site title")},
        {QStringLiteral("TitleStory"), Memo, FirstPage},
        {QStringLiteral("HomePageName"), Text, Step1, 0, 0, QStringLiteral("The homepage filename")},
        {QStringLiteral("Standalone"), YesNo, Step1},
        {QStringLiteral("PersPages"), Switch, General},
        {QStringLiteral("PageStyle"), Number, DisplayOptions, 0, largestRunSetting},
        {QStringLiteral("CellFg"), Colour, DisplayOptions},
        {QStringLiteral("CellBg"), Colour, DisplayOptions},
        {QStringLiteral("MaxGenOnPage"), Number, General, 0, largestRunSetting},
        {QStringLiteral("MaxTotalGens"), Number, General, 1, largestRunSetting},
        {QStringLiteral("MaxPrivacyAge"), Number, General, 0, largestRunSetting},
        {QStringLiteral("HideLiving"), Switch, General},
        {QStringLiteral("WebPageFolder"), Folder, Step2, 0, 0, QStringLiteral("The output folder")},
        {QStringLiteral("EmblemFiletype"), FileType, FirstPage, 0, 0, QStringLiteral("The emblem's file type")},
        {QStringLiteral("EmblemPicture"), Image, FirstPage},
        {QStringLiteral("Pictures4ThisTreeOnly"), YesNo, General},
    };
}

int ParseColour(const SetupColumn& column, const QString& typed)
{
    constexpr int hexadecimalDigits = 6;
    const QString text = typed.trimmed();
    bool isColour = false;
    int colour = 0;
    if (text.startsWith(u'#')) {
        colour = text.mid(1).toInt(&isColour, 16);
        isColour = isColour && text.size() == 1 + hexadecimalDigits;
    } else {
        const bool isHexadecimal = text.startsWith(QStringLiteral("0x"), Qt::CaseInsensitive);
        colour = text.toInt(&isColour, isHexadecimal ? 16 : 10);
    }
    if (!isColour || colour < 0 || colour > largestColour) {
        throw Error(QStringLiteral("%1 must be a colour such as #C0C0C0, 0xC0C0C0 or 12632256, not \"%2\".")
                        .arg(column.name, typed));
    }
    return colour;
}

/// Whether a path of an earlier release, which ran on Windows, is a full one.
bool IsFullWindowsPath(const QString& path)
{
    return path.startsWith(QStringLiteral("\\\\")) || (path.size() > 2 && path[1] == u':' && path[2] == u'\\');
}

QString ParseFolder(const SetupColumn& column, const QString& typed)
{
    if (typed.trimmed().isEmpty()) {
        throw Error(QStringLiteral("%1 cannot be empty.").arg(column.inWords));
    }
    if (IsFullWindowsPath(typed)) {
        return ParseTypedText(column.inWords, typed);
    }
    const bool inHome = typed == QStringLiteral("~") || typed.startsWith(QStringLiteral("~/"));
    const QString path = inHome ? QDir::homePath() + typed.mid(1) : typed;
    if (QDir::isRelativePath(path)) {
        throw Error(QStringLiteral("%1 must be named with its full path, such as %2, not \"%3\".")
                        .arg(column.inWords, QDir::toNativeSeparators(QDir::home().filePath(path)), typed));
    }
    return ParseTypedText(column.inWords, QDir::cleanPath(path));
}

QString ParseFileType(const SetupColumn& column, const QString& typed)
{
    const auto isPlain = [](QChar character) { return character.isLetterOrNumber() && character < QChar(0x80); };
    if (!std::all_of(typed.begin(), typed.end(), isPlain)) {
        throw Error(QStringLiteral("%1 must be a file name extension such as gif, without the dot, not \"%2\".")
                        .arg(column.inWords, typed));
    }
    return ParseTypedText(column.inWords, typed);
}

} // namespace

const std::vector<SetupColumn>& SetupColumns()
{
    static const std::vector<SetupColumn> columns = MakeSetupColumns();
    return columns;
}

const SetupColumn& SetupColumnNamed(const QString& name)
{
    QStringList names;
    for (const SetupColumn& column : SetupColumns()) {
        if (column.name.compare(name, Qt::CaseInsensitive) == 0) {
            return column;
        }
        names << column.name;
    }
    throw Error(QStringLiteral("A setup has no column named \"%1\" that can be set. Its columns are %2.")
                    .arg(name, names.join(QStringLiteral(", "))));
}

std::variant<int, QString> ParseSetting(const SetupColumn& column, const QString& typed)
{
    switch (column.kind) {
    case SettingKind::YesNo:
        return ParseTypedYesNo(column.name, typed) ? -1 : 0;
    case SettingKind::Switch:
        return ParseTypedYesNo(column.name, typed) ? 1 : 0;
    case SettingKind::Number:
        return ParseTypedNumber(column.name, typed, column.lowest, column.highest);
    case SettingKind::Colour:
        return ParseColour(column, typed);
    case SettingKind::Folder:
        return ParseFolder(column, typed);
    case SettingKind::FileType:
        return ParseFileType(column, typed);
    case SettingKind::Text:
        return ParseTypedText(column.inWords, typed);
    case SettingKind::Memo:
    case SettingKind::Image:
        break;
    }
    return typed;
}

} // namespace stemwright
