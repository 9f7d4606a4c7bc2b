// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_COMMANDLINE_H
#define SMILTOOL_COMMANDLINE_H

#include "commands/commands.h"

/** What the tool is told to do. */
struct CommandLine {
    const Command *command = nullptr;
    Arguments arguments;
    QString answer; ///< to print instead of running the command: what --help, --version or the command "help" asks for
};

/** Reads the command line. Returns what is wrong with how the tool is called, or else nothing. */
QString parse(const QStringList &words, CommandLine &line);

#endif
