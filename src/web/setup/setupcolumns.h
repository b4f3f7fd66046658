// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/setup/setupchecks.h"

#include <QtCore/QString>

#include <variant>
#include <vector>

/// The columns of a setup that its author sets, as data: what each holds, within which limits, and on which page of the
/// wizard it stands. Stands on setupchecks.h.
namespace stemwright
{

enum class SettingKind {
    /// At most 255 characters.
    Text,
    Memo,
    /// 0 or -1.
    YesNo,
    /// 0 or 1 in an integer column.
    Switch,
    Number,
    /// A number of the form RRGGBB.
    Colour,
    Folder,
    /// A file name extension without the dot.
    FileType,
    /// An image file, whose bytes are stored.
    Image
};

struct SetupColumn {
    QString name;
    SettingKind kind;
    WizardPage page;
    /// The limits of a number.
    int lowest = 0;
    int highest = 0;
    /// Of a typed text: what the wizard calls it, for the beginning of a sentence.
    QString inWords = {};
};

/// In the order of the table WebSiteInfo, without the setup's name.
const std::vector<SetupColumn>& SetupColumns();

/// The column with this name, without regard to case. Throws Error, which lists the columns, when there is none.
const SetupColumn& SetupColumnNamed(const QString& name);

/// What a typed text means for a column: a number, or the text to store (an image's is its path). Yes/no values are 0,
/// 1, -1, yes, no, true or false; colours are numbers, 0xRRGGBB or #RRGGBB; a folder has a full path, which may begin
/// with ~ for the home folder. Throws Error
/// for what the column cannot hold.
std::variant<int, QString> ParseSetting(const SetupColumn& column, const QString& typed);

} // namespace stemwright
