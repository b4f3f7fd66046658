// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "stage.h"

#include "treegenerator.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace stemwright::bench
{

ProcessResult Stage::run(std::vector<std::string> command) const
{
    command[0] = m_bench.programs + '/' + command[0];
    return RunProcess(command, m_memory.path(""));
}

ProcessResult Stage::stemwright(std::vector<std::string> command) const
{
    command.insert(command.begin(), {"stemwright-cli", "--yes", "--quiet"});
    return run(std::move(command));
}

Report Stage::measured(const std::vector<std::string>& command) const
{
    const ProcessResult process = run(command);
    std::istringstream output(process.output);
    double began = 0;
    Report report;
    output >> began >> report.workSeconds;
    report.seconds = report.workSeconds + began - process.started;
    for (double number = 0; output >> number;) {
        report.others.push_back(number);
    }
    return report;
}

void Stage::writeTree(std::uint32_t individuals, const std::string& path, TreeShape shape) const
{
    std::ofstream file(path, std::ios::binary);
    const auto write = [&file](std::string_view piece) {
        file.write(piece.data(), static_cast<std::streamsize>(piece.size()));
    };
    GenerateTree(individuals, write, shape);
    if (!file.flush()) {
        throw std::runtime_error(path + " cannot be written");
    }
}

} // namespace stemwright::bench
