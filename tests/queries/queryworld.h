// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/testworld.h"

namespace stemwright::test
{

/// A family file with the rows of store/queries.sql: six related persons, five pictures, the queries Initial, élan and
/// Zoo.
class QueryWorld : public TestWorld
{
public:
    QueryWorld()
    {
        newFamilyFile();
        execute(TestDataText("store/queries.sql") + "INSERT INTO Pic2Person (PicId, PersId) VALUES (4, 4), (5, 6);"
                                                    "UPDATE PicListQueries SET IdShow = -1");
    }

    QString defaultQuery() const { return settings.value(setting::picListQueries, setting::defaultPicListQuery); }

    /// Sets columns of the query Initial, "IdFilter = -1, IdFrom = 5".
    void change(const QString& assignments)
    {
        execute("UPDATE PicListQueries SET " + assignments + " WHERE QueryName = 'Initial'");
    }
};

} // namespace stemwright::test
