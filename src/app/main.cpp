// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/application.h"
#include "app/common/dialogtalk.h"
#include "app/common/help.h"
#include "app/common/messages.h"
#include "app/frmabout.h"
#include "app/frmalbum.h"
#include "base/version.h"
#include "store/engine/engineerror.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QLoggingCategory>
#include <QtCore/QTimer>
#include <QtGui/QIcon>

namespace stemwright
{

namespace
{

/// The family file that the program was started with; empty for none.
QString FileArgument(const QApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(appmessages::Purpose());
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("The family file to open"),
                                 QStringLiteral("[FILE]"));
    parser.process(application);
    return parser.positionalArguments().value(0);
}

int Run(Application& program)
{
    FileSettings settings;
    DialogTalk talk(settings);
    const SystemClock clock;
    program.tellThrough(talk);
    try {
        const QString file = FileArgument(program);
        const ApplicationFolder application = ApplicationFolder::ofProgram();
        QApplication::setWindowIcon(QIcon(application.file(QStringLiteral("icons/stemwright.svg"))));
        Environment environment{talk, settings, clock, application};
        auto* splash = new frmSplash(application);
        splash->show();
        QApplication::processEvents();
        const HelpKey helpKey(environment);
        frmAlbum window(environment);
        window.show();
        splash->raise();
        splash->finish();
        // Within the event loop, where what fails is told and the window stays.
        QTimer::singleShot(0, &window, [&window, &file] { window.start(file); });
        return QApplication::exec();
    } catch (const std::exception& exception) {
        talk.tell(appmessages::Failed(ReasonText(exception)));
        return 1;
    }
}

} // namespace

} // namespace stemwright

int main(int argc, char** argv)
{
    stemwright::Application program(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Stemwright"));
    QApplication::setApplicationVersion(QString::fromLatin1(stemwright::versionText));
    // What a decoder has to say about a flaw of a picture, or the browser about the graphics, is no message to a user.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio.*=false\nqt.webenginecontext=false"));
    return stemwright::Run(program);
}
