// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// Builds a message of two slides and prints it.

#include <smilparser/mmslogger.h>
#include <smilparser/smilparser.h>

#include <cstdio>

//! [flag]
bool MMSLogger::qdebugEnabled = false;
//! [flag]

static SmilNode slide(const QString &picture, const QString &duration)
{
    SmilRef image(SmilRef::Img);
    image.src = picture;
    image.region = QStringLiteral("Image");
    SmilNode node(SmilNode::Par);
    node.dur = SmilUnit(duration);
    node.refs.append(image);
    return node;
}

int main()
{
    //! [write]
    SmilDocument message;
    message.header.title = QStringLiteral("Two days at the sea");
    message.header.layout.topLayoutWidth = SmilUnit(QStringLiteral("320px"));
    message.header.layout.topLayoutHeight = SmilUnit(QStringLiteral("240px"));
    SmilRegion region;
    region.id = QStringLiteral("Image");
    region.width = region.height = SmilUnit(QStringLiteral("100%"));
    message.header.layout.regions.append(region);
    message.body.root.children = {slide(QStringLiteral("beach.jpg"), QStringLiteral("5s")),
                                  slide(QStringLiteral("harbour.jpg"), QStringLiteral("8s"))};
    SmilParser parser(message);
    const QByteArray text = parser.getContent().toByteArray(2);
    //! [write]
    std::fputs(text.constData(), stdout);
}
