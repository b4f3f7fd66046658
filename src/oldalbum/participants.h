// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <vector>

/// The persons on a picture of an old album, which kept them as one text: name, x and y of one after the other, each
/// ended by "|". Nothing here fails. Stands on nothing.
namespace stemwright
{

struct Participant {
    QString name;
    /// The place in pixels of the picture, as it was written; empty for a person without one.
    QString x;
    QString y;
};

/// The persons in their order. The last one is left out where the text ends before all three of her fields did.
std::vector<Participant> SplitParticipants(const QString& participants);

} // namespace stemwright
