// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "treegenerator.h"

#include <charconv>
#include <cstdio>
#include <cstring>

/// stemwright-generate-tree INDIVIDUALS > TREE.ged
int main(int argc, char** argv)
{
    std::uint32_t individuals = 0;
    if (argc == 2) {
        std::from_chars(argv[1], argv[1] + std::strlen(argv[1]), individuals);
    }
    if (individuals < 2) {
        std::fputs("Usage: stemwright-generate-tree INDIVIDUALS > TREE.ged (at least 2 individuals)\n", stderr);
        return 2;
    }
    bool whole = true;
    const auto counts = stemwright::bench::GenerateTree(individuals, [&whole](std::string_view piece) {
        whole = whole && std::fwrite(piece.data(), 1, piece.size(), stdout) == piece.size();
    });
    if (!whole || std::fflush(stdout) != 0) {
        std::perror("stemwright-generate-tree");
        return 1;
    }
    std::fprintf(stderr, "%u individuals, %u families, %u children\n", counts.individuals, counts.families,
                 counts.children);
    return 0;
}
