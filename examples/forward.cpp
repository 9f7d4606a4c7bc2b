// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// forward [NAME...]: prints the SMIL on standard input with another title. With the names of the message's other parts,
// it prints the SMIL of a new message of these parts instead, and says under which names they are to be sent.

#include <smilparser/mmslogger.h>
#include <smilparser/smilcomposer.h>
#include <smilparser/smilslideshow.h>

#include <QtCore/QDebug>
#include <QtCore/QFile>
#include <QtCore/QMimeDatabase>

#include <cstdio>

bool MMSLogger::qdebugEnabled = false;

static QByteArray withNewTitle(const QByteArray &smil)
{
    //! [change]
    SmilParser parser(smil);
    parser.parse();
    const QDomDocument tree = parser.dom();
    QDomElement head = tree.documentElement().firstChildElement(QStringLiteral("head"));
    head.setAttribute(QStringLiteral("title"), QStringLiteral("Fwd: ") + head.attribute(QStringLiteral("title")));
    const QByteArray changed = tree.toByteArray(-1);
    //! [change]
    return changed;
}

static QByteArray composed(const QList<SmilPart> &parts)
{
    //! [forward]
    SmilComposer composer;
    QStringList names; // under which the parts are to be sent
    for (const SmilPart &part : parts) {
        const SmilRef::Type kind = part.kind();
        names << (kind == SmilRef::Ref ? composer.name(part.name) : composer.add(kind, part.name));
    }
    const QByteArray smil = SmilParser(composer.message()).toXml();
    //! [forward]
    qInfo().noquote() << names.join(QStringLiteral(", "));
    return smil;
}

int main(int argc, char *argv[])
{
    QFile file;
    const QByteArray smil = file.open(stdin, QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    QList<SmilPart> parts;
    for (int i = 1; i < argc; ++i) {
        SmilPart part;
        part.name = QString::fromLocal8Bit(argv[i]);
        part.type = QMimeDatabase().mimeTypeForFile(part.name, QMimeDatabase::MatchExtension).name();
        parts << part;
    }
    std::puts(parts.isEmpty() ? withNewTitle(smil).constData() : composed(parts).constData());
}
