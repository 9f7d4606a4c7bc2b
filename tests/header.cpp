// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// The public headers alone, in the oldest language that each Qt allows and with a host's strictest options. They need
// only compile.

#include <smilparser/mmslogger.h>
#include <smilparser/smilcomposer.h>
#include <smilparser/smilparser.h>
#include <smilparser/smilplayback.h>

#include <cstddef>

// Hosts store the numbers.
static_assert(SmilNode::Seq == 1 && SmilNode::Par == 2 && SmilRef::Text == 0 && SmilRef::Img == 1, "fixed");
static_assert(SmilRef::Audio == 2 && SmilRef::Video == 3 && SmilRef::Ref == 4, "fixed");

SmilDocument makeDefaults();
void callWithoutOptions(SmilParser &parser);
void callWithOptions(SmilParser &parser);
int callPlayback(SmilParser &parser);

/** What has a default can be made of empty braces. */
SmilDocument makeDefaults()
{
    SmilDocument document{};
    document.body = SmilBody{};
    document.body.root = {};
    document.header = {};
    return document;
}

/** What hosts may have written before there were options: with two ways to call parse(), none is ambiguous. */
void callWithoutOptions(SmilParser &parser)
{
    QString error;
    int line = 0;
    int column = 0;
    const std::nullptr_t none = nullptr;
    parser.parse();
    parser.parse(nullptr);
    parser.parse(none);
    parser.parse(NULL);
    parser.parse(0);
    parser.parse({});
    parser.parse(&error);
    parser.parse({}, {}, {});
    parser.parse(0, 0, 0);
    parser.parse(nullptr, nullptr);
    parser.parse(nullptr, &line, &column);
    parser.parse(&error, nullptr, &column);
    parser.parse(&error, &line, &column);
}

void callWithOptions(SmilParser &parser)
{
    SmilParser::Outcome outcome;
    QString error;
    int line = 0;
    int column = 0;
    SmilParser::ReadOptions options = SmilParser::ClockDurations;
    options |= SmilParser::KeepRootSize;
    parser.parse(SmilParser::AsWritten);
    parser.parse(SmilParser::ReadOptions(), nullptr, nullptr, nullptr, nullptr);
    parser.parse({}, &outcome);
    parser.parse(SmilParser::ClockDurations | SmilParser::KeepRootSize, &outcome);
    parser.parse(options, &outcome, &error, &line, &column);
}

int callPlayback(SmilParser &parser)
{
    SmilTimeline timeline{};
    timeline = SmilTimeline(parser.dom().documentElement(), 5.0, [](const SmilRef &) { return 1.0; });
    SmilScreen screen{};
    screen = SmilScreen(parser.parse().header.layout);
    SmilParts parts{};
    return int(screen.rects(timeline.cuesAt(0)).size()) + parts.find(SmilCue{}.ref.src);
}
