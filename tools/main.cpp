// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "errors.h"

#include <smilparser/mmslogger.h>
#include <smilparser/smilparser_version.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <clocale>
#include <cstdio>
#include <fcntl.h>
#include <langinfo.h>
#include <unistd.h>

bool MMSLogger::qdebugEnabled = false;

enum ExitStatus { Success = 0, Failure = 1, BadUsage = 2 };

static int badUsage(const QString &problem)
{
    complain(QLatin1String("smiltool: ") + problem);
    complain(QStringLiteral("Try 'smiltool --help'."));
    return BadUsage;
}

static int run(const Command &command, const Arguments &arguments)
{
    int status = Success;
    QFile out;
    bool written = out.open(stdout, QIODevice::WriteOnly);
    const QStringList turns = command.together ? QStringList(QString()) : arguments.files;
    for (const QString &file : turns) {
        const Result result = command.run(file, arguments, out);
        for (const QString &problem : result.problems) {
            complain(problem);
        }
        status = result.well ? status : Failure;
        written = out.flush() && written; // before the next file's problems
    }
    if (!written || out.error() != QFileDevice::NoError) {
        complain(QLatin1String("smiltool: standard output: ") + out.errorString());
        status = Failure;
    }
    return status;
}

/** What the library warns of is told by its outcome. */
static void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtDebugMsg) {
        complain(text.trimmed());
    }
}

/** All names and all output are UTF-8. Where the locale is of another encoding, Qt 6 says so in four lines at every
 * start. */
static void useUtf8()
{
    std::setlocale(LC_ALL, "");
    if (qstrcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        qputenv("LC_ALL", "C.UTF-8");
    }
}

/**
 * Whatever is opened first would take the place of a standard descriptor that is closed, and be read or written as
 * that. In its place stands what cannot be, so that the error says so.
 */
static void keepStandardDescriptors()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) < 0) {
            open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

int main(int argc, char *argv[])
{
    keepStandardDescriptors();
    useUtf8();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("smiltool"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SMILPARSER_VERSION_STRING));

    CommandLine line;
    const QString problem = parse(QCoreApplication::arguments(), line);
    if (!problem.isEmpty()) {
        return badUsage(problem);
    }
    qInstallMessageHandler(handleMessage);
    MMSLogger::qdebugEnabled = line.arguments.debug;
    return run(*line.command, line.arguments);
}
