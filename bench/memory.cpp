// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// memory model|dom|both SLIDES: the bytes of the heap that reading a message leaves in use when the parser has been
// dropped, when there is nothing but the DOM, and when the parser is kept, which holds both.
// memory sizes: the bytes of each record, one a line.

#include "slides.h"
#include "work.h"

#include <cstdio>

#include <malloc.h>

static size_t inUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

static size_t modelSize(const QByteArray &bytes)
{
    const size_t before = inUse();
    SmilDocument model;
    {
        SmilParser parser(bytes);
        model = parser.parse();
    }
    return inUse() - before;
}

static size_t domSize(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    const size_t before = inUse();
    QDomDocument dom;
    readDom(dom, buffer);
    return inUse() - before;
}

static size_t bothSize(const QByteArray &bytes)
{
    const size_t before = inUse();
    SmilParser parser(bytes);
    parser.parse();
    return inUse() - before;
}

static void printSizes()
{
    std::printf("SmilUnit %zu\nSmilRef %zu\nSmilNode %zu\nSmilBody %zu\n", sizeof(SmilUnit), sizeof(SmilRef),
                sizeof(SmilNode), sizeof(SmilBody));
    std::printf("SmilMeta %zu\nSmilRegion %zu\nSmilLayout %zu\nSmilHeader %zu\n", sizeof(SmilMeta), sizeof(SmilRegion),
                sizeof(SmilLayout), sizeof(SmilHeader));
    std::printf("SmilDocument %zu\n", sizeof(SmilDocument));
}

int main(int argc, char **argv)
{
    const QByteArray what = argc > 1 ? argv[1] : "";
    if (what == "sizes") {
        printSizes();
        return 0;
    }
    const auto size = what == "model" ? modelSize : what == "dom" ? domSize : what == "both" ? bothSize : nullptr;
    if (!size || argc != 3) {
        std::fputs("usage: memory model|dom|both SLIDES\n       memory sizes\n", stderr);
        return 2;
    }
    // The first message leaves tables behind that Qt builds once.
    size(slidesText(3));
    std::printf("%zu\n", size(slidesText(QByteArray(argv[2]).toInt())));
    return 0;
}
