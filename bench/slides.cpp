// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "slides.h"

static SmilRegion region(const QString &id, const QString &height, const QString &top, const QString &fit)
{
    SmilRegion region;
    region.id = id;
    region.width = SmilUnit(QStringLiteral("100%"));
    region.height = SmilUnit(height);
    region.top = SmilUnit(top);
    region.left = SmilUnit(QStringLiteral("0%"));
    region.fit = fit;
    return region;
}

static SmilNode slide(int i)
{
    const QString number = QString::number(i);
    SmilNode slide(SmilNode::Par);
    slide.dur = SmilUnit(QString::number(3 + i % 8) + QLatin1Char('s'));
    slide.refs = {SmilRef(SmilRef::Img), SmilRef(SmilRef::Text)};
    slide.refs[0].src = QLatin1String("picture") + number + QLatin1String(".jpg");
    slide.refs[0].region = QStringLiteral("Image");
    slide.refs[1].src = QLatin1String("text") + number + QLatin1String(".txt");
    slide.refs[1].region = QStringLiteral("Text");
    return slide;
}

Message slidesModel(int slides)
{
    SmilDocument model;
    SmilLayout &layout = model.header.layout;
    layout.rootLayoutWidth = layout.topLayoutWidth = SmilUnit(QStringLiteral("320px"));
    layout.rootLayoutHeight = layout.topLayoutHeight = SmilUnit(QStringLiteral("240px"));
    layout.regions = {
        region(QStringLiteral("Image"), QStringLiteral("70%"), QStringLiteral("0%"), QStringLiteral("meet")),
        region(QStringLiteral("Text"), QStringLiteral("30%"), QStringLiteral("70%"), QStringLiteral("scroll"))};
    for (int i = 0; i < slides; ++i) {
        model.body.root.children.append(slide(i));
    }
    return {QByteArray(), model, QDomDocument()};
}

Message slidesText(int slides)
{
    QByteArray text = "<smil>\n<head>\n<layout>\n<root-layout width=\"320px\" height=\"240px\"/>\n"
                      "<region id=\"Image\" width=\"100%\" height=\"70%\" top=\"0%\" left=\"0%\" fit=\"meet\"/>\n"
                      "<region id=\"Text\" width=\"100%\" height=\"30%\" top=\"70%\" left=\"0%\" fit=\"scroll\"/>\n"
                      "</layout>\n</head>\n<body>\n";
    for (int i = 0; i < slides; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += "<par dur=\"" + QByteArray::number(3 + i % 8) + "s\">\n<img src=\"picture" + number
            + ".jpg\" region=\"Image\"/>\n<text src=\"text" + number + ".txt\" region=\"Text\"/>\n</par>\n";
    }
    return {text + "</body>\n</smil>\n", SmilDocument(), QDomDocument()};
}

static SmilPart partOf(const QString &type, const QString &name)
{
    SmilPart part;
    part.contentId = QLatin1Char('<') + name + QLatin1Char('>');
    part.location = part.name = name;
    part.type = type;
    return part;
}

Message slidesParts(int slides)
{
    Message message = slidesText(slides);
    for (int i = 0; i < slides; ++i) {
        message.parts.append(partOf(QStringLiteral("image/jpeg"), QStringLiteral("picture%1.jpg").arg(i)));
        message.parts.append(partOf(QStringLiteral("text/plain; charset=utf-8"), QStringLiteral("text%1.txt").arg(i)));
    }
    return message;
}

/** A name of 44 pairs of letters, by the bits of the product of @p number and @p factor as polynomials of bits. */
static QString regionName(int number, quint64 factor, QLatin1String zero)
{
    quint64 pattern = 0;
    for (int bit = 0; bit < 12; ++bit) {
        pattern ^= number >> bit & 1 ? factor << bit : 0;
    }
    QString name;
    for (int bit = 0; bit < 44; ++bit) {
        name += pattern >> bit & 1 ? QLatin1String("BB") : zero;
    }
    return name;
}

static Message regionsNamed(int regions, quint64 factor, QLatin1String zero)
{
    Message message;
    for (int i = 0; i < regions; ++i) {
        message.model.header.layout.regions.append(SmilRegion());
        message.model.header.layout.regions.last().id = regionName(i, factor, zero);
    }
    return message;
}

Message collidingRegions(int regions)
{
    // Multiples of this factor, in steps of 32 bits, leave CRC-32 as it is. Where the processor has no instruction for
    // that, Qt 5 hashes by powers of 31, and 31 * 'A' + 'a' is 31 * 'B' + 'B'.
    return regionsNamed(regions, 0x105ec76f1, QLatin1String("Aa"));
}

Message differingRegions(int regions)
{
    return regionsNamed(regions, 0x105ec76f5, QLatin1String("Ab"));
}

static QString number(const SmilUnit &measure, QLatin1String suffix)
{
    return QString::number(int(measure.value)) + suffix;
}

static QDomElement buildRegion(QDomDocument &dom, const SmilRegion &region)
{
    QDomElement element = dom.createElement(QStringLiteral("region"));
    element.setAttribute(QStringLiteral("id"), region.id);
    element.setAttribute(QStringLiteral("width"), number(region.width, QLatin1String("%")));
    element.setAttribute(QStringLiteral("height"), number(region.height, QLatin1String("%")));
    element.setAttribute(QStringLiteral("top"), number(region.top, QLatin1String("%")));
    element.setAttribute(QStringLiteral("left"), number(region.left, QLatin1String("%")));
    element.setAttribute(QStringLiteral("fit"), region.fit);
    return element;
}

static QDomElement buildHead(QDomDocument &dom, const SmilLayout &layout)
{
    QDomElement root = dom.createElement(QStringLiteral("root-layout"));
    root.setAttribute(QStringLiteral("width"), number(layout.topLayoutWidth, QLatin1String("px")));
    root.setAttribute(QStringLiteral("height"), number(layout.topLayoutHeight, QLatin1String("px")));
    QDomElement element = dom.createElement(QStringLiteral("layout"));
    element.appendChild(root);
    for (const SmilRegion &region : layout.regions) {
        element.appendChild(buildRegion(dom, region));
    }
    QDomElement head = dom.createElement(QStringLiteral("head"));
    head.appendChild(element);
    return head;
}

static QDomElement buildSlide(QDomDocument &dom, const SmilNode &slide)
{
    QDomElement par = dom.createElement(QStringLiteral("par"));
    par.setAttribute(QStringLiteral("dur"), number(slide.dur, QLatin1String("s")));
    QDomElement picture = dom.createElement(QStringLiteral("img"));
    picture.setAttribute(QStringLiteral("src"), slide.refs.at(0).src);
    picture.setAttribute(QStringLiteral("region"), slide.refs.at(0).region);
    par.appendChild(picture);
    QDomElement text = dom.createElement(QStringLiteral("text"));
    text.setAttribute(QStringLiteral("src"), slide.refs.at(1).src);
    text.setAttribute(QStringLiteral("region"), slide.refs.at(1).region);
    par.appendChild(text);
    return par;
}

void buildDom(QDomDocument &dom, const SmilDocument &model)
{
    QDomElement smil = dom.createElement(QStringLiteral("smil"));
    smil.appendChild(buildHead(dom, model.header.layout));
    QDomElement body = dom.createElement(QStringLiteral("body"));
    for (const SmilNode &slide : model.body.root.children) {
        body.appendChild(buildSlide(dom, slide));
    }
    smil.appendChild(body);
    dom.appendChild(smil);
}
