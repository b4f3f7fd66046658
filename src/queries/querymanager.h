// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/file/namedrows.h"

/// The picture list queries of a family file: listed, made, cloned, renamed, deleted and run. Stands on the default
/// rows and the managing of named rows of store/file.
namespace stemwright
{

class QueryManager : public NamedRowManager
{
public:
    /// At first the user's default query is selected, where the file has it.
    QueryManager(Connection& connection, Environment& environment);

    /// Chooses a query. Throws Error when there is none with this name.
    void select(const QString& name) { selectRow(name); }

    /// Makes a query the user's default, which fills the list of pictures. False, after the user was told, when there
    /// is none with this name.
    bool run(const QString& name);

private:
    void writeNew(const QString& name) override;
    void writeClone(const NamedRow& source, const QString& name) override;
};

} // namespace stemwright
