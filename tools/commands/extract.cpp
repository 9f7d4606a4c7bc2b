// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "bounds.h"
#include "commands.h"
#include "escaping.h"
#include "filenames.h"
#include "outputfolder.h"

#include <QtCore/QIODevice>

static QString lineOf(const QString &name, const MmsPart &part)
{
    return QStringLiteral("%1, %2, %3 bytes\n")
        .arg(quoted(name), printable(shortened(part.type, bounds::header)), QString::number(part.data.size()));
}

static void write(const Message &message, const QString &path, QIODevice &out, Result &result)
{
    QString problem;
    const OutputFolder folder(path, problem);
    if (!problem.isEmpty()) {
        result.well = false;
        result.problems.append(path + QLatin1String(": ") + problem);
        return;
    }
    const FileNames files = fileNames(message);
    for (int i = 0; i < int(files.names.size()); ++i) {
        const MmsPart &part = message.mms.parts.at(i);
        problem = folder.write(files.names.at(i), part.data);
        if (problem.isEmpty()) {
            out.write(lineOf(files.names.at(i), part).toUtf8());
        } else {
            result.well = false;
            result.problems.append(QStringLiteral("%1/%2: %3").arg(path, files.names.at(i), problem));
        }
    }
    for (const auto &[src, name] : files.lost) {
        result.problems.append(QStringLiteral("%1: written as %2").arg(src, name));
    }
}

static Result run(const QString &file, const Arguments &arguments, QIODevice &out)
{
    Message message;
    const Problem problem = readMessage(file, QString(), SmilParser::AsWritten, message);
    if (problem.isNone() && !message.parts.areKnown()) {
        return failure(file, QStringLiteral("is a SMIL part alone, without others"));
    }
    // A message may have pictures and no SMIL, which is no problem here; one that has bad SMIL still has its pictures.
    const bool isWell = problem.isNone() || (message.parts.areKnown() && message.mms.smil < 0);
    Result result{isWell, isWell ? QStringList() : QStringList(problem.toString())};
    if (message.parts.areKnown()) {
        write(message, arguments.folder, out, result);
    }
    return result;
}

const Command extractCommand = {"extract",
                                "FILE...",
                                IntoFolder,
                                "Writes the parts of each whole message as files.",
                                "smiltool extract message.mms -d pictures",
                                run};
