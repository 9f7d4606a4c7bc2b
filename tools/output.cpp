// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "output.h"
#include "commands.h"
#include "complain.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QStringList>

#include <algorithm>

#include <sys/stat.h>
#include <unistd.h>

/** Whether both are one regular file, by whatever names; "-" is standard input. */
static bool isSameFile(const QString &input, const struct stat &output)
{
    struct stat status;
    const int failed = input == QLatin1String("-") ? fstat(STDIN_FILENO, &status)
                                                   : stat(QFile::encodeName(input).constData(), &status);
    return !failed && S_ISREG(status.st_mode) && status.st_dev == output.st_dev && status.st_ino == output.st_ino;
}

/** The descriptor that the name stands for, such as that of /dev/stdout; -1 when it is a file's name. */
static int descriptor(const QString &name)
{
    const QString path = QFileInfo(name).absoluteFilePath();
    static const QStringList standard{QStringLiteral("/dev/stdin"), QStringLiteral("/dev/stdout"),
                                      QStringLiteral("/dev/stderr")};
    for (const QLatin1String folder : {QLatin1String("/dev/fd/"), QLatin1String("/proc/self/fd/")}) {
        bool isNumber = false;
        const int number = path.mid(folder.size()).toInt(&isNumber);
        if (isNumber && path.startsWith(folder)) {
            return number;
        }
    }
    return int(standard.indexOf(path));
}

static bool refersTo(const SmilNode &node, const Parts &parts, int part)
{
    return std::any_of(node.refs.cbegin(), node.refs.cend(),
                       [&](const SmilRef &ref) { return parts.find(ref.src) == part; })
        || std::any_of(node.children.cbegin(), node.children.cend(),
                       [&](const SmilNode &child) { return refersTo(child, parts, part); });
}

/** Whether a file in the folder of the parts is one that the message refers to. */
static bool isPart(const QString &name, const QString &folder, const Message &message)
{
    const QFileInfo file(QFileInfo(name).canonicalFilePath());
    if (folder.isEmpty() || file.path() != QFileInfo(folder).canonicalFilePath()) {
        return false;
    }
    const int part = message.parts.find(file.fileName());
    return part >= 0 && refersTo(message.document.body.root, message.parts, part);
}

static bool writeTo(const QString &name, Message &message)
{
    QFile out(name);
    // Opened again, a file would be written from its beginning, over what its descriptor has written already.
    const int given = descriptor(name);
    const bool opened = given >= 0 ? out.open(dup(given), QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)
                                   : out.open(QIODevice::WriteOnly | QIODevice::ExistingOnly);
    const bool drawn = opened && storyboard(message, out) && out.flush();
    return (drawn && out.error() == QFileDevice::NoError) || complainOf(name, out.errorString());
}

static bool replace(const QString &name, Message &message)
{
    QSaveFile out(name);
    if (out.open(QIODevice::WriteOnly)) {
        if (storyboard(message, out) && out.commit()) {
            return true;
        }
    }
    return complainOf(name, out.errorString());
}

bool drawTo(const QString &name, const QString &folder, Message &message)
{
    struct stat status;
    if (stat(QFile::encodeName(name).constData(), &status) != 0) {
        return replace(name, message);
    }
    if (isSameFile(message.file, status)) {
        return complainOf(name, QStringLiteral("is the message itself"));
    }
    if (isPart(name, folder, message)) {
        return complainOf(name, QStringLiteral("is a part of the message"));
    }
    return S_ISREG(status.st_mode) && descriptor(name) < 0 ? replace(name, message) : writeTo(name, message);
}
