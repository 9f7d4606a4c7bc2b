// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/text.h"
#include "commandline.h"
#include "output/outputfile.h"

#include <smilparser/mmslogger.h>

#include <QtCore/QBuffer>
#include <QtCore/QCoreApplication>

#include <clocale>
#include <csignal>
#include <fcntl.h>
#include <langinfo.h>
#include <unistd.h>

bool MMSLogger::qdebugEnabled = false;

enum ExitStatus { Success = 0, Failure = 1, BadUsage = 2 };

/** Writes the file, or to standard output, or else why not to standard error. */
static bool write(const QString &file, const QByteArray &data)
{
    const QString problem = writeFile(file, data);
    if (!problem.isEmpty()) {
        printError((file.isNull() ? QStringLiteral("smiltool: standard output") : file) + QLatin1String(": ")
                   + problem);
    }
    return problem.isEmpty();
}

static int run(const Command &command, const Arguments &arguments)
{
    int status = Success;
    const QStringList turns = command.takesAllFiles ? QStringList(QString()) : arguments.files;
    for (const QString &file : turns) {
        QBuffer out;
        out.open(QIODevice::WriteOnly);
        const Result result = command.run(file, arguments, out);
        const bool isWritten = out.data().isEmpty() || write(arguments.output, out.data());
        for (const QString &problem : result.problems) {
            printError(problem);
        }
        if (!isWritten) {
            return Failure;
        }
        status = result.ok ? status : Failure;
    }
    return status;
}

/** What the library warns of, its outcome says too. */
static void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) { }

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
    std::signal(SIGXFSZ, SIG_IGN); // a limit on the size of files is an error of the one that is written
    QCoreApplication application(argc, argv);

    CommandLine line;
    const QString problem = parse(QCoreApplication::arguments(), line);
    if (!problem.isEmpty()) {
        const QString command = line.command ? QLatin1Char(' ') + QLatin1String(line.command->name) : QString();
        printError(QLatin1String("smiltool: ") + problem);
        printError(QStringLiteral("Try 'smiltool%1 --help'.").arg(command));
        return BadUsage;
    }
    qInstallMessageHandler(ignoreMessage);
    if (!line.answer.isEmpty()) {
        return write(QString(), line.answer.toUtf8()) ? Success : Failure;
    }
    return run(*line.command, line.arguments);
}
