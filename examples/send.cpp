// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// Composes a message of pictures, a text and a sound, prints it, and says under which names the parts are to be sent.

#include <smilparser/mmslogger.h>
#include <smilparser/smilcomposer.h>

#include <QtCore/QDebug>

#include <cstdio>

bool MMSLogger::qdebugEnabled = false;

int main()
{
    //! [compose]
    SmilComposer composer;
    QStringList names; // under which the parts are to be sent
    names << composer.add(SmilRef::Img, QStringLiteral("pictures/beach & boats.jpg"));
    names << composer.add(SmilRef::Text, QStringLiteral("hello.txt"));
    names << composer.add(SmilRef::Img, QStringLiteral("pictures/harbour.jpg"));
    names << composer.add(SmilRef::Audio, QStringLiteral("waves.amr"), 8);
    SmilDocument message = composer.message();
    message.header.title = QStringLiteral("Two days at the sea");
    const QByteArray smil = SmilParser(message).toXml();
    //! [compose]
    std::puts(smil.constData());
    qInfo().noquote() << names.join(QStringLiteral(", "));
}
