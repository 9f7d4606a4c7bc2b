// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "contenders.h"

#include "modeldump.h"
#include "readeralone.h"
#include "xmlstream.h"

#include <cstdio>

static void floorParse(const Message &message, Made &made)
{
    QBuffer buffer;
    buffer.setData(message.text);
    buffer.open(QIODevice::ReadOnly); // Qt 6 would warn of a closed one
    QString error;
    int line = 0;
    int column = 0;
    readAlone(buffer, made.dom, error, line, column);
}

static void parse(const Message &message, Made &made)
{
    made.parser.emplace(message.text);
    made.model = made.parser->parse();
}

static void floorWrite(const Message &message, Made &made)
{
    buildDom(made.dom, message.model);
}

static void write(const Message &message, Made &made)
{
    made.parser.emplace(message.model);
    made.dom = made.parser->getContent();
}

static Message slidesRead(int slides)
{
    SmilParser parser(slidesText(slides).text);
    return {QByteArray(), parser.parse(), parser.dom()};
}

static void show(const Message &message, Made &made)
{
    made.timeline = SmilTimeline(message.dom.documentElement());
    made.screen = SmilScreen(message.model.header.layout);
}

static void slideshow(const Message &message, Made &made)
{
    made.slideshow = SmilSlideshow(message.text, message.parts);
}

static void lookUp(const Message &message, Made &made)
{
    made.screen = SmilScreen(message.model.header.layout);
    SmilParts parts;
    for (const SmilRegion &region : message.model.header.layout.regions) {
        parts.add(made.screen.regionIndex(region.id), region.id);
    }
    for (const SmilRegion &region : message.model.header.layout.regions) {
        parts.find(region.id);
    }
}

static void floorText(const Message &message, Made &made)
{
    made.text = SmilParser(message.model).getContent().toByteArray(-1); // the tree is dropped, too
}

static void text(const Message &message, Made &made)
{
    made.text = SmilParser(message.model).toXml();
}

static SmilDocument readWithLibrary(const QByteArray &text)
{
    return SmilParser(text).parse();
}

template<SmilDocument (*read)(const QByteArray &)>
static void keepModel(const Message &message, Made &made)
{
    made.model = read(message.text);
}

const std::vector<Contender> contenders = {
    {"floor-parse", slidesText, floorParse},
    {"parse", slidesText, parse},
    {"floor-write", slidesModel, floorWrite},
    {"write", slidesModel, write},
    {"show", slidesRead, show},
    {"slideshow", slidesParts, slideshow},
    {"show-differing", differingRegions, lookUp},
    {"show-colliding", collidingRegions, lookUp},
    {"floor-text", slidesModel, floorText},
    {"text", slidesModel, text},
    {"model", slidesText, keepModel<readWithLibrary>}, // the parser is dropped, and its DOM with it
    {"xmlstream", slidesText, keepModel<readWithXmlStream>},
};

static QString treeOf(const SmilDocument &model)
{
    QDomDocument dom;
    buildDom(dom, model);
    return ModelDump::of(dom);
}

bool contendersAgree(int slides)
{
    const SmilDocument model = slidesModel(slides).model;
    const QString tree = treeOf(model);
    for (const Contender &contender : contenders) {
        if (contender.pass == lookUp) {
            continue; // of no slides
        }
        Made made;
        contender.pass(contender.message(slides), made);
        if (contender.pass == show || contender.pass == slideshow) {
            const bool agrees = contender.pass == slideshow
                ? made.slideshow.count() == slides && made.slideshow.slide(slides - 1).parts.value(1) == 2 * slides - 1
                : int(made.timeline.slideBegins().size()) == slides && int(made.timeline.cues().size()) == 2 * slides
                    && made.screen.regionRects().size() == 2;
            if (!agrees) {
                std::fprintf(stderr, "%s of %d slides has lost some\n", contender.name, slides);
                return false;
            }
            continue;
        }
        if (!made.text.isEmpty()) {
            made.dom.setContent(made.text);
        }
        SmilLayout &layout = made.model.header.layout;
        layout.topLayoutWidth = layout.rootLayoutWidth; // the model states the size twice, the text once
        layout.topLayoutHeight = layout.rootLayoutHeight;
        if (made.dom.isNull() ? made.model != model : ModelDump::of(made.dom) != tree) {
            std::fprintf(stderr, "%s comes to something else for %d slides\n", contender.name, slides);
            return false;
        }
    }
    return true;
}
