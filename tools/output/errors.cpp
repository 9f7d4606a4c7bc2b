// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "errors.h"
#include "escaping.h"

#include <cstdio>

void complain(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(printable(text)));
}
