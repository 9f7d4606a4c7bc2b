// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_DURATION_H
#define SMILPARSER_DURATION_H

#include <QtCore/qnumeric.h>

/** Whether something can take so many seconds. */
inline bool isDuration(double seconds)
{
    return qIsFinite(seconds) && seconds > 0;
}

#endif
