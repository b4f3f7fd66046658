// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/controls.h"
#include "app/viewer/frmwebbrowser.h"
#include "app/wizard/treedefinitionspanel.h"
#include "app/wizard/wizardpages.h"
#include "app/wizard/wizardtexts.h"
#include "web/setup/backgroundstyles.h"

#include <QtWidgets/QColorDialog>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace stemwright
{

namespace
{

/// The trees, the background and the colours.
class DisplayPage : public WizardForm
{
public:
    explicit DisplayPage(const WizardContext& context)
        : WizardForm(context, WizardPage::DisplayOptions),
          m_trees(
              new TreeDefinitionsPanel(context.editing.trees(), context.environment, context.picker, context.changed))
    {
        body().addWidget(MakeLabel("lblTrees", QStringLiteral("Genealogical displays:")));
        addText("lblTreesHint", wizardtexts::TreesHint());
        body().addWidget(m_trees, 1);
        onRefresh([this] { m_trees->refresh(); });
        addStyles();
        addColours();
    }

private:
    void addStyles()
    {
        const ApplicationFolder& application = context().environment.application;
        cboPageStyle->setObjectName(QStringLiteral("cboPageStyle"));
        LetWheelPass(*cboPageStyle);
        cboPageStyle->addItems(BackgroundStyles(application));
        auto* caption = new QLabel(QStringLiteral("Bac&kground style:"));
        caption->setBuddy(cboPageStyle);
        QPushButton* sample = MakeButton("cmdViewSample", QStringLiteral("&View Sample"));
        auto* row = MakeRow({caption, cboPageStyle, sample});
        row->addStretch();
        body().addLayout(row);
        connect(cboPageStyle, &QComboBox::textActivated, this, [this] {
            const QString style = QString::number(cboPageStyle->currentIndex());
            change([this, &style] { context().editing.set(QStringLiteral("PageStyle"), style); });
        });
        connect(sample, &QPushButton::clicked, this, [this, &application] {
            if (const auto page = StyleSample(cboPageStyle->currentIndex(), application)) {
                // A sample takes its style and pictures from where publishing takes them.
                ShowWebBrowser({*page, application.path()}, context().environment, this);
            }
        });
        onRefresh([this, sample, &application] {
            // A style that is not there any more is published as the first one.
            const int style = stored("PageStyle").toInt();
            cboPageStyle->setCurrentIndex(style < cboPageStyle->count() ? style : 0);
            sample->setEnabled(StyleSample(cboPageStyle->currentIndex(), application).has_value());
        });
    }

    void addColours()
    {
        addText("lblColours", QStringLiteral("Text and background colors for descendant tree rectangles:"));
        QPushButton* text = MakeButton("cmdTextColor", QStringLiteral("&Text Color.."));
        QPushButton* ground = MakeButton("cmdBackgroundColor", QStringLiteral("Back&ground Color.."));
        connect(text, &QPushButton::clicked, this, [this] { chooseColour("CellFg"); });
        connect(ground, &QPushButton::clicked, this, [this] { chooseColour("CellBg"); });
        lblSample->setAlignment(Qt::AlignCenter);
        lblSample->setMargin(lblSample->fontMetrics().averageCharWidth());
        auto* row = MakeRow({text, ground, lblSample});
        row->addStretch();
        body().addLayout(row);
        onRefresh([this] {
            lblSample->setStyleSheet(QStringLiteral("QLabel { color: %1; background-color: %2; border: 1px solid %1; }")
                                         .arg(stored("CellFg"), stored("CellBg")));
        });
    }

    void chooseColour(const char* column)
    {
        QColorDialog dialog(QColor(stored(column)), this);
        dialog.setObjectName(QStringLiteral("colorDialog"));
        if (dialog.exec() == QDialog::Accepted) {
            change([this, column, &dialog] {
                context().editing.set(QLatin1StringView(column), dialog.selectedColor().name());
            });
        }
    }

    TreeDefinitionsPanel* m_trees;
    QComboBox* cboPageStyle = new QComboBox;
    QLabel* lblSample = MakeLabel("lblSample", wizardtexts::SampleOfColours());
};

} // namespace

WizardForm* MakeDisplayPage(const WizardContext& context)
{
    return new DisplayPage(context);
}

} // namespace stemwright
