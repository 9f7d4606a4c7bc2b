// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// The public headers alone, in the oldest language that each Qt allows and with a host's strictest options. They need
// only compile.

#include <smilparser/mmslogger.h>
#include <smilparser/smilcomposer.h>
#include <smilparser/smilparser.h>
#include <smilparser/smilplayback.h>
#include <smilparser/smilslideshow.h>

#include <cstddef>

// Hosts store the numbers.
static_assert(SmilNode::Seq == 1 && SmilNode::Par == 2 && SmilRef::Text == 0 && SmilRef::Img == 1, "fixed");
static_assert(SmilRef::Audio == 2 && SmilRef::Video == 3 && SmilRef::Ref == 4, "fixed");

SmilDocument callAll(SmilParser &parser);

SmilDocument callAll(SmilParser &parser)
{
    QString error;
    int line = 0;
    int column = 0;
    SmilParser::Outcome outcome;
    const std::nullptr_t none = nullptr;
    // What hosts may have written before there were options: with two ways to call parse(), none is ambiguous.
    parser.parse();
    parser.parse(none);
    parser.parse(NULL);
    parser.parse(0);
    parser.parse({});
    parser.parse({}, {}, {});
    parser.parse(0, 0, 0);
    parser.parse(nullptr, &line, &column);
    parser.parse(&error, nullptr, &column);
    // With options.
    parser.parse(SmilParser::ReadOptions(), nullptr, nullptr, nullptr, nullptr);
    parser.parse({}, &outcome);
    parser.parse(SmilParser::ClockDurations | SmilParser::KeepRootSize, &outcome, &error, &line, &column);

    const SmilTimeline timeline(parser.dom().documentElement(), 5.0, [](const SmilRef &) { return 1.0; });
    const SmilScreen screen(parser.parse().header.layout);
    SmilParts parts{};
    parts.add(int(screen.rects(timeline.cuesAt(0)).size()), SmilCue{}.ref.src);
    const SmilSlideshow show(QByteArray(), {SmilPart()}, {}, 5.0, [](int) { return 1.0; });
    parts.add(show.count(), SmilPart{}.name + SmilSlide{}.cues.value(0).alt);
    // What has a default can be made of empty braces.
    SmilDocument document{};
    document.header = {};
    document.body = SmilBody{};
    document.body.root = {};
    return document;
}
