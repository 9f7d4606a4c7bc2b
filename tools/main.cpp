// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "mmslogger.h"

#include <smilparser/smilparser_version.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

#include <cstdio>

bool MMSLogger::qdebugEnabled = false;

namespace
{
enum ExitStatus { Success = 0, Failure = 1, BadUsage = 2 };
enum class Kind { Show, Render, Storyboard, Check };

struct Command {
    QLatin1String name;
    Kind kind;
    const char *arguments;
    const char *summary;
    const char *example;
};

const Command commands[] = {
    {QLatin1String("show"),       Kind::Show,       "FILE...", "Prints an outline of each message.",                     "smiltool show message.smil"},
    {QLatin1String("render"),     Kind::Render,     "FILE...", "Prints each message as read and written back.",
     "smiltool render message.smil > written.smil"                                                                                                   },
    {QLatin1String("storyboard"), Kind::Storyboard, "FILE",    "Draws a message as a picture, in SVG.",
     "smiltool storyboard message.smil -o board.svg"                                                                                                 },
    {QLatin1String("check"),      Kind::Check,      "FILE...", "Tells what is odd in each message, or lost on writing.",
     "smiltool check --ignore lost-attribute message.smil"                                                                                           },
};
}

static const Command *findCommand(const QString &name)
{
    for (const Command &command : commands) {
        if (name == command.name) {
            return &command;
        }
    }
    return nullptr;
}

static int badUsage(const QString &problem)
{
    complain(QLatin1String("smiltool: ") + problem);
    complain(QStringLiteral("Try 'smiltool --help'."));
    return BadUsage;
}

static QString describe(const Command *command)
{
    if (command) {
        return QString::fromLatin1("%1\n\nExample: %2")
            .arg(QLatin1String(command->summary), QLatin1String(command->example));
    }
    QString text =
        QStringLiteral("Reads the slide show of a multimedia message.\n\nCommands, each with a --help of its own:");
    for (const Command &each : commands) {
        text += QStringLiteral("\n  %1 %2").arg(each.name, -11).arg(QString::fromLatin1(each.summary).simplified());
    }
    return text;
}

static void setUp(QCommandLineParser &parser, const Command *command)
{
    parser.setApplicationDescription(describe(command));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({QStringLiteral("debug"), QStringLiteral("Print the library's debug messages.")});
    if (!command) {
        parser.addPositionalArgument(QStringLiteral("COMMAND"), QStringLiteral("What to do."));
        parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("A SMIL part; - is standard input."),
                                     QStringLiteral("FILE..."));
        return;
    }
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("A SMIL part; - is standard input."),
                                 command->name + QLatin1Char(' ') + QLatin1String(command->arguments));
    if (command->kind == Kind::Show || command->kind == Kind::Storyboard) {
        parser.addOption(
            {QStringLiteral("plain"), QStringLiteral("Show durations as a host reads them without options.")});
    }
    if (command->kind == Kind::Render) {
        parser.addOption({QStringLiteral("keep"),
                          QStringLiteral("Keep the size of the root-layout, and all durations, in seconds.")});
    }
    if (command->kind == Kind::Storyboard) {
        parser.addOption({
            {QStringLiteral("o"), QStringLiteral("output")},
            QStringLiteral("Write to OUT.svg, not to standard output."),
            QStringLiteral("OUT.svg")
        });
    }
    if (command->kind == Kind::Check) {
        parser.addOption({QStringLiteral("ignore"),
                          QStringLiteral("Say nothing of findings called NAME; may be repeated. The names: ")
                              + findingNames().join(QLatin1String(", ")),
                          QStringLiteral("NAME")});
    }
}

/** The first argument that is no option, taken out of @p arguments. */
static QString takeCommand(QStringList &arguments)
{
    for (int i = 1; i < arguments.size(); ++i) {
        if (!arguments.at(i).startsWith(QLatin1Char('-'))) {
            return arguments.takeAt(i);
        }
    }
    return QString();
}

static bool drawTo(const QString &name, const Message &message)
{
    if (QFileInfo(name) == QFileInfo(message.file)) {
        complain(name + QLatin1String(": is the message itself"));
        return false;
    }
    QSaveFile out(name);
    if (out.open(QIODevice::WriteOnly)) {
        storyboard(message, out);
        if (out.commit()) {
            return true;
        }
    }
    complain(name + QLatin1String(": ") + out.errorString());
    return false;
}

static SmilParser::ReadOptions readOptions(const Command &command, const QCommandLineParser &options)
{
    const bool shows = command.kind == Kind::Show || command.kind == Kind::Storyboard;
    if (shows && !options.isSet(QStringLiteral("plain"))) {
        return SmilParser::ClockDurations;
    }
    if (command.kind == Kind::Render && options.isSet(QStringLiteral("keep"))) {
        return SmilParser::ClockDurations | SmilParser::KeepRootSize;
    }
    return SmilParser::AsWritten;
}

/** Returns whether all went well and, for a check, nothing was found. */
static bool run(const Command &command, const QCommandLineParser &options, const Message &message, QIODevice &out)
{
    switch (command.kind) {
    case Kind::Show:
        show(message, out);
        return true;
    case Kind::Render:
        render(message, out);
        return true;
    case Kind::Check:
        return !check(message, options.values(QStringLiteral("ignore")), out);
    case Kind::Storyboard:
        break;
    }
    if (options.isSet(QStringLiteral("output"))) {
        return drawTo(options.value(QStringLiteral("output")), message);
    }
    storyboard(message, out);
    return true;
}

static int run(const Command &command, const QCommandLineParser &options)
{
    int status = Success;
    QFile out;
    bool written = out.open(stdout, QIODevice::WriteOnly);
    const QStringList files = options.positionalArguments();
    for (const QString &file : files) {
        Message message;
        if (!readMessage(file, readOptions(command, options), message) || !run(command, options, message, out)) {
            status = Failure;
        }
        written = out.flush() && written; // before the next file's problems
    }
    if (!written || out.error() != QFileDevice::NoError) {
        complain(QLatin1String("smiltool: standard output: ") + out.errorString());
        status = Failure;
    }
    return status;
}

/** What is wrong with how the command is called; empty when nothing is. */
static QString problemWith(const Command &command, const QCommandLineParser &options)
{
    const QStringList files = options.positionalArguments();
    if (files.isEmpty()) {
        return QStringLiteral("no file given.");
    }
    if (command.kind == Kind::Storyboard && files.size() > 1) {
        return QStringLiteral("a storyboard is of one file.");
    }
    if (command.kind == Kind::Check) {
        const QStringList ignored = options.values(QStringLiteral("ignore"));
        for (const QString &name : ignored) {
            if (!findingNames().contains(name)) {
                return QStringLiteral("no finding is called '%1'.").arg(name);
            }
        }
    }
    return QString();
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("smiltool"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SMILPARSER_VERSION_STRING));

    QStringList arguments = QCoreApplication::arguments();
    const QString name = takeCommand(arguments);
    const Command *const command = findCommand(name);
    if (!command && !name.isEmpty()) {
        return badUsage(QStringLiteral("unknown command '%1'.").arg(name));
    }
    QCommandLineParser parser;
    setUp(parser, command);
    if (!parser.parse(arguments)) {
        return badUsage(parser.errorText());
    }
    if (parser.isSet(QStringLiteral("version"))) {
        parser.showVersion();
    }
    if (parser.isSet(QStringLiteral("help"))) {
        parser.showHelp(Success);
    }
    const QString problem = command ? problemWith(*command, parser) : QStringLiteral("no command given.");
    if (!problem.isEmpty()) {
        return badUsage(problem);
    }
    MMSLogger::qdebugEnabled = parser.isSet(QStringLiteral("debug"));
    return run(*command, parser);
}
