// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/notice.h"

#include "app/common/controls.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>

namespace stemwright
{

Notice::Notice(const QString& name) : m_text(MakeLabel(""))
{
    m_text->setObjectName(name);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* sign = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(sign, 0, Qt::AlignTop);
    layout->addWidget(m_text, 1);
    setText({});
}

void Notice::setText(const QString& text)
{
    m_text->setText(text);
    setVisible(!text.isEmpty());
}

QString Notice::text() const
{
    return m_text->text();
}

} // namespace stemwright
