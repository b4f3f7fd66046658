// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/matchdecisions.h"

#include "base/error.h"
#include "base/text.h"
#include "index/fullname.h"

#include <QtCore/QHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSet>

namespace stemwright
{

namespace
{

/// What was decided for an old name: an individual, or nobody for the name alone.
using Decision = std::optional<ChosenPerson>;

QJsonArray ArrayOf(const QByteArray& json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        throw Error(QStringLiteral("The decisions are no JSON document: %1.").arg(error.errorString()));
    }
    if (!document.isArray()) {
        throw Error(QStringLiteral("The decisions are no JSON array of objects with Name and Decision."));
    }
    return document.array();
}

Decision DecisionOf(const QJsonValue& value, const QString& name, Connection& connection)
{
    if (value == QJsonValue(QStringLiteral("next"))) {
        return std::nullopt;
    }
    const int id = value.toInt();
    if (id == 0) {
        throw Error(
            QStringLiteral("The decision for \"%1\" is neither the number of an individual nor \"next\".").arg(name));
    }
    return ChosenPerson{id, StoredFullName(connection, id)};
}

/// The decisions by what makes two names the same.
QHash<QByteArray, Decision> DecisionsOf(const QJsonArray& array, const NameMatching& matching, Connection& connection)
{
    QHash<QByteArray, Decision> decisions;
    QSet<QByteArray> known;
    for (const OldName& old : matching.names()) {
        known.insert(CollationKey(old.name));
    }
    for (const QJsonValue entry : array) {
        const QString name = entry[u"Name"].toString();
        if (!known.contains(CollationKey(name))) {
            throw Error(QStringLiteral("The old album has no name \"%1\".").arg(name));
        }
        if (const QJsonValue decision = entry[u"Decision"]; !decision.isUndefined()) {
            decisions.insert(CollationKey(name), DecisionOf(decision, name, connection));
        }
    }
    return decisions;
}

/// Somebody who was proposed is accepted under the name that was proposed.
bool Accept(NameMatching& matching, const ChosenPerson& person)
{
    const std::vector<NameRow>& proposals = matching.proposals();
    const auto proposed = std::find_if(proposals.begin(), proposals.end(),
                                       [&](NameRow row) { return matching.individuals().id(row) == person.id; });
    return proposed == proposals.end() ? matching.accept(person) : matching.accept(*proposed);
}

} // namespace

bool FollowDecisions(NameMatching& matching, Connection& connection, const QByteArray& json)
{
    const QHash<QByteArray, Decision> decisions = DecisionsOf(ArrayOf(json), matching, connection);
    matching.begin(0);
    while (matching.isRunning()) {
        const auto decision = decisions.constFind(CollationKey(matching.current().name));
        if (decision == decisions.constEnd()) {
            matching.passOver();
        } else if (!(*decision ? Accept(matching, **decision) : matching.next())) {
            return false;
        }
    }
    return true;
}

} // namespace stemwright
