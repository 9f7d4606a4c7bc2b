// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_MMSLOGGER_H
#define SMILPARSER_MMSLOGGER_H

#include <QtCore/qglobal.h>

/**
 * The host's class, as far as the library knows it. Nothing here defines the flag: it stays an undefined symbol until
 * the library is loaded. Imported, because hidden visibility would have the linker look for it in the library itself;
 * not in the public header, because a host declares the class itself, often with more in it.
 */
class Q_DECL_IMPORT MMSLogger
{
public:
    static bool qdebugEnabled;
};

#endif
