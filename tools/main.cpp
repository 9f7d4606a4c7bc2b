// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "message.h"
#include "mmslogger.h"

#include <smilparser/smilparser_version.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <cstdio>

bool MMSLogger::qdebugEnabled = false;

namespace
{
enum ExitStatus { Success = 0, Failure = 1, BadUsage = 2 };

struct Command {
    QLatin1String name;
    void (*run)(const QString &file, const SmilDocument &document, QIODevice &out);
};

const Command commands[] = {
    {QLatin1String("show"),   show  },
    {QLatin1String("render"), render},
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

static int run(const Command &command, const QStringList &files)
{
    int status = Success;
    QFile out;
    bool written = out.open(stdout, QIODevice::WriteOnly);
    for (const QString &file : files) {
        SmilDocument document;
        if (readMessage(file, document)) {
            command.run(file, document, out);
            written = out.flush() && written; // before the next file's problems
        } else {
            status = Failure;
        }
    }
    if (!written || out.error() != QFileDevice::NoError) {
        complain(QLatin1String("smiltool: standard output: ") + out.errorString());
        status = Failure;
    }
    return status;
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("smiltool"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SMILPARSER_VERSION_STRING));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Reads the slide show of a multimedia message."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption debug(QStringLiteral("debug"), QStringLiteral("Print the library's debug messages."));
    parser.addOption(debug);
    parser.addPositionalArgument(QStringLiteral("command"),
                                 QStringLiteral("show: print an outline of the message\n"
                                                "render: print the message as read and written back, as XML"));
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("A SMIL part; - is standard input."),
                                 QStringLiteral("FILE..."));
    if (!parser.parse(QCoreApplication::arguments())) {
        return badUsage(parser.errorText());
    }
    if (parser.isSet(QStringLiteral("version"))) {
        parser.showVersion();
    }
    if (parser.isSet(QStringLiteral("help"))) {
        parser.showHelp(Success);
    }
    QStringList files = parser.positionalArguments();
    if (files.isEmpty()) {
        return badUsage(QStringLiteral("no command given."));
    }
    const QString name = files.takeFirst();
    const Command *const command = findCommand(name);
    if (!command) {
        return badUsage(QStringLiteral("unknown command '%1'.").arg(name));
    }
    if (files.isEmpty()) {
        return badUsage(QStringLiteral("no file given."));
    }
    MMSLogger::qdebugEnabled = parser.isSet(debug);
    return run(*command, files);
}
