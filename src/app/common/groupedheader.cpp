// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/groupedheader.h"

#include <QtGui/QPainter>

#include <utility>

namespace stemwright
{

GroupedHeader::GroupedHeader(int first, int last, QString caption, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), m_first(first), m_last(last), m_caption(std::move(caption))
{
    setDefaultAlignment(Qt::AlignCenter);
    // The group's caption lies over all of its columns, whichever of them changes.
    connect(this, &QHeaderView::sectionResized, viewport(), [this] { viewport()->update(); });
}

QSize GroupedHeader::sectionSizeFromContents(int section) const
{
    const QSize one = QHeaderView::sectionSizeFromContents(section);
    return {one.width(), 2 * one.height()};
}

void GroupedHeader::paintSection(QPainter* painter, const QRect& rect, int section) const
{
    if (!isGrouped(section)) {
        QHeaderView::paintSection(painter, rect, section);
        return;
    }
    const int middle = rect.top() + rect.height() / 2;
    QHeaderView::paintSection(painter, QRect(QPoint(rect.left(), middle), rect.bottomRight()), section);

    // Each column shows its own piece of the caption that lies over all of them.
    QStyleOptionHeader option;
    initStyleOption(&option);
    const int left = sectionViewportPosition(m_first);
    const int right = sectionViewportPosition(m_last) + sectionSize(m_last);
    option.rect = QRect(left, rect.top(), right - left, middle - rect.top());
    option.section = m_first;
    option.text = m_caption;
    option.textAlignment = Qt::AlignCenter;
    painter->save();
    painter->setClipRect(QRect(rect.left(), rect.top(), rect.width(), middle - rect.top()), Qt::IntersectClip);
    style()->drawControl(QStyle::CE_Header, &option, painter, this);
    painter->restore();
}

} // namespace stemwright
