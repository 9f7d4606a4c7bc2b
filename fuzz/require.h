// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_REQUIRE_H
#define SMILPARSER_REQUIRE_H

#include <cstdio>
#include <cstdlib>

inline void require(bool holds, const char *what)
{
    if (!holds) {
        fprintf(stderr, "Does not hold: %s\n", what);
        abort();
    }
}

#endif
