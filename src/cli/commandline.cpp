// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/commandline.h"

#include <QtCore/QFile>

#include <cstdio>

#include <unistd.h>

namespace stemwright
{

CommandLine::CommandLine(Environment& environment, const GlobalOptions& options)
    : m_environment(environment), m_options(options), m_out(stdout)
{
}

FamilyFile& CommandLine::open(const std::string& path)
{
    Require(OpenFamilyFile(m_file, pathOf(path), m_environment));
    return m_file;
}

bool CommandLine::canAsk() const
{
    return m_options.answers == Answers::Ask && ::isatty(STDIN_FILENO) != 0;
}

QString CommandLine::pathOf(const std::string& argument)
{
    return QFile::decodeName(argument.c_str());
}

QString CommandLine::textOf(const std::string& argument)
{
    return QString::fromLocal8Bit(argument.data(), static_cast<qsizetype>(argument.size()));
}

CLI::App* AddGroup(CLI::App& app, const std::string& name, const std::string& description,
                   std::function<void(CLI::App&)> addCommands)
{
    CLI::App* group = app.add_subcommand(name, description);
    group->require_subcommand(1);
    group->preparse_callback([group, add = std::move(addCommands)](std::size_t) { add(*group); });
    return group;
}

void Require(bool succeeded)
{
    if (!succeeded) {
        throw AlreadyReported{};
    }
}

std::pair<QString, QString> SplitAssignment(const std::string& assignment, const std::string& form)
{
    const QString text = CommandLine::textOf(assignment);
    const qsizetype equals = text.indexOf(u'=');
    if (equals <= 0) {
        throw CLI::ValidationError(form, "\"" + assignment + "\" is not of the form " + form);
    }
    return {text.left(equals), text.mid(equals + 1)};
}

} // namespace stemwright
