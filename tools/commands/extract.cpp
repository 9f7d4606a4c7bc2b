// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "commands/commands.h"
#include "output/outputfile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <set>

/** Writes the file, unless it is there already. Returns why that failed, or else nothing. */
static QString write(const QString &file, const QByteArray &data)
{
    const QString problem = createFile(file, data);
    QFile there;
    const bool isThere = !problem.isEmpty() && openPlainFile(file, Links::Refused, there).isEmpty()
        && there.size() == data.size() && there.readAll() == data;
    return isThere ? QString() : problem;
}

/** A line for each src that does not find in the folder what it means in the message. */
static QStringList lost(const Message &message, const QStringList &srcs, const QString &path,
                        const QVector<QString> &names)
{
    QString problem;
    const MessageParts files(Folder(path, problem), QString());
    if (!problem.isEmpty()) {
        return {path + QLatin1String(": ") + problem};
    }
    QStringList lines;
    std::set<QString> told;
    for (const QString &src : srcs) {
        const int part = message.parts.find(src);
        const int file = files.find(src);
        const QString meant = part < 0 ? QStringLiteral("no part") : names.at(part);
        const QString found = file < 0 ? QStringLiteral("no file") : files.at(file).name;
        const bool isSame = part < 0 || file < 0 ? part == file : meant == found;
        if (!isSame && told.insert(src).second) {
            lines.append(QStringLiteral("%1: means %2, but finds %3").arg(src, meant, found));
        }
    }
    return lines;
}

static Result writeParts(const Message &message, const QString &path, QIODevice &out)
{
    if (!QDir().mkpath(path)) {
        return failure(path, QStringLiteral("is no folder, and none can be made there"));
    }
    Result result;
    QStringList srcs;
    const QList<SmilCue> cues = SmilTimeline(message.dom.documentElement()).cues();
    for (const SmilCue &cue : cues) {
        srcs.append(cue.ref.src);
    }
    const QVector<QString> names = fileNames(message, srcs);
    for (int i = 0; i < int(names.size()); ++i) {
        const QByteArray &data = message.mms.data.at(i);
        const QString problem = write(path + QLatin1Char('/') + names.at(i), data);
        if (problem.isEmpty()) {
            out.write(partText(names.at(i), message.mms.parts.at(i).type, data).toUtf8() + '\n');
        } else {
            result.ok = false;
            result.problems.append(QStringLiteral("%1/%2: %3").arg(path, names.at(i), problem));
        }
    }
    result.problems += lost(message, srcs, path, names);
    return result;
}

static Result runExtract(const QString &file, const Arguments &arguments, QIODevice &out)
{
    return withMessage(file, arguments, [&](Message &message) {
        return message.parts.areKnown() ? writeParts(message, arguments.folder, out)
                                        : failure(file, QStringLiteral("is a SMIL part alone, without others"));
    });
}

const Command extractCommand = {"extract",
                                "FILE...",
                                "directory",
                                "Writes the parts of each whole message as files.",
                                "smiltool extract message.mms -d pictures",
                                runExtract,
                                false,
                                "A message as it is sent; - is standard input."};
