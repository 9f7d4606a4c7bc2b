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

/** Adds the files in their order. Says which are to be sent under another name, or else which cannot be sent. */
static Result add(const Arguments &arguments, SmilComposer &composer)
{
    const QString output = arguments.output.isNull() ? QStringLiteral("/dev/stdout") : arguments.output;
    Result renamed;
    Result failed = {false, {}};
    for (const QString &file : arguments.files) {
        SmilRef::Type type = SmilRef::Ref;
        const QString problem =
            isSameFile(file, output) ? QStringLiteral("is the output itself") : recognise(file, type);
        if (!problem.isEmpty()) {
            failed.problems += failure(file, problem).problems;
            continue;
        }
        const QString src = composer.add(type, file);
        if (src != QFileInfo(file).fileName()) {
            renamed.problems.append(QStringLiteral("%1: to be sent as %2").arg(file, src));
        }
    }
    return failed.problems.isEmpty() ? renamed : failed;
}

static Result runCompose(const QString &, const Arguments &arguments, QIODevice &out)
{
    SmilComposer composer(arguments.size, arguments.seconds);
    const Result added = add(arguments, composer);
    if (added.ok) {
        SmilDocument message = composer.message();
        message.header.title = arguments.title;
        out.write(SmilParser(message).toXml() + '\n');
    }
    return added;
}

const Command composeCommand = {"compose",
                                "FILE...",
                                "output size seconds title",
                                "Makes the SMIL of a message of pictures, texts, sounds and films.",
                                "smiltool compose beach.jpg hello.txt -o message.smil",
                                runCompose,
                                true,
                                "A picture, a text, a sound or a film."};
