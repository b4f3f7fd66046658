// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/dialogtalk.h"

#include "app/common/controls.h"
#include "app/common/messages.h"
#include "app/common/progresswindow.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>

namespace stemwright
{

namespace
{

constexpr int longestInput = 10'000;
constexpr int inputWidth = 360;
const QString nameBox = QStringLiteral("fileNameEdit");

QMessageBox::Icon BoxIcon(Icon icon)
{
    switch (icon) {
    case Icon::None:
        return QMessageBox::NoIcon;
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Warning:
        return QMessageBox::Warning;
    case Icon::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

struct ButtonPair {
    Button ours;
    QMessageBox::StandardButton theirs;
};

constexpr ButtonPair buttonPairs[] = {{Button::Ok, QMessageBox::Ok},
                                      {Button::Cancel, QMessageBox::Cancel},
                                      {Button::Yes, QMessageBox::Yes},
                                      {Button::No, QMessageBox::No},
                                      {Button::Retry, QMessageBox::Retry}};

QMessageBox::StandardButton BoxButton(Button button)
{
    for (const ButtonPair& pair : buttonPairs) {
        if (pair.ours == button) {
            return pair.theirs;
        }
    }
    return QMessageBox::NoButton;
}

/// A message box. The text is shown as it stands: it may hold a name from a hostile file.
std::unique_ptr<QMessageBox> MakeBox(const Message& message)
{
    auto box = std::make_unique<QMessageBox>(FrontWindow());
    box->setObjectName(QStringLiteral("messageBox"));
    box->setWindowTitle(message.title.isEmpty() ? QApplication::applicationDisplayName() : message.title);
    box->setTextFormat(Qt::PlainText);
    box->setText(message.text);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setIcon(BoxIcon(message.icon));
    for (const Button button : message.buttons) {
        box->addButton(BoxButton(button));
    }
    box->setDefaultButton(BoxButton(message.preset));
    return box;
}

/// The answer of a box; closing it without a button is the safest answer that it has.
Button Answer(int result, const Message& message)
{
    for (const ButtonPair& pair : buttonPairs) {
        if (pair.theirs == result) {
            return pair.ours;
        }
    }
    return message.preset;
}

/// A pattern such as "*.gif" for every case of its letters, since files come from systems that do not mind.
QString AnyCase(const QString& filter)
{
    QString result;
    bool inPattern = false;
    for (const QChar character : filter) {
        if (character == u'(' || character == u')') {
            inPattern = character == u'(';
        }
        result += inPattern && character.isLetter()
                      ? QStringLiteral("[%1%2]").arg(character.toLower(), character.toUpper())
                      : QString(character);
    }
    return result;
}

/// The extension that a filter such as "Caption (*.ext)" names, without the dot.
QString ExtensionOf(const QString& filter)
{
    const qsizetype dot = filter.lastIndexOf(QStringLiteral("*."));
    const QString extension = dot < 0 ? QString() : filter.mid(dot + 2).chopped(1);
    return extension == QStringLiteral("*") ? QString() : extension;
}

/// Takes what is typed for the name of one file. Qt would take double quotes in it for the bounds of several, and drop
/// what stands outside of them. Without its own meta-object, so that it can still be the system's dialog.
class FileDialog : public QFileDialog
{
public:
    FileDialog(const FileRequest& request, const QString& folder) : QFileDialog(FrontWindow(), request.title, folder) {}

    void accept() override
    {
        const std::optional<QFileInfo> quoted = quotedFile();
        if (!quoted) {
            QFileDialog::accept();
        } else if (quoted->isDir() && fileMode() != Directory) {
            setDirectory(quoted->filePath());
            findChild<QLineEdit*>(nameBox)->clear();
        } else if (acceptMode() == AcceptOpen && !(fileMode() == Directory ? quoted->isDir() : quoted->isFile())) {
            MakeBox(appmessages::NotThere(quoted->absoluteFilePath()))->exec();
        } else {
            QDialog::accept();
        }
    }

    QString chosen() const
    {
        const std::optional<QFileInfo> quoted = quotedFile();
        return quoted ? quoted->absoluteFilePath() : QFileInfo(selectedFiles().value(0)).absoluteFilePath();
    }

private:
    /// The file whose name was typed, or taken from the list, with a double quote in it.
    std::optional<QFileInfo> quotedFile() const
    {
        const auto* box = findChild<QLineEdit*>(nameBox);
        if (box == nullptr || !box->text().contains(u'"')) {
            return std::nullopt;
        }
        QFileInfo file(directory(), box->text());
        if (!defaultSuffix().isEmpty() && !file.isDir() && !file.fileName().contains(u'.')) {
            file.setFile(file.filePath() + u'.' + defaultSuffix());
        }
        return file;
    }
};

} // namespace

QWidget* FrontWindow()
{
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    if (QWidget* active = QApplication::activeWindow()) {
        return active;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window) {
            return window;
        }
    }
    return nullptr;
}

DialogTalk::DialogTalk(const Settings& settings) : m_settings(settings) {}

Button DialogTalk::ask(const Message& message)
{
    return Answer(MakeBox(message)->exec(), message);
}

void DialogTalk::tell(const Message& message)
{
    MakeBox(message)->exec();
}

bool DialogTalk::tellWithCheckBox(const Message& message, const QString& checkBox)
{
    const auto box = MakeBox(message);
    auto* check = new QCheckBox(checkBox, box.get());
    box->setCheckBox(check);
    box->exec();
    return check->isChecked();
}

std::optional<QString> DialogTalk::input(const InputRequest& request)
{
    QInputDialog dialog(FrontWindow());
    dialog.setObjectName(QStringLiteral("inputBox"));
    dialog.setWindowTitle(request.title);
    dialog.setLabelText(request.prompt);
    dialog.setTextValue(request.text);
    // Wide enough for its title and for what is typed, a name mostly.
    dialog.resize(ForLetters(dialog, inputWidth), dialog.sizeHint().height());
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return dialog.textValue().left(longestInput);
}

QString DialogTalk::firstFolder(const FileRequest& request) const
{
    if (QFileInfo(request.folder).isDir()) {
        return request.folder;
    }
    const QFileInfo last(m_settings.value(setting::openCreateFamFile, setting::lastFamilyFile));
    return last.dir().exists() && !last.fileName().isEmpty() ? last.path() : QDir::homePath();
}

std::optional<QString> DialogTalk::chooseFile(const FileRequest& request)
{
    FileDialog dialog(request, firstFolder(request));
    dialog.setObjectName(QStringLiteral("fileDialog"));
    if (request.purpose == FilePurpose::Folder) {
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
    } else {
        QStringList filters;
        for (const QString& filter : request.filters) {
            filters << AnyCase(filter);
        }
        dialog.setNameFilters(filters);
        dialog.setOption(QFileDialog::HideNameFilterDetails);
        dialog.selectFile(request.suggestedName);
    }
    if (request.purpose == FilePurpose::Save) {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        // The procedure that writes the file asks, in its own words.
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        dialog.setDefaultSuffix(ExtensionOf(request.filters.value(0)));
    } else if (request.purpose == FilePurpose::Open) {
        dialog.setFileMode(QFileDialog::ExistingFile);
    }
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.chosen()) : std::nullopt;
}

std::unique_ptr<Progress> DialogTalk::progress(const QString& title, const QString& caption)
{
    return std::make_unique<ProgressWindow>(title, caption, FrontWindow());
}

} // namespace stemwright
