// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/progresswindow.h"
#include "quietdesk.h"
#include "stopwatch.h"
#include "store/file/familyfile.h"
#include "web/sitebuild.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QApplication>

#include <cstdio>

/// measure_progress window | none FILE.kvf FOLDER: builds the site of the default setup into a folder that does not
/// exist yet, with the window that shows how it proceeds, painted off the screen, or with nothing in its place. Prints
/// when it began, on the machine's clock, and the seconds of the build.
namespace
{

using namespace stemwright;

class NoProgress : public Progress
{
public:
    void setCaption(const QString& /*caption*/) override {}

    void setPercent(int /*percent*/) override {}

    bool stopWished() override { return false; }
};

/// A user who agrees to have the folder created, and to nothing else.
class BuilderTalk : public bench::NoTalk
{
public:
    explicit BuilderTalk(bool window) : m_window(window) {}

    Button ask(const Message& message) override
    {
        return message.icon == Icon::Question ? Button::Ok : NoTalk::ask(message);
    }

    std::unique_ptr<Progress> progress(const QString& title, const QString& caption) override
    {
        if (m_window) {
            return std::make_unique<ProgressWindow>(title, caption, nullptr);
        }
        return std::make_unique<NoProgress>();
    }

private:
    bool m_window;
};

double Build(BuilderTalk talk, const QString& path, const QString& folder)
{
    bench::QuietDesk desk;
    Environment environment{talk, desk.settings, desk.clock, desk.application};
    FamilyFile file;
    if (!OpenFamilyFile(file, path, environment)) {
        throw Error(QStringLiteral("The family file does not open."));
    }
    const bench::Stopwatch watch;
    if (!BuildWebPages(file, {QStringLiteral("Default"), QFileInfo(folder).absoluteFilePath()}, environment)) {
        throw Error(QStringLiteral("The site was not built."));
    }
    return watch.seconds();
}

} // namespace

int main(int argc, char** argv)
{
    const double began = bench::Now();
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    try {
        if (arguments.size() != 4) {
            std::fputs("Usage: measure_progress window | none FILE.kvf FOLDER\n", stderr);
            return 2;
        }
        const double seconds = Build(BuilderTalk(arguments[1] == QStringLiteral("window")), arguments[2], arguments[3]);
        std::printf("%.6f %.6f\n", began, seconds);
        return 0;
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "measure_progress: %s\n", qPrintable(ErrorText(exception)));
        return 1;
    }
}
