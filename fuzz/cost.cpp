// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// Looks for documents of up to 1 MiB that take longer than is promised to read and write on a small stack. The option
// -rss_limit_mb bounds their memory.

#include "grammar.h"

#include <smilparser/smilslideshow.h>

#include <ctime>

bool MMSLogger::qdebugEnabled = false;

static const int mebibyte = 1024 * 1024;
static const double promised = 12;
static const double negligible = 0.03; // seconds, in which nobody is kept waiting

/** The seconds of processor time that reading, showing and writing take. */
static double timeOf(const QByteArray &input)
{
    double seconds = 0;
    onSmallStack([&] {
        timespec begin;
        timespec end;
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &begin);
        {
            SmilParser parser(input);
            const SmilDocument &model = parser.parse();
            const SmilTimeline timeline(parser.dom().documentElement());
            SmilScreen(model.header.layout).rects(timeline.cues());
            parser.getContent();
        }
        SmilSlideshow(input, {}).slide(0);
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &end);
        seconds = double(end.tv_sec - begin.tv_sec) + double(end.tv_nsec - begin.tv_nsec) / 1e9;
    });
    return seconds;
}

static double ordinaryTimePerByte()
{
    const QByteArray slide =
        "<par dur=\"5s\"><img src=\"a.jpg\" region=\"Image\"/><text src=\"a.txt\" region=\"Text\"/></par>\n";
    const QByteArray message =
        "<smil><head/><body>\n" + slide.repeated(mebibyte / int(slide.size())) + "</body></smil>";
    return qMin(timeOf(message), timeOf(message)) / double(message.size());
}

/** The fuzzer takes each of these for a branch: so it keeps an input that takes longer than all before. */
__attribute__((section("__libfuzzer_extra_counters"))) static uint8_t reached[200];

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static double worst = 1;
    const QByteArray input = documentOf(data, size, mebibyte);
    Messages messages(0);
    static const double ordinary = ordinaryTimePerByte();
    const double allowed = qMax(promised * ordinary * double(input.size()), negligible);
    double seconds = timeOf(input);
    // The machine may have been busy.
    for (int tries = 0; tries < 4 && (seconds > allowed || seconds > worst * ordinary * mebibyte); ++tries) {
        seconds = qMin(seconds, timeOf(input));
    }
    const double times = seconds / ordinary / mebibyte;
    reached[qMin(199, int(times * 20))] = 1;
    if (times > worst) {
        worst = times;
        fprintf(stderr, "%.2f times an ordinary message of 1 MiB: %lld bytes, %.3f s\n", times, qint64(input.size()),
                seconds);
    }
    if (seconds > allowed) {
        fprintf(stderr, "Too much: %lld bytes take %.3f s; %.3f s are promised\n", qint64(input.size()), seconds,
                allowed);
        abort();
    }
    return 0;
}
