// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setupcolumns.h"

#include "base/error.h"
#include "store/engine/schema.h"

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
constexpr int lastBackgroundStyle = 1;

std::vector<SetupColumn> MakeSetupColumns()
{
    using enum SettingKind;
    using enum WizardPage;
    return {
        {QStringLiteral("SiteTitle"), Text, FirstPage},
        {QStringLiteral("TitleStory"), Memo, FirstPage},
        {QStringLiteral("HomePageName"), Text, Step1},
        {QStringLiteral("Standalone"), YesNo, Step1},
        {QStringLiteral("PersPages"), Switch, General},
        {QStringLiteral("PageStyle"), Number, DisplayOptions, 0, lastBackgroundStyle},
        {QStringLiteral("CellFg"), Colour, DisplayOptions},
        {QStringLiteral("CellBg"), Colour, DisplayOptions},
        {QStringLiteral("MaxGenOnPage"), Number, General, 0, largestRunSetting},
        {QStringLiteral("MaxTotalGens"), Number, General, 1, largestRunSetting},
        {QStringLiteral("MaxPrivacyAge"), Number, General, 0, largestRunSetting},
        {QStringLiteral("HideLiving"), Switch, General},
        {QStringLiteral("WebPageFolder"), Folder, Step2},
        {QStringLiteral("EmblemFiletype"), FileType, FirstPage},
        {QStringLiteral("EmblemPicture"), Image, FirstPage},
        {QStringLiteral("Pictures4ThisTreeOnly"), YesNo, General},
    };
}

int ParseNumber(const SetupColumn& column, const QString& typed)
{
    bool isNumber = false;
    const int number = typed.trimmed().toInt(&isNumber);
    if (!isNumber || number < column.lowest || number > column.highest) {
        throw Error(QStringLiteral("%1 must be a whole number from %2 to %3, not \"%4\".")
                        .arg(column.name)
                        .arg(column.lowest)
                        .arg(column.highest)
                        .arg(typed));
    }
    return number;
}

bool ParseYesNo(const SetupColumn& column, const QString& typed)
{
    const QString word = typed.trimmed().toLower();
    const QStringList yes = {QStringLiteral("1"), QStringLiteral("-1"), QStringLiteral("yes"), QStringLiteral("true")};
    const QStringList no = {QStringLiteral("0"), QStringLiteral("no"), QStringLiteral("false")};
    if (!yes.contains(word) && !no.contains(word)) {
        throw Error(QStringLiteral("%1 must be yes or no (1 or 0), not \"%2\".").arg(column.name, typed));
    }
    return yes.contains(word);
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

QString ParseText(const SetupColumn& column, const QString& typed)
{
    if (typed.size() > maxTextLength) {
        throw Error(QStringLiteral("%1 can hold %2 characters, but the text has %3.")
                        .arg(column.name)
                        .arg(maxTextLength)
                        .arg(typed.size()));
    }
    return typed;
}

/// Whether a path of an earlier release, which ran on Windows, is a full one.
bool IsFullWindowsPath(const QString& path)
{
    return path.startsWith(QStringLiteral("\\\\")) || (path.size() > 2 && path[1] == u':' && path[2] == u'\\');
}

QString ParseFolder(const SetupColumn& column, const QString& typed)
{
    if (typed.trimmed().isEmpty()) {
        throw Error(QStringLiteral("%1 must name the folder for the pages; it cannot be empty.").arg(column.name));
    }
    return ParseText(column, IsFullWindowsPath(typed) ? typed : QDir::cleanPath(QDir(typed).absolutePath()));
}

QString ParseFileType(const SetupColumn& column, const QString& typed)
{
    const auto isPlain = [](QChar character) { return character.isLetterOrNumber() && character < QChar(0x80); };
    if (!std::all_of(typed.begin(), typed.end(), isPlain)) {
        throw Error(QStringLiteral("%1 must be a file name extension such as gif, without the dot, not \"%2\".")
                        .arg(column.name, typed));
    }
    return ParseText(column, typed);
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
        return ParseYesNo(column, typed) ? -1 : 0;
    case SettingKind::Switch:
        return ParseYesNo(column, typed) ? 1 : 0;
    case SettingKind::Number:
        return ParseNumber(column, typed);
    case SettingKind::Colour:
        return ParseColour(column, typed);
    case SettingKind::Folder:
        return ParseFolder(column, typed);
    case SettingKind::FileType:
        return ParseFileType(column, typed);
    case SettingKind::Text:
        return ParseText(column, typed);
    case SettingKind::Memo:
    case SettingKind::Image:
        break;
    }
    return typed;
}

} // namespace stemwright
