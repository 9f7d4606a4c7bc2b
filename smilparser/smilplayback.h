// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPLAYBACK_H
#define SMILPLAYBACK_H

#include <smilparser/smilparser.h>

#include <QtCore/QMap>
#include <QtCore/QRectF>
#include <QtCore/QSharedDataPointer>
#include <QtCore/QSizeF>

#include <functional>

/**
 * @file
 * How a message is shown: *when* each medium plays (SmilTimeline), *where* on the screen (SmilScreen), and *which* part
 * of the message it is (SmilParts). SmilSlideshow, in smilslideshow.h, puts these together and shows a whole message.
 *
 * All are plain values: a copy shares what it holds with the source until one of the two is changed, and costs the same
 * however much that is. What has been moved from may only be destroyed or assigned to. Fields may be set to anything:
 * nothing is checked. None of these classes warns or throws, and nothing is NaN unless a host sets it to that.
 */

/** One medium of the timeline, and when it plays: one for each element that names a medium, even if it never plays. */
class SMILPARSER_EXPORT SmilCue
{
public:
    /** A SmilRef::Ref without texts and parameters that never plays: #begin and #end are 0, #line is -1. */
    SmilCue();
    SmilCue(const SmilCue &other); ///< A copy.
    SmilCue(SmilCue &&other) noexcept; ///< Takes over @p other, which may then only be assigned to or destroyed.
    SmilCue &operator=(const SmilCue &other); ///< Makes this a copy of @p other.
    SmilCue &operator=(SmilCue &&other) noexcept; ///< Takes over @p other, as the constructor.
    ~SmilCue(); ///< Releases what no copy shares.

    SmilRef ref; ///< the kind, the source and the region, as SmilParser::parseSmilNodes() reads them
    QString alt; ///< attribute "alt", verbatim: words in place of the medium; null when absent

    /**
     * Attribute "value" of its children "param", verbatim, by their "name"; null when absent. The first of several with
     * one name counts; one whose name is absent or empty is left out. Only "param" in lower case is read.
     */
    QMap<QString, QString> params;

    /**
     * The colour behind it: its parameter "background-color", or else attribute "background-color", or else
     * "backgroundColor", of the first region whose SmilRegion::id is SmilRef::region. Verbatim; null when none of them
     * is stated. An empty one is not stated.
     */
    QString background;

    QString fit; ///< the SmilRegion::fit of that region, for SmilScreen::fitted(); null when there is none
    int line; ///< of its element in the text that was parsed, from 1 on; -1 where the tree was made otherwise

    double begin; ///< seconds from the beginning of the message; may be infinite
    double end; ///< as #begin, and never before it; equal to it when the medium never plays

    bool operator==(const SmilCue &other) const; ///< whether all fields except #line are equal
    bool operator!=(const SmilCue &other) const; ///< the opposite of "=="

private:
    QSharedDataPointer<class SmilCueData> d; // for fields to come
};
Q_DECLARE_TYPEINFO(SmilCue, Q_MOVABLE_TYPE);

/**
 * When everything plays. It is read from the DOM, because the model keeps neither "begin" and "end" nor the order of
 * media and nodes in a "seq".
 *
 * Cost: constructing takes time linear in the number of elements and in the length of the times, n log n in the number
 * of media and in that of the params of each, and one call level per level of nesting; a stack of 512 KiB is enough.
 * Choosing from the cues is linear in the number of all cues. Texts are shared.
 */
class SMILPARSER_EXPORT SmilTimeline
{
public:
    /** One in which nothing plays, and which takes no time. */
    SmilTimeline();

    /**
     * The timeline of the first child "body" of @p smil, which is the document element of SmilParser::dom() or
     * SmilParser::getContent(). It is empty when there is no body, or when @p smil is null or no "smil" element. There
     * need not be a "head"; if there is, colours and fits are those of its first "layout". Nothing in the tree is
     * changed.
     *
     * It sees what SmilParser::parseSmilNodes() sees: "par", "seq" and the five media in any letter case. Other
     * elements are skipped with all they hold, and so are nodes nested deeper than SmilParser::MaxDepth below the body.
     * "repeatCount", "repeatDur" and their like are ignored: everything plays once.
     *
     * **What is stated.** A "dur" is stated when SmilUnit::convertClock(), or else SmilUnit::convert() in
     * SmilUnit::Sec, gives a finite number above 0. A "begin" or "end" is stated when SmilUnit::convertClock()
     * understands it; a "+" at its beginning is dropped before. Anything else counts as absent: "indefinite", an event
     * such as "click", a time before the beginning. A "begin" that is not stated is 0.
     *
     * **What nothing states.** @p length returns how many seconds a medium takes by itself. It is called for each
     * medium that states neither "dur" nor "end", once and in document order. The result counts when it is finite and
     * above 0; @p length may be null. A medium that has no length either is *open*: where nothing else says how long it
     * lasts, it takes @p slideDuration seconds, which is 5 when it is not finite and above 0.
     *
     * **Begin and end.** Everything begins its "begin" after its base. In a "par" the base is the begin of the par; in
     * a "seq" it is the end of what precedes. It ends at the earlier of its begin plus "dur" and its base plus "end",
     * and never before its begin. With neither stated, a medium takes its length, and a node takes what is in it:
     *
     * - A "seq", and "body" is one, plays its media and nodes one after another, in document order. An open medium
     *   takes @p slideDuration; the last one lasts until the seq ends.
     * - A "par" plays until the last thing in it ends. For this, an open medium takes @p slideDuration, and an open
     *   audio does not count. If the par would take no time then, and there is an open medium directly in it, it takes
     *   @p slideDuration. All open media last until the par ends.
     *
     * Nothing outlasts the node around it. What would begin after the end of that begins and ends there, and so never
     * plays.
     *
     * Times are sums from 0 on, in document order, and compared as they are. Those beyond the range of a double are
     * infinite.
     */
    explicit SmilTimeline(const QDomElement &smil, double slideDuration = 5.0,
                          const std::function<double(const SmilRef &)> &length = nullptr);

    SmilTimeline(const SmilTimeline &other); ///< A copy.
    SmilTimeline(SmilTimeline &&other) noexcept; ///< Takes over @p other, which may only be assigned to or destroyed.
    SmilTimeline &operator=(const SmilTimeline &other); ///< Makes this a copy of @p other.
    SmilTimeline &operator=(SmilTimeline &&other) noexcept; ///< Takes over @p other, as the constructor.
    ~SmilTimeline(); ///< Releases what no copy shares.

    /** Every medium exactly once, by SmilCue::begin; those that begin together are in document order. */
    QList<SmilCue> cues() const;

    /**
     * Where a host pages, in seconds: ascending, each once.
     *
     * Each child of "body" in which anything plays gives a page, which begins when the first thing plays. A further
     * page begins in it whenever something begins after something that began on the same page has ended; sounds count
     * for neither. Everything that plays is on a page.
     */
    QList<double> slideBegins() const;

    /** The end of "body" in seconds, whether something plays then or not; 0 when empty; may be infinite. */
    double duration() const;

    /**
     * The colour behind everything: attribute "background-color", or else "backgroundColor", of the first
     * "root-layout", or else of the first "topLayout". Verbatim; null when none of them is stated. An empty one is not
     * stated. There need not be a "body".
     */
    QString background() const;

    /**
     * What plays @p seconds after the beginning of the message, in the order of cues(): begin <= @p seconds < end.
     * Nothing plays before 0, at infinity and at NaN.
     */
    QList<SmilCue> cuesAt(double seconds) const;

    /**
     * What plays at some time from @p from until before @p to, in the order of cues(): begin < @p to, end > @p from,
     * and begin < end. @p to may be infinite. Nothing does if one of them is NaN.
     */
    QList<SmilCue> cuesBetween(double from, double to) const;

    /**
     * Everything that the page at @p index of slideBegins() shows, what begins late on it too: cuesBetween() its begin
     * and that of the next page, or infinity. Nothing for any other @p index.
     */
    QList<SmilCue> cuesOnSlide(int index) const;

    /**
     * When the next thing after @p seconds begins to play or ends: until then, cuesAt() stays the same. Infinite when
     * nothing does, and for NaN. What never plays does not count. duration() may be later.
     */
    double nextChange(double seconds) const;

private:
    QSharedDataPointer<class SmilTimelineData> d;
};
Q_DECLARE_TYPEINFO(SmilTimeline, Q_MOVABLE_TYPE);

/**
 * Where everything is shown, in pixels of the message: x to the right and y down from the upper left corner of the
 * root layout.
 *
 * Cost: constructing takes n log n in the number of regions, and looking one up log n, both times the length of the
 * ids; rects() takes n log n in the number of cues and regions, times the length of the ids. Everything else is
 * constant.
 */
class SMILPARSER_EXPORT SmilScreen
{
public:
    /** One of no size and without regions. */
    SmilScreen();

    /**
     * The screen of @p layout on a device of that size in pixels. A side of @p device that is not finite and above 0 is
     * 240 (the width) or 320 (the height). The layout is not changed.
     *
     * Pixels count as they are; percent are of the length that they are measured against; an inch is 96 pixels, 2.54 cm
     * or 72 pt. A measure that is invalid, of another unit, or not finite, also in pixels, counts as not stated.
     */
    explicit SmilScreen(const SmilLayout &layout, const QSizeF &device = QSizeF(240, 320));

    SmilScreen(const SmilScreen &other); ///< A copy.
    SmilScreen(SmilScreen &&other) noexcept; ///< Takes over @p other, which may then only be assigned to or destroyed.
    SmilScreen &operator=(const SmilScreen &other); ///< Makes this a copy of @p other.
    SmilScreen &operator=(SmilScreen &&other) noexcept; ///< Takes over @p other, as the constructor.
    ~SmilScreen(); ///< Releases what no copy shares.

    /**
     * The size of the root layout; both sides are finite and above 0. On each axis it is the first of these:
     *
     * - the root layout's measure, if that is above 0; percent are of the device;
     * - the top layout's measure, likewise;
     * - how far the farthest region reaches, of those whose length is stated, not in percent, and whose "left" or "top"
     *   is so too or not stated;
     * - as long to the other side as the device's are to each other, if the other side is known;
     * - the device's.
     */
    QSizeF size() const;

    /**
     * The rectangle of each region, as many and in the same order as SmilLayout::regions. A region that reaches beyond
     * the edges is not cut off, one of negative length is 0 long, and nothing is infinite.
     *
     * On each axis, percent are of size(). The length is the stated one, or else what remains between "left" and
     * "right" ("top" and "bottom"), each of which is 0 when not stated. The region begins at "left", or else so that it
     * ends at "right", or else at 0. Where all three are stated, "right" is ignored.
     */
    QList<QRectF> regionRects() const;

    /**
     * The index, in regionRects() and in SmilLayout::regions, of the first region whose SmilRegion::id is @p id; -1
     * when there is none, and for a null or empty id. The letter case matters.
     */
    int regionIndex(const QString &id) const;

    /**
     * Where each of @p cues is shown when all of them are shown together: one rectangle for each, in their order, and
     * a null one for audio. When they play does not matter.
     *
     * A medium is shown in the area of its region, or on the whole screen when it names no region or one that the
     * layout lacks. Those of the same area share it in equal parts in their order: side by side if it is wider than
     * high, or else one above the other. Areas are the same when their rectangles are, whatever the regions are called.
     */
    QList<QRectF> rects(const QList<SmilCue> &cues) const;

    /**
     * The rectangle that the whole of a picture of size @p picture, in pixels of the message, takes when it is shown in
     * @p area by @p fit, which is its SmilCue::fit. It is in the middle of the area. It may be larger than the area;
     * then the host cuts it off at the edges.
     *
     * | fit                            | The rectangle                                                               |
     * |--------------------------------|-----------------------------------------------------------------------------|
     * | "fill"                         | the area: the picture is distorted                                          |
     * | "slice"                        | the smallest of the picture's shape that covers the area                    |
     * | "hidden", "scroll", "meetBest" | of the picture's own size if that fits, else as "meet"                      |
     * | "meet", and anything else      | the largest of the picture's shape that fits in the area                    |
     *
     * The letter case matters; null and empty are "anything else".
     *
     * For a picture whose sides are not both finite and above 0, it is an empty rectangle in the middle of the area,
     * whatever @p fit says. In an area without width or height, so is everything that must fit in.
     */
    static QRectF fitted(const QSizeF &picture, const QRectF &area, const QString &fit);

private:
    QSharedDataPointer<class SmilScreenData> d;
};
Q_DECLARE_TYPEINFO(SmilScreen, Q_MOVABLE_TYPE);

/**
 * Which part of a message a SmilRef::src means. The host numbers the parts, from 0 on, and adds the names of each. By
 * default there are none. Cost: log n in the number of names, times the length of the name.
 */
class SMILPARSER_EXPORT SmilParts
{
public:
    SmilParts(); ///< Without parts.
    SmilParts(const SmilParts &other); ///< A copy.
    SmilParts(SmilParts &&other) noexcept; ///< Takes over @p other, which may then only be assigned to or destroyed.
    SmilParts &operator=(const SmilParts &other); ///< Makes this a copy of @p other.
    SmilParts &operator=(SmilParts &&other) noexcept; ///< Takes over @p other, as the constructor.
    ~SmilParts(); ///< Releases what no copy shares.

    /**
     * Adds @p name, which is a Content-ID, a Content-Location or a file name, as one that part @p part has: verbatim,
     * and *bare*. A name is made bare by dropping a quotation mark at its beginning and one at its end, then "cid:" in
     * any letter case at its beginning, then "<" at its beginning and ">" at its end, each where it is there.
     *
     * A part may have several names. A name that several parts have is that of the first one it was added for. Nothing
     * changes for a name that is null or has nothing left when it is bare, and for a negative @p part.
     */
    void add(int part, const QString &name);

    /**
     * The part that @p src means, or -1. These are tried in turn, each among all parts: the name that is exactly
     * @p src; the bare name that is @p src bare; that with each %XX decoded, as UTF-8, and bare again; and that in any
     * letter case. Folders are part of a name: "../b.txt" and "b.txt" are two. A null or empty @p src means no part.
     */
    int find(const QString &src) const;

private:
    QSharedDataPointer<class SmilPartsData> d;
};
Q_DECLARE_TYPEINFO(SmilParts, Q_MOVABLE_TYPE);

#endif
