// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// Builds the model of a message of two slides and prints it as text; with an argument, by way of the DOM, which says
// the language too.

#include <smilparser/mmslogger.h>
#include <smilparser/smilparser.h>

#include <cstdio>

//! [flag]
bool MMSLogger::qdebugEnabled = false;
//! [flag]

static SmilNode slide(const QString &picture, double seconds)
{
    SmilRef image(SmilRef::Img);
    image.src = picture;
    image.region = QStringLiteral("Image");
    SmilNode node(SmilNode::Par);
    node.dur = SmilUnit(seconds, SmilUnit::Sec);
    node.refs.append(image);
    return node;
}

static QByteArray textOfDom(SmilParser &parser)
{
    //! [dom]
    QDomDocument &dom = parser.getContent();
    dom.documentElement().setAttribute(QStringLiteral("xml:lang"), QStringLiteral("en"));
    const QByteArray text = dom.toByteArray(2);
    //! [dom]
    return text;
}

int main(int argc, char *[])
{
    //! [write]
    SmilDocument message;
    message.header.title = QStringLiteral("Two days at the sea");
    message.header.layout.topLayoutWidth = SmilUnit(320, SmilUnit::Px);
    message.header.layout.topLayoutHeight = SmilUnit(240, SmilUnit::Px);
    SmilRegion region;
    region.id = QStringLiteral("Image");
    region.width = region.height = SmilUnit(100, SmilUnit::Percent);
    message.header.layout.regions.append(region);
    message.body.root.children = {slide(QStringLiteral("beach.jpg"), 5), slide(QStringLiteral("harbour.jpg"), 8)};
    SmilParser parser(message);
    const QByteArray smil = parser.toXml();
    //! [write]
    std::puts(argc > 1 ? textOfDom(parser).constData() : smil.constData());
}
