// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_MMSLOGGER_H
#define SMILTOOL_MMSLOGGER_H

#include <QtCore/qglobal.h>

/** The flag that the library asks of its host; exported, because the library looks for it when it is loaded. */
class Q_DECL_EXPORT MMSLogger
{
public:
    static bool qdebugEnabled;
};

#endif
