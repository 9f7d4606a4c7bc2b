// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_MMSLOGGER_H
#define SMILPARSER_MMSLOGGER_H

#include <QtCore/qglobal.h>

/**
 * @file
 * The flag that every program that uses the library defines.
 */

/**
 * Switches the library's debug messages. The library declares the flag and leaves it undefined; the program defines it
 * once, in one of its sources:
 * @code
 * #include <smilparser/mmslogger.h>
 *
 * bool MMSLogger::qdebugEnabled = false;
 * @endcode
 *
 * The class is visible to the library whatever the program is compiled with. A program that declares the class itself,
 * exported and with this member, does not include this header. No other header of the library includes it.
 */
// Imported by the library, exported by the host: on ELF, Q_DECL_IMPORT does for both. Q_DECL_EXPORT is "protected" in
// some builds of Qt, and by that the library would look for the flag in itself.
class Q_DECL_IMPORT MMSLogger
{
public:
    /** Whether debug messages are printed. Change it only while no thread is in the library. */
    static bool qdebugEnabled;
};

#endif
