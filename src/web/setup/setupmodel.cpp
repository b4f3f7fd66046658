// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/setupmodel.h"

#include "base/error.h"
#include "store/engine/engineerror.h"
#include "web/setup/itemcatalogue.h"
#include "web/setup/setupediting.h"
#include "web/setup/setupmessages.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace stemwright
{

namespace
{

const QString documentName = QStringLiteral("newsetups.json");
const QString columnsKey = QStringLiteral("columns");
const QString itemsKey = QStringLiteral("items");
const QString emblemKey = QStringLiteral("emblem");

bool IsOfModel(const SetupColumn& column)
{
    return column.kind != SettingKind::Folder && column.kind != SettingKind::Image;
}

/// A line that tells a damaged document from a whole one.
QByteArray CheckLine(const QByteArray& content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex() + '\n';
}

QByteArray Written(const SetupEditing& editing)
{
    QJsonObject columns;
    for (const SetupColumn& column : SetupColumns()) {
        if (IsOfModel(column)) {
            columns.insert(column.name, editing.settingText(column));
        }
    }
    QJsonArray items;
    for (const SelectedItem& item : editing.setup().items) {
        items.append(item.toRecord());
    }
    const QJsonObject model = {
        {columnsKey, columns}, {itemsKey, items}, {emblemKey, QString::fromLatin1(editing.emblem().toBase64())}};
    const QByteArray content = QJsonDocument(model).toJson();
    return CheckLine(content) + content;
}

/// Empty when there is no model, or none that is whole.
QJsonObject Read(const Settings& settings)
{
    const QByteArray document = settings.document(documentName);
    const QByteArray content = document.mid(document.indexOf('\n') + 1);
    return document.startsWith(CheckLine(content)) ? QJsonDocument::fromJson(content).object() : QJsonObject();
}

/// The model's items as this family file has them.
std::vector<SelectedItem> ItemsHere(Connection& connection, const QJsonArray& records)
{
    std::vector<SelectedItem> catalogue = LoadItemCatalogue(connection);
    std::vector<SelectedItem> items;
    for (const QJsonValue& record : records) {
        SelectedItem item = SelectedItem::fromRecord(record.toString());
        const auto found = std::find_if(catalogue.begin(), catalogue.end(), [&item](const SelectedItem& offered) {
            return offered.name == item.name && offered.table == item.table && offered.kind == item.kind;
        });
        if (found != catalogue.end() && !item.name.isEmpty()) {
            item.source = found->source;
            items.push_back(std::move(item));
            // Two facts can have the same name, but none may be included twice.
            catalogue.erase(found);
        }
    }
    return items;
}

void Follow(const QJsonObject& model, Connection& connection, const QString& setupName, Environment& environment)
{
    Transaction transaction(connection);
    SetupEditing editing(connection, environment, setupName);
    const QJsonObject columns = model.value(columnsKey).toObject();
    for (const SetupColumn& column : SetupColumns()) {
        if (IsOfModel(column) && columns.contains(column.name)) {
            editing.set(column.name, columns.value(column.name).toString());
        }
    }
    const QByteArray emblem = QByteArray::fromBase64(model.value(emblemKey).toString().toLatin1());
    Statement statement = connection.prepare(QStringLiteral("UPDATE WebSiteInfo SET EmblemPicture = ?1,"
                                                            " EmblemFiletype = nullif(EmblemFiletype, '')"
                                                            " WHERE rowid = ?2"));
    emblem.isEmpty() ? statement.bindNull(1) : statement.bindBytes(1, emblem);
    statement.bind(2, editing.setup().row).run();
    editing.setItems(ItemsHere(connection, model.value(itemsKey).toArray()));
    if (!editing.save()) {
        throw Error(QStringLiteral("The model cannot be followed."));
    }
    transaction.commit();
}

} // namespace

bool SaveAsModel(Connection& connection, const QString& setupName, Environment& environment)
{
    try {
        environment.settings.setDocument(documentName, Written(SetupEditing(connection, environment, setupName)));
        return true;
    } catch (const std::exception& exception) {
        environment.talk.tell(setupmessages::SetupFailed(ReasonText(exception)));
        return false;
    }
}

void FollowModel(Connection& connection, const QString& setupName, Environment& environment)
{
    const QJsonObject model = Read(environment.settings);
    if (model.isEmpty()) {
        return;
    }
    try {
        Follow(model, connection, setupName, environment);
    } catch (const Error&) {
        // It names what is not here, such as a background style: the setup keeps the values it was born with.
    }
}

} // namespace stemwright
