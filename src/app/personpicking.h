// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <functional>
#include <optional>

namespace stemwright
{

/// An individual that the user chose from the index of names.
struct ChosenPerson {
    int id = 0;
    QString fullName;
};

/// Asks the user for an individual of the tree; no value when he chose none, or was told that there is no index.
using PersonPicker = std::function<std::optional<ChosenPerson>()>;

} // namespace stemwright
