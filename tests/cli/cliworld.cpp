// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/cliworld.h"

#include "base/files.h"

namespace stemwright::test
{

std::ostream& operator<<(std::ostream& stream, const Outcome& outcome)
{
    stream << (outcome.status ? "status " + std::to_string(*outcome.status) : "crashed or hung");
    return stream << "\noutput: " << outcome.output.toStdString() << "\nerrors: " << outcome.errors.toStdString();
}

CliWorld::CliWorld() : m_environment(QProcessEnvironment::systemEnvironment())
{
    m_environment.insert("XDG_CONFIG_HOME", path("settings"));
}

Outcome CliWorld::run(const QStringList& arguments, const Variables& variables) const
{
    return runProgram(STEMWRIGHT_CLI, arguments, {}, variables);
}

Outcome CliWorld::runOnTerminal(const QStringList& arguments, const QByteArray& typed) const
{
    const QString command = "stty cols 60 rows 24; exec " STEMWRIGHT_CLI " '" + arguments.join("' '") + u'\'';
    return runProgram("script", {"-qec", command, "/dev/null"}, typed, {});
}

Outcome CliWorld::runProgram(const QString& name, const QStringList& arguments, const QByteArray& typed,
                             const Variables& variables) const
{
    QProcessEnvironment environment = m_environment;
    for (auto variable = variables.begin(); variable != variables.end(); ++variable) {
        environment.insert(variable.key(), variable.value());
    }
    QProcess program;
    program.setWorkingDirectory(m_folder.path());
    program.setProcessEnvironment(environment);
    program.start(name, arguments);
    program.write(typed);
    program.closeWriteChannel();
    const bool ended = program.waitForFinished(60'000) && program.exitStatus() == QProcess::NormalExit;
    return {ended ? std::optional(program.exitCode()) : std::nullopt,
            QString::fromUtf8(program.readAllStandardOutput()), QString::fromUtf8(program.readAllStandardError())};
}

QString CliWorld::write(const QString& name, const QByteArray& content) const
{
    WriteWholeFile(path(name), content);
    return path(name);
}

QString CliWorld::writeTree(const QString& name) const
{
    return write(name, "0 HEAD\n1 CHAR UTF-8\n"
                       "0 @I1@ INDI\n1 NAME Anna /Каренина/\n1 SEX F\n1 FAMS @F1@\n"
                       "0 @I2@ INDI\n1 NAME Emil /Karenin/\n1 SEX M\n1 FAMS @F1@\n"
                       "0 @I3@ INDI\n1 NAME Seryozha /Karenin/\n1 SEX M\n1 FAMC @F1@\n"
                       "0 @F1@ FAM\n1 HUSB @I2@\n1 WIFE @I1@\n1 CHIL @I3@\n0 TRLR\n");
}

} // namespace stemwright::test
