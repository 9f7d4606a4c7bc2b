// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// Makes a model and a list of media out of bytes. What is written of either can be read, and is the same then; of what
// is composed, each part is found, and there is nothing to be told.

#include "commands/commands.h"
#include "require.h"

#include "tests/messages.h"

#include <smilparser/smilcomposer.h>
#include <smilparser/smilplayback.h>

#include <QtCore/QBuffer>

#include <algorithm>

bool MMSLogger::qdebugEnabled = false;

namespace
{
/** A fuzzer's bytes, one after another; after the last one there are zeros. */
struct Bytes {
    const uint8_t *at;
    const uint8_t *end;

    bool more() const { return at != end; }
    int next(int count) { return more() ? *at++ % count : 0; }
    double number()
    {
        static const double odd[] = {0, 1e300, 5e-324, -1, 33.33333333, 0.00001, qInf(), qQNaN()};
        const int chosen = next(256);
        return chosen < 8 ? odd[chosen] : chosen * 1.25;
    }
    QString text()
    {
        static const ushort odd[] = {0xd83c, 0xdf0a, 0xfffd, 0xfffe, 0xffff, 0xfeff, 0x2028, 0x85, 0xe9, 0x4f60};
        QString text;
        for (int left = next(48) - 8; left > 0; --left) {
            const int chosen = next(138);
            text += QChar(chosen < 128 ? ushort(chosen) : odd[chosen - 128]);
        }
        return text;
    }
    SmilUnit measure()
    {
        SmilUnit measure(number(), SmilUnit::Unit(next(8)));
        measure.valid = next(4) != 0;
        return measure;
    }
};
}

/** Of a character that XML does not allow, or half of a surrogate pair, Qt's text of a tree makes what it likes. */
static bool isXml(const QString &text)
{
    return QString::fromUtf8(text.toUtf8()) == text && std::all_of(text.begin(), text.end(), [](QChar c) {
               return c == u'\t' || c == u'\n' || c == u'\r' || (c >= u' ' && c.unicode() < 0xfffe);
           });
}

/** A node with what the bytes say is in it, no deeper than one byte in an element may be on average. */
static SmilNode nodeOf(Bytes &bytes, int level)
{
    SmilNode node(bytes.next(3));
    node.dur = bytes.measure();
    while (bytes.more()) {
        const int what = bytes.next(8);
        if (what >= 6) {
            return node;
        }
        if (what == 5 && level < 28) {
            node.children << nodeOf(bytes, level + 1);
        } else {
            node.refs << SmilRef(what);
            node.refs.last().src = bytes.text();
            node.refs.last().region = bytes.text();
        }
    }
    return node;
}

static SmilDocument modelOf(Bytes &bytes)
{
    SmilDocument model;
    model.header.title = bytes.text();
    model.header.layout.topLayoutWidth = bytes.measure();
    for (int left = bytes.next(4); left > 0; --left) {
        model.header.metas << SmilMeta();
        model.header.metas.last().content = bytes.text();
        model.header.layout.regions << SmilRegion();
        SmilRegion &region = model.header.layout.regions.last();
        region.id = bytes.text();
        region.left = region.bottom = bytes.measure();
    }
    while (bytes.more()) {
        model.body.root.children << nodeOf(bytes, 0);
    }
    return model;
}

static SmilDocument read(const QByteArray &text)
{
    Messages messages(0);
    SmilParser parser(text);
    SmilParser::Outcome outcome;
    const SmilDocument model = parser.parse(SmilParser::ClockDurations | SmilParser::KeepRootSize, &outcome);
    require(outcome == SmilParser::Complete && messages.take().isEmpty(), "what was written is complete");
    return model;
}

/** Of what is composed, each part is found, and there is nothing to report. */
static void requireComposed(Bytes bytes)
{
    SmilParts parts;
    int count = 0;
    const double width = bytes.number();
    SmilComposer composer(QSizeF(width, bytes.number()), bytes.number());
    while (bytes.more()) {
        const int what = bytes.next(6);
        if (what == 5) {
            composer.nextSlide();
            continue;
        }
        const QString name = bytes.text();
        const QString src = composer.add(SmilRef::Type(what), name, bytes.number());
        require(!src.isEmpty() && src.size() <= 27 && parts.find(src) < 0, "a src is short and new");
        parts.add(count, src);
        require(parts.find(src) == count++, "a src means its part");
    }
    const QByteArray text = SmilParser(composer.message()).toXml();
    require(read(text) == composer.message(), "what is composed is the same when read");
    Message message = readBytes(text, QStringLiteral("-"), QString());
    QBuffer findings;
    findings.open(QIODevice::WriteOnly);
    // A sound may be alone on its slide.
    const bool good = message.problem.isNone() && !check(message, {QStringLiteral("blank-time")}, findings);
    require(count == 0 || good, "there is nothing to report");
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Bytes bytes{data, data + size};
    requireComposed(bytes);
    SmilParser parser(modelOf(bytes));
    const SmilDocument again = read(parser.toXml());
    const QDomDocument tree = parser.getContent();
    require(!isXml(tree.toString(-1)) || again == read(tree.toByteArray(-1)), "the text is that of the tree");
    return 0;
}
