// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/oldalbum/oldalbums.h"

#include "app/common/messages.h"
#include "app/oldalbum/frmimpprev2album.h"
#include "app/oldalbum/frmindisinoldalbum.h"
#include "index/fullname.h"
#include "oldalbum/oldnames.h"
#include "store/engine/engineerror.h"

namespace stemwright
{

AlbumImportReport ImportOldAlbum(FamilyFile& file, Environment& environment, const PersonPicker& picker,
                                 QWidget* parent)
{
    const AlbumImportReport report = ShowAlbumImport(file, environment, parent);
    if (report.names > 0 && HasIndividuals(file.connection())) {
        MatchOldNames(file, environment, picker, parent);
    }
    return report;
}

bool CanMatchOldNames(FamilyFile& file)
{
    try {
        return file.isOpen() && HasOldNames(file.connection());
    } catch (const std::exception&) {
        // A file in which so little can be read will say so where that matters.
        return false;
    }
}

void MatchOldNames(FamilyFile& file, Environment& environment, const PersonPicker& picker, QWidget* parent)
{
    try {
        ShowOldNames(file, environment, picker, parent);
    } catch (const std::exception& exception) {
        environment.talk.tell(appmessages::Failed(ReasonText(exception)));
    }
}

} // namespace stemwright
