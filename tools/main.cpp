// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/escaping.h"
#include "commandline.h"

#include <smilparser/mmslogger.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QIODevice>

#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <langinfo.h>
#include <unistd.h>

bool MMSLogger::qdebugEnabled = false;

enum ExitStatus { Success = 0, Failure = 1, BadUsage = 2 };

namespace
{
/** Standard output, with what went wrong first for its error. */
class StandardOutput : public QIODevice
{
public:
    StandardOutput() { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }

    void flush() { note(std::fflush(stdout) == 0); }
    bool isWhole() const { return whole; }

private:
    qint64 readData(char *, qint64) override { return -1; }

    qint64 writeData(const char *data, qint64 size) override
    {
        note(std::fwrite(data, 1, size_t(size), stdout) == size_t(size));
        return size;
    }

    void note(bool isWritten)
    {
        if (whole && !isWritten) {
            setErrorString(QString::fromLocal8Bit(std::strerror(errno)));
            whole = false;
        }
    }

    bool whole = true;
};
}

static int run(const Command &command, const Arguments &arguments, StandardOutput &out)
{
    int status = Success;
    const QStringList turns = command.takesAllFiles ? QStringList(QString()) : arguments.files;
    for (const QString &file : turns) {
        const Result result = command.run(file, arguments, out);
        out.flush(); // before the next file's problems
        for (const QString &problem : result.problems) {
            printError(problem);
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
    StandardOutput out;
    int status = Success;
    if (line.answer.isEmpty()) {
        status = run(*line.command, line.arguments, out);
    } else {
        out.write(line.answer.toUtf8());
    }
    out.flush();
    if (!out.isWhole()) {
        printError(QLatin1String("smiltool: standard output: ") + out.errorString());
        return Failure;
    }
    return status;
}
