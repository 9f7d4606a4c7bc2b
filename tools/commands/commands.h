// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_COMMANDS_H
#define SMILTOOL_COMMANDS_H

#include "input/message.h"

#include <QtCore/QSize>

#include <functional>

class QIODevice;

/** What the command line says, except the command. */
struct Arguments {
    QStringList files;
    QString parts; ///< a folder; null if none is given, as all names here
    QString output; ///< a file to write; null for standard output
    QString folder; ///< to write files into
    QStringList ignored; ///< names of findings
    QSize size; ///< of a screen in pixels; empty if what is given is none
    double seconds = 0; ///< that a slide lasts; 0 if what is given is no number
    QString title;
    bool bare = false;
    bool json = false;
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

// Each is in the file of its name, with all that is said of it to users. What it does with a message that has been read
// is a function beside it.
extern const Command showCommand;
extern const Command renderCommand;
extern const Command storyboardCommand;
extern const Command checkCommand;
extern const Command composeCommand;
extern const Command extractCommand;

/** In the order in which the help lists them. */
const Command *const allCommands[] = {&showCommand,  &renderCommand,  &storyboardCommand,
                                      &checkCommand, &composeCommand, &extractCommand};

/** Writes the model of the message to @p out, as an indented outline. */
void show(const Message &message, QIODevice &out);

/** What show() prints of a part. */
QString partText(const QString &name, const QString &type, const QByteArray &data);

/** Writes the same as show() does as a line of JSON, with what plays when and where, or why the message or its SMIL
 * cannot be read. */
void showJson(const Message &message, QIODevice &out);

/** Writes the model to @p out as indented XML. */
void render(const Message &message, QIODevice &out);

/** Draws the message as a picture in SVG, with the parts that it has: a frame for each slide. */
void storyboard(Message &message, QIODevice &out);

/**
 * Writes to @p out what its sender or receiver might want to know of the message, a line each, except findings whose
 * names are in @p ignored. Returns whether there was any.
 */
bool check(Message &message, const QStringList &ignored, QIODevice &out);

#endif
