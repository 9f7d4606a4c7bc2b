// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/bounds.h"
#include "commands/commands.h"
#include "input/content.h"
#include "input/files.h"
#include "output/outputfile.h"

#include <smilparser/smilcomposer.h>
#include <smilparser/smilslideshow.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

/** Finds out what plays the file. Returns why it cannot be in a message, or else nothing. */
static QString recognise(const QString &name, SmilRef::Type &type)
{
    if (name == QLatin1String("-")) {
        return QStringLiteral("standard input has no name under which it could be sent");
    }
    QFile file;
    const QString problem = openPlainFile(name, Links::Followed, file);
    if (!problem.isEmpty()) {
        return problem;
    }
    SmilPart part;
    part.type = recognisedType(file.read(bounds::recognised));
    if (file.error() != QFileDevice::NoError) {
        return file.errorString();
    }
    type = part.kind();
    return type == SmilRef::Ref ? QStringLiteral("is no picture, text, sound or film, but %1").arg(part.type)
                                : QString();
}

/** Adds the files in their order, and a line for each that is to be sent under another name, or else all problems. */
static Result add(const QStringList &files, const QString &output, SmilComposer &composer)
{
    Result result;
    QStringList renamed;
    for (const QString &file : files) {
        SmilRef::Type type = SmilRef::Ref;
        const QString problem =
            isSameFile(file, output) ? QStringLiteral("is the output itself") : recognise(file, type);
        if (!problem.isEmpty()) {
            result.ok = false;
            result.problems += failure(file, problem).problems;
            continue;
        }
        const QString src = composer.add(type, file);
        if (src != QFileInfo(file).fileName()) {
            renamed.append(QStringLiteral("%1: to be sent as %2").arg(file, src));
        }
    }
    if (result.ok) {
        result.problems = renamed;
    }
    return result;
}

static Result run(const QString &, const Arguments &arguments, QIODevice &out)
{
    SmilComposer composer(arguments.size, arguments.seconds);
    const Result added =
        add(arguments.files, arguments.toFile() ? arguments.output : QStringLiteral("/dev/stdout"), composer);
    if (!added.ok) {
        return added;
    }
    SmilDocument message = composer.message();
    message.header.title = arguments.title;
    const QByteArray text = SmilParser(message).toXml() + '\n';
    if (!arguments.toFile()) {
        out.write(text);
        return added;
    }
    const QString problem = writeFile(arguments.output, text);
    return problem.isEmpty() ? added : failure(arguments.output, problem);
}

const Command composeCommand = {"compose",
                                "FILE...",
                                "output size seconds title",
                                "Makes a message of pictures, texts, sounds and films.",
                                "smiltool compose beach.jpg hello.txt -o message.smil",
                                run,
                                true,
                                "A picture, a text, a sound or a film."};
