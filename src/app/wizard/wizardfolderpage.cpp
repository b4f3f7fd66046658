// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/controls.h"
#include "app/common/notice.h"
#include "app/wizard/wizardpages.h"
#include "app/wizard/wizardtexts.h"
#include "web/outputfolder.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace stemwright
{

namespace
{

/// Where the web pages go. A folder that publishing would refuse is warned of while it is typed.
class FolderPage : public WizardForm
{
public:
    explicit FolderPage(const WizardContext& context)
        : WizardForm(context, WizardPage::Step2),
          m_places(ProtectedPlaces::of(context.file.path(), context.environment.application))
    {
        QPushButton* browse = MakeButton("cmdBrowse", QStringLiteral("B&rowse..."));
        QLabel* caption = addCaption(QStringLiteral("Se&lect the drive and the folder for the created web pages."));
        m_folder = addLine(caption, "WebPageFolder", {browse});
        body().addWidget(m_warning);
        addText("lblFolderHint", wizardtexts::FolderHint());
        body().addStretch();
        connect(m_folder, &QLineEdit::textEdited, this, &FolderPage::warn);
        // The full path takes the place of what was typed.
        connect(m_folder, &QLineEdit::editingFinished, this, &FolderPage::refresh);
        connect(browse, &QPushButton::clicked, this, &FolderPage::browse);
        onRefresh([this] { warn(); });
    }

private:
    void warn()
    {
        // An empty folder is refused, which is told already.
        const QString folder = m_folder->text().trimmed().isEmpty() ? QString() : stored("WebPageFolder");
        m_warning->setText(folder.isEmpty() ? QString() : WarningOfOutputFolder(folder, m_places).value_or(QString()));
    }

    void browse()
    {
        const FileRequest request = wizardtexts::ChooseFolder(stored("WebPageFolder"));
        if (const auto folder = context().environment.talk.chooseFile(request)) {
            change([this, &folder] { context().editing.set(QStringLiteral("WebPageFolder"), *folder); });
        }
    }

    ProtectedPlaces m_places;
    QLineEdit* m_folder = nullptr;
    Notice* m_warning = new Notice(QStringLiteral("lblFolderWarning"));
};

} // namespace

WizardForm* MakeFolderPage(const WizardContext& context)
{
    return new FolderPage(context);
}

} // namespace stemwright
