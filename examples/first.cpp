// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// The smallest program: says what the message in a file is called, and how many slides it has.

//! [first]
#include <smilparser/mmslogger.h>
#include <smilparser/smilparser.h>

#include <QtCore/QDebug>
#include <QtCore/QFile>

bool MMSLogger::qdebugEnabled = false; // every program that uses the library defines this

int main(int argc, char *argv[])
{
    QFile file(QString::fromLocal8Bit(argc > 1 ? argv[1] : "holiday.smil"));
    SmilParser parser(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    const SmilDocument &message = parser.parse();
    qInfo() << message.header.title << "has" << message.body.root.children.size() << "slides";
}
//! [first]
