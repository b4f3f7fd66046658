// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/commandline.h"

#include <QtCore/QJsonValue>
#include <QtCore/QString>

#include <vector>

/// A list that a command prints: aligned columns for a reader, or one JSON object a row for a program (--json).
namespace stemwright
{

/// A text from a file as it may be printed: on one line, with nothing that a terminal would obey.
QString OnOneLine(QString text);

class Listing
{
public:
    /// The captions head the columns; they are also the names of the JSON values.
    explicit Listing(QStringList captions);

    /// Adds a row with one value a column: texts, numbers, truth values (printed as yes or an empty place) or null.
    Listing& row(std::vector<QJsonValue> values);

    void print(CommandLine& line) const;

private:
    QByteArray json() const;
    QString text() const;

    QStringList m_captions;
    std::vector<std::vector<QJsonValue>> m_rows;
};

} // namespace stemwright
