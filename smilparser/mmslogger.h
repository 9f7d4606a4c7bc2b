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
 * Turns the library's debug messages on or off. The library declares the flag but does not define it. The program
 * defines it in one of its sources: @code
 * #include <smilparser/mmslogger.h>
 *
 * bool MMSLogger::qdebugEnabled = false;
 * @endcode
 *
 * The library finds the flag whatever visibility the program is compiled with. A program that declares the class
 * itself, exported and with this member, must not include this header. No other header of the library includes it.
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
