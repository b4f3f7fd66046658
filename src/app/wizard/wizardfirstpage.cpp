// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/controls.h"
#include "app/wizard/wizardpages.h"
#include "app/wizard/wizardtexts.h"

#include <QtCore/QBuffer>
#include <QtGui/QImageReader>
#include <QtGui/QPixmap>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace stemwright
{

namespace
{

constexpr int previewSize = 120;

/// The picture at its own size, or smaller so that it fits into a square of `side` pixels, of which each has `density`
/// of the screen; null when it cannot be decoded.
QImage Preview(QByteArray bytes, int side, qreal density)
{
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    QSize size = reader.size();
    if (size.width() > side || size.height() > side) {
        size = size.scaled(side, side, Qt::KeepAspectRatio);
    }
    reader.setScaledSize((size * density).expandedTo({1, 1}));
    QImage image = reader.read();
    image.setDevicePixelRatio(density);
    return image;
}

/// The emblem, the title and the story.
class FirstPagePage : public WizardForm
{
public:
    explicit FirstPagePage(const WizardContext& context) : WizardForm(context, WizardPage::FirstPage)
    {
        addEmblem();
        QLabel* title = addCaption(QStringLiteral("Enter the first page's &title. E.g.:"));
        addExample(wizardtexts::TitleExample());
        addLine(title, "SiteTitle");
        QLabel* caption = addCaption(QStringLiteral("Enter the te&xt you want to appear on the first page. E.g.:"));
        addExample(wizardtexts::StoryExample());
        addMemo(caption, "TitleStory");
    }

private:
    void addExample(const QString& text)
    {
        QLabel* example = addText("", text);
        QFont font = example->font();
        font.setItalic(true);
        example->setFont(font);
    }

    void addEmblem()
    {
        imgEmblem->setFrameShape(QFrame::StyledPanel);
        imgEmblem->setAlignment(Qt::AlignCenter);
        imgEmblem->setWordWrap(true);
        imgEmblem->setFixedSize(previewSize, previewSize);
        QPushButton* choose = MakeButton("cmdChooseEmblem", QStringLiteral("&Choose Picture..."));
        connect(choose, &QPushButton::clicked, this, &FirstPagePage::chooseEmblem);
        connect(cmdRemove, &QPushButton::clicked, this, [this] { setEmblem({}); });
        auto* buttons = new QVBoxLayout;
        buttons->addWidget(choose);
        buttons->addWidget(cmdRemove);
        buttons->addStretch();
        auto* row = new QHBoxLayout;
        row->addWidget(imgEmblem);
        row->addLayout(buttons);
        row->addStretch();
        body().addLayout(row);
        showEmblem();
    }

    void chooseEmblem()
    {
        if (const auto path = context().environment.talk.chooseFile(wizardtexts::ChooseEmblem())) {
            setEmblem(*path);
        }
    }

    void setEmblem(const QString& path)
    {
        change([this, &path] { context().editing.set(QStringLiteral("EmblemPicture"), path); });
        showEmblem();
    }

    /// Only when it may have changed, since it can be large.
    void showEmblem()
    {
        const QByteArray bytes = context().editing.emblem();
        cmdRemove->setEnabled(!bytes.isEmpty());
        const int margin = 2 * imgEmblem->frameWidth() + 2;
        const QImage image = Preview(bytes, previewSize - margin, imgEmblem->devicePixelRatioF());
        if (image.isNull()) {
            imgEmblem->setText(bytes.isEmpty() ? wizardtexts::NoEmblem() : wizardtexts::EmblemCannotBeShown());
        } else {
            imgEmblem->setPixmap(QPixmap::fromImage(image));
        }
    }

    QLabel* imgEmblem = MakeLabel("imgEmblem");
    QPushButton* cmdRemove = MakeButton("cmdRemoveEmblem", QStringLiteral("Re&move Picture"));
};

} // namespace

WizardForm* MakeFirstPagePage(const WizardContext& context)
{
    return new FirstPagePage(context);
}

} // namespace stemwright
