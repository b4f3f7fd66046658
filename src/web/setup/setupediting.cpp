// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/setupediting.h"

#include "album/modblob.h"
#include "base/error.h"
#include "store/engine/engineerror.h"
#include "web/setup/backgroundstyles.h"
#include "web/setup/itemselection.h"
#include "web/setup/setupmessages.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMimeDatabase>

namespace stemwright
{

namespace
{

/// The kind of an image file. Throws Error for anything that a browser could not show as an image.
QMimeType ImageTypeOf(const QString& path)
{
    const QString shown = QDir::toNativeSeparators(path);
    if (!QFileInfo(path).isFile()) {
        throw Error(QStringLiteral("There is no image file %1.").arg(shown));
    }
    QMimeType type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchContent);
    if (!type.name().startsWith(QStringLiteral("image/"))) {
        throw Error(QStringLiteral("File %1 is not an image.").arg(shown));
    }
    return type;
}

void RequireStyle(const SetupColumn& column, const std::variant<int, QString>& value,
                  const ApplicationFolder& application)
{
    const int* style = std::get_if<int>(&value);
    if (column.name == QStringLiteral("PageStyle") && *style >= BackgroundStyles(application).size()) {
        throw Error(QStringLiteral("%1: there is no background style with number %2.").arg(column.name).arg(*style));
    }
}

} // namespace

SetupEditing::SetupEditing(Connection& connection, Environment& environment, const QString& setupName)
    : m_connection(connection), m_environment(environment), m_row(RequireSetup(connection, setupName)),
      m_changes(connection, {SetupKind().table, QStringLiteral("TreeHeads"), QStringLiteral("SelectedItems")}),
      m_trees(connection, environment, m_changes, m_row.name)
{
}

Setup SetupEditing::setup() const
{
    return LoadSetup(m_connection, m_row.name).value();
}

void SetupEditing::set(const QString& columnName, const QString& typed)
{
    const SetupColumn& column = SetupColumnNamed(columnName);
    const std::variant<int, QString> value = ParseSetting(column, typed);
    RequireStyle(column, value, m_environment.application);
    m_changes.make([&] {
        if (column.kind != SettingKind::Image) {
            write(column, value);
        } else if (typed.isEmpty()) {
            removeEmblem();
        } else {
            storeEmblem(typed);
        }
    });
}

void SetupEditing::setItems(const std::vector<SelectedItem>& items)
{
    m_changes.make([&] { WriteSelectedItems(m_connection, m_row.name, items); });
}

void SetupEditing::write(const SetupColumn& column, const std::variant<int, QString>& value)
{
    Statement statement =
        m_connection.prepare(QStringLiteral("UPDATE WebSiteInfo SET \"%1\" = ?1 WHERE rowid = ?2").arg(column.name));
    std::visit([&statement](const auto& bound) { statement.bind(1, bound); }, value);
    statement.bind(2, m_row.row).run();
}

void SetupEditing::storeEmblem(const QString& path)
{
    const QMimeType type = ImageTypeOf(path);
    const QString suffix = QFileInfo(path).suffix();
    Transaction transaction(m_connection);
    LoadFileIntoField(m_connection, path, {QStringLiteral("WebSiteInfo"), QStringLiteral("EmblemPicture"), m_row.row});
    const bool fits = type.suffixes().contains(suffix, Qt::CaseInsensitive);
    const SetupColumn& typeColumn = SetupColumnNamed(QStringLiteral("EmblemFiletype"));
    write(typeColumn, ParseSetting(typeColumn, fits ? suffix : type.preferredSuffix()));
    transaction.commit();
}

void SetupEditing::removeEmblem()
{
    Statement statement = m_connection.prepare(
        QStringLiteral("UPDATE WebSiteInfo SET EmblemPicture = NULL, EmblemFiletype = NULL WHERE rowid = ?1"));
    statement.bind(1, m_row.row).run();
}

QByteArray SetupEditing::emblem() const
{
    Statement statement =
        m_connection.prepare(QStringLiteral("SELECT EmblemPicture FROM WebSiteInfo WHERE rowid = ?1"));
    statement.bind(1, m_row.row).step();
    return statement.bytes(0);
}

QString SetupEditing::settingText(const SetupColumn& column) const
{
    const QString expression =
        column.kind == SettingKind::Image ? QStringLiteral("length(\"%1\")") : QStringLiteral("\"%1\"");
    Statement statement = m_connection.prepare(
        QStringLiteral("SELECT %1 FROM WebSiteInfo WHERE rowid = ?1").arg(expression.arg(column.name)));
    statement.bind(1, m_row.row).step();
    switch (column.kind) {
    case SettingKind::Image:
        return statement.isNull(0) ? QString() : QStringLiteral("(%1 bytes)").arg(statement.integer64(0));
    case SettingKind::Colour:
        return QStringLiteral("#%1").arg(statement.integer(0), 6, 16, QChar(u'0')).toUpper();
    case SettingKind::YesNo:
    case SettingKind::Switch:
        return statement.integer(0) != 0 ? QStringLiteral("1") : QStringLiteral("0");
    default:
        return statement.text(0);
    }
}

bool SetupEditing::leavePage(WizardPage page)
{
    if (page == WizardPage::DisplayOptions && m_trees.edited() && !m_trees.apply()) {
        return false;
    }
    if (const std::optional<Message> failure = CheckWizardPage(setup(), page)) {
        m_environment.talk.tell(*failure);
        return false;
    }
    return true;
}

std::optional<Message> SetupEditing::obstacle() const
{
    Setup complete = setup();
    if (const std::optional<TreeDefinition>& edited = m_trees.edited()) {
        const auto isEdited = [&edited](const TreeDefinition& tree) { return tree.number == edited->number; };
        std::replace_if(complete.trees.begin(), complete.trees.end(), isEdited, *edited);
    }
    return CheckSetup(complete);
}

bool SetupEditing::save()
{
    try {
        m_trees.keep();
    } catch (const std::exception& exception) {
        m_environment.talk.tell(setupmessages::SetupFailed(ReasonText(exception)));
        return false;
    }
    return m_changes.save(m_environment.talk, setupmessages::SetupFailed);
}

bool SetupEditing::cancel()
{
    return !edited() || m_changes.cancel(m_environment.talk, setupmessages::LoseChanges());
}

void SetupEditing::saveAndRun(const std::function<void()>& procedure)
{
    if (!save()) {
        return;
    }
    try {
        procedure();
    } catch (const std::exception& exception) {
        m_environment.talk.tell(setupmessages::SetupFailed(ReasonText(exception)));
    }
}

} // namespace stemwright
