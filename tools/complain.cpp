// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "complain.h"
#include "text.h"

#include <cstdio>

void complain(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(printable(text)));
}

bool complainOf(const QString &file, const QString &problem)
{
    complain(file + QLatin1String(": ") + problem);
    return false;
}
