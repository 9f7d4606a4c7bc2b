// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "work.h"

#include "slides.h"

void readDom(QDomDocument &dom, QBuffer &buffer)
{
    QString error;
    int line = 0;
    int column = 0;
    // From Qt 6.8 this overload is deprecated; it is the one that the library has to use.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    dom.setContent(&buffer, &error, &line, &column);
    QT_WARNING_POP
}

namespace
{
/** The XML reader alone, on a buffer that is open: Qt 6 would warn of a closed one. */
class FloorParse : public Work
{
public:
    explicit FloorParse(int slides)
    {
        buffer.setData(slidesText(slides));
        buffer.open(QIODevice::ReadOnly);
    }

    void run() override { readDom(document, buffer); }

private:
    QBuffer buffer;
    QDomDocument document;
};

class Parse : public Work
{
public:
    explicit Parse(int slides)
        : parser(slidesText(slides))
    {
    }

    void run() override { parser.parse(&error, &line, &column); }

private:
    SmilParser parser;
    QString error;
    int line = 0;
    int column = 0;
};

/** The same tree as Write, built by hand. */
class FloorWrite : public Work
{
public:
    explicit FloorWrite(int slides)
        : model(slidesModel(slides))
    {
    }

    void run() override { buildDom(document, model); }

private:
    const SmilDocument model;
    QDomDocument document;
};

class Write : public Work
{
public:
    explicit Write(int slides)
        : parser(slidesModel(slides))
    {
    }

    void run() override { parser.getContent(); }

private:
    SmilParser parser;
};
}

std::unique_ptr<Work> makeWork(const QByteArray &name, int slides)
{
    if (name == "floor-parse") {
        return std::make_unique<FloorParse>(slides);
    }
    if (name == "parse") {
        return std::make_unique<Parse>(slides);
    }
    if (name == "floor-write") {
        return std::make_unique<FloorWrite>(slides);
    }
    if (name == "write") {
        return std::make_unique<Write>(slides);
    }
    return nullptr;
}
