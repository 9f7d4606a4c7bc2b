// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_COMMAND_H
#define SMILTOOL_COMMAND_H

#include "input/message.h"

#include <QtCore/QSize>

#include <functional>

class QIODevice;

/** What the command line says, except the command. */
struct Arguments {
    QStringList files;
    QString parts; ///< a folder; null if none is given, as all names here
    QString output; ///< a file to write
    QString folder; ///< to write files into
    QStringList ignored; ///< names of findings
    QSize size; ///< of a screen in pixels; empty if what is given is none
    double seconds = 0; ///< that a slide lasts; 0 if what is given is no number
    QString title;
    bool bare = false;
    bool json = false;

    /** Whether the output is to be a file, not standard output. */
    bool toFile() const { return !output.isNull() && output != QLatin1String("-"); }
};

/** How a command went with a file. */
struct Result {
    bool ok = true; ///< or else the exit status is 1
    QStringList problems; ///< lines for standard error
};

const char anyMessage[] = "A SMIL part, or a message as it is sent; - is standard input.";

/** What the tool can do with a file. */
struct Command {
    const char *name;
    const char *files; ///< that it takes: "FILE" or "FILE..."
    const char *options; ///< that it has, by the names in the table of the command line, between blanks
    const char *summary;
    const char *example;
    Result (*run)(const QString &file, const Arguments &arguments, QIODevice &out);
    bool takesAllFiles = false; ///< it is run once for all files of the arguments, without one of its own
    const char *takes = anyMessage; ///< what the files are
};

/**
 * Reads the file and does something with the message, if its SMIL can be read or its parts are known. The result says
 * also what is wrong with the SMIL, and which of the parts could not be read.
 */
Result withMessage(const QString &file, const Arguments &arguments, const std::function<Result(Message &)> &use,
                   SmilParser::ReadOptions options = SmilParser::ClockDurations);

/** A failure because of a file, "FILE: problem". */
Result failure(const QString &file, const QString &problem);

#endif
