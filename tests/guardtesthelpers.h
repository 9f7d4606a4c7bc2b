// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_GUARDTESTHELPERS_H
#define SMILPARSER_GUARDTESTHELPERS_H

#include "messages.h"
#include "modeldump.h"
#include "readeralone.h"

#include <QtCore/QThread>

#include <memory>

/** Calls @p function on a stack such as SECURITY.md promises to do with. */
template<typename Function>
inline void onSmallStack(Function function, uint kibibytes = 512)
{
    const std::unique_ptr<QThread> thread(QThread::create(function));
#ifdef __SANITIZE_ADDRESS__ // which takes several times the stack
    Q_UNUSED(kibibytes)
#else
    thread->setStackSize(kibibytes * 1024);
#endif
    thread->start();
    thread->wait();
}

/** All that a host is told of the input: the messages, and the model. */
inline QString toldByLibrary(const QByteArray &input, SmilParser::ReadOptions options = SmilParser::AsWritten)
{
    Messages messages(0);
    SmilParser parser(input);
    const QString model = ModelDump::of(parser.parse(options));
    parser.getContent();
    parser.toXml();
    return messages.take() + model;
}

/** The same, from the XML reader without the library before it. */
inline QString toldByReaderAlone(QByteArray input)
{
    Messages messages(0);
    // The reader of Qt 5 takes an encoding from "<?xml-a", though that is no declaration, and not from "<?yml-a".
    const QByteArray beginning = input.left(28).replace('\0', "");
    if (beginning.mid(beginning.indexOf('<')).startsWith("<?xml-")) {
        input[input.indexOf('x')] = 'y';
    }
    QBuffer buffer(&input);
    buffer.open(QIODevice::ReadOnly);
    QDomDocument dom;
    QString error;
    int line = 0;
    int column = 0;
    SmilParser parser((SmilDocument()));
    if (!readAlone(buffer, dom, error, line, column)) {
        qWarning("Fail to parse SMIL document: '%s' at (%d,%d)!", qPrintable(error), line, column);
    } else if (QDomElement smil = dom.firstChildElement(QStringLiteral("smil")); smil.isNull()) {
        qWarning("Fail to find SMIL document!");
    } else {
        parser.parseSmilDocument(smil);
    }
    const QString told = messages.take();
    return told + ModelDump::of(parser.parse()); // finds no input, so that the model stays
}

inline bool isRefused(const QString &told)
{
    return told.contains(QLatin1String("warning: Fail to parse"));
}

/** Each code unit of @p text in @p width bytes, after a byte order mark when it is @p marked. */
inline QByteArray wide(const QString &text, int width, bool bigEndian, bool marked)
{
    const QString units = (marked ? QString(QChar(QChar::ByteOrderMark)) : QString()) + text;
    QByteArray bytes(int(units.size()) * width, '\0');
    for (int i = 0; i < int(units.size()); ++i) {
        const ushort unit = units.at(i).unicode();
        bytes[i * width + (bigEndian ? width - 1 : 0)] = char(unit & 0xff);
        bytes[i * width + (bigEndian ? width - 2 : 1)] = char(unit >> 8);
    }
    return bytes;
}

#endif
