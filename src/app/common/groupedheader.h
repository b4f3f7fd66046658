// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QHeaderView>

/// The header of a grid with two rows of captions, of which one group of neighbouring columns has both: a caption over
/// all of them and one for each. The other columns have one caption as high as both rows. Stands on Qt Widgets.
namespace stemwright
{

class GroupedHeader : public QHeaderView
{
public:
    /// The group are the columns `first` to `last`, counted from 0.
    GroupedHeader(int first, int last, QString caption, QWidget* parent);

protected:
    QSize sectionSizeFromContents(int section) const override;
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

private:
    bool isGrouped(int section) const { return section >= m_first && section <= m_last; }

    int m_first;
    int m_last;
    QString m_caption;
};

} // namespace stemwright
