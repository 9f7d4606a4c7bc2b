// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_SMILTOOL_H
#define SMILPARSER_SMILTOOL_H

#include <QtCore/QProcess>
#include <QtTest/QtTest>

/** What came of running a program. */
struct Outcome {
    int status = -1;
    QString out;
    QString err;
};

inline Outcome run(const QString &program, const QStringList &arguments, const QByteArray &input = QByteArray())
{
    QProcess process;
    process.setWorkingDirectory(QStringLiteral(EXAMPLES_DIR));
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    Outcome outcome;
    if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit) {
        outcome.status = process.exitCode();
    }
    outcome.out = QString::fromUtf8(process.readAllStandardOutput());
    outcome.err = QString::fromUtf8(process.readAllStandardError());
    return outcome;
}

inline Outcome smiltool(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    return run(QStringLiteral(SMILTOOL), arguments, input);
}

/** The same with words between blanks. */
inline Outcome smiltool(const char *words, const QByteArray &input = QByteArray())
{
    return smiltool(QString::fromUtf8(words).split(QLatin1Char(' ')), input);
}

/** Runs the script. $dir is a folder of its own, in which $old is a file and $board none. */
inline Outcome runScript(const QString &folder, const QString &script)
{
    const QString variables =
        QStringLiteral("tool='%1'; dir='%2'; board=\"$dir/board\"; old=\"$dir/old\"; echo old >\"$old\"; ");
    QString words = script;
    for (const char *const variable : {"$tool", "$dir", "$board", "$old"}) {
        words.replace(QLatin1String(variable), QLatin1Char('"') + QLatin1String(variable) + QLatin1Char('"'));
    }
    return run(QStringLiteral("/bin/sh"),
               {QStringLiteral("-c"), variables.arg(QStringLiteral(SMILTOOL), folder) + words});
}

inline QString readFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QStringLiteral("cannot read ") + name;
}

inline QString golden(const QString &name)
{
    return readFile(QStringLiteral(GOLDEN_DIR "/") + name);
}

inline QString inDocs(const char *name)
{
    return readFile(QStringLiteral(EXAMPLES_DIR "/../docs/") + QLatin1String(name));
}

#endif
