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
 * of the message it is (SmilParts). SmilSlideshow, in smilslideshow.h, is made of these and shows a whole message.
 *
 * All are plain values, as those of the model: a copy shares what it holds with the source until one of the two is
 * changed, and costs the same however much that is. What has been moved from may only be destroyed or assigned to.
 * Fields may be set to anything: nothing is checked, and the operations use what is there. None of them warns or
 * throws, and nothing is NaN unless a host sets it to that.
 */

/**
 * One medium of the timeline: what plays, and when. An element that names a picture, text, sound or film gives one,
 * also when it never plays.
 */
class SMILPARSER_EXPORT SmilCue
{
public:
    /** A SmilRef::Ref without texts and parameters that never plays: #begin and #end are 0, #line is -1. */
    SmilCue();
    SmilCue(const SmilCue &other); ///< A copy.
    SmilCue(SmilCue &&other) noexcept; ///< The same; @p other may only be destroyed or assigned to after that.
    SmilCue &operator=(const SmilCue &other); ///< Makes this a copy of @p other.
    SmilCue &operator=(SmilCue &&other) noexcept; ///< The same, as the constructor.
    ~SmilCue(); ///< Releases what no copy shares.

    SmilRef ref; ///< the kind, the source and the region, as SmilParser::parseSmilNodes() reads them
    QString alt; ///< attribute "alt", verbatim: words in place of the medium; null when absent

    /**
     * Its children "param", written so, by their "name", verbatim: attribute "value", null when absent. Of several with
     * one name the first counts; one whose name is absent or empty is left out. Phones state colours of texts here.
     */
    QMap<QString, QString> params;

    /**
     * The colour behind it: its parameter "background-color", or else attribute "background-color", or else
     * "backgroundColor", of the first region whose SmilRegion::id is SmilRef::region. Verbatim; null when none of them
     * is stated, which an empty one is not.
     */
    QString background;

    QString fit; ///< the SmilRegion::fit of that region, for SmilScreen::fitted(); null when there is none
    int line; ///< of its element in the text that was parsed, from 1 on; -1 where the tree was made otherwise

    double begin; ///< seconds from the beginning of the message; may be infinite
    double end; ///< as #begin, and never before it; equal to it when the medium never plays

    bool operator==(const SmilCue &other) const; ///< whether all fields but #line are equal, as those of records are
    bool operator!=(const SmilCue &other) const; ///< the opposite of "=="

private:
    QSharedDataPointer<class SmilCueData> d; // for fields to come
};
Q_DECLARE_TYPEINFO(SmilCue, Q_MOVABLE_TYPE);

/**
 * When everything plays. It is read from the DOM, because the model keeps neither "begin" and "end" nor the order of
 * media and nodes in a "seq".
 *
 * The times follow SMIL, but for what a message means and SMIL would not give: a picture or text that states no time
 * stays for a while instead of for no time at all, and a short sound does not take away the picture beside it.
 */
class SMILPARSER_EXPORT SmilTimeline
{
public:
    /** One in which nothing plays, and which takes no time. */
    SmilTimeline();

    /**
     * The timeline of the first child "body" of @p smil, which is the document element of SmilParser::dom(), or of
     * what SmilParser::getContent() rendered; there need not be a "head". It is empty when there is no body,
     * or when @p smil is null or no "smil" element. Neither the element nor its tree is changed.
     *
     * Colours and fits are those of the first "layout" of its first "head".
     *
     * It sees what SmilParser::parseSmilNodes() sees: "par", "seq" and the five media in any letter case. Other
     * elements are skipped with all they hold, and so are nodes nested deeper than SmilParser::MaxDepth below the
     * body, which parse() never reads. What repeats something ("repeatCount", "repeatDur" and their like) counts for
     * nothing: everything plays once.
     *
     * **What is stated.** A "dur" is when SmilUnit::convertClock(), or else SmilUnit::convert() in SmilUnit::Sec,
     * gives a finite number above 0. A "begin" or "end" is when SmilUnit::convertClock() understands it, after a
     * "+" that it begins with is dropped. Anything else is as if it were absent: "indefinite", which a message of
     * slides cannot wait for; an event such as "click"; a time before the beginning. A "begin" that is not stated is 0.
     *
     * **What nothing states.** @p length is how long a medium takes by itself, in seconds. It is asked about each
     * medium that states neither "dur" nor "end", once and in document order, and counts when it is finite and above
     * 0; it may be null. A medium that has no length either is *open*: for as long as nothing else says, it takes
     * @p slideDuration, in seconds, which is 5 when it is not finite and above 0. SMIL would let it pass at once.
     *
     * **Begin and end.** Everything begins its "begin" after its base: in a "par" the begin of that, in a "seq" the
     * end of what precedes it there. It ends at the earlier of its begin plus "dur" and its base plus "end", never
     * before its begin. With neither stated, a medium takes its length, and a node what is in it:
     *
     * - A "seq", and "body" is one, plays its media and nodes one after another, in document order. An open medium
     *   takes @p slideDuration; the last one lasts until the seq ends.
     * - A "par" plays until the last thing in it ends. An open medium counts for @p slideDuration from its begin on,
     *   but an open audio does not count. If then the par would take no time, and there is an open medium directly in
     *   it, it takes @p slideDuration. All open media last until the par ends, as those of SMIL whose "fill" is
     *   "freeze" do.
     *
     * As in SMIL, nothing outlasts the node around it. What would begin after the end of that begins and ends there,
     * and so never plays.
     *
     * Times are sums from 0 on, in document order, and compared as they are. Those beyond the range of a double are
     * infinite.
     *
     * Cost: linear in the number of elements and in the length of the times, and n log n in that of the media, and of
     * the params of each. Texts are shared. One call level per level of nesting; it does with a stack of 512 KiB, as
     * parse().
     */
    explicit SmilTimeline(const QDomElement &smil, double slideDuration = 5.0,
                          const std::function<double(const SmilRef &)> &length = nullptr);

    SmilTimeline(const SmilTimeline &other); ///< A copy.
    SmilTimeline(
        SmilTimeline &&other) noexcept; ///< The same; @p other may only be destroyed or assigned to after that.
    SmilTimeline &operator=(const SmilTimeline &other); ///< Makes this a copy of @p other.
    SmilTimeline &operator=(SmilTimeline &&other) noexcept; ///< The same, as the constructor.
    ~SmilTimeline(); ///< Releases what no copy shares.

    /** Every medium exactly once, by SmilCue::begin; those that begin together are in document order. */
    QList<SmilCue> cues() const;

    /**
     * Where a host pages, in seconds: ascending, each once. SMIL has no pages; a message is made of them.
     *
     * Each child of "body" in which anything plays gives a page, from when the first thing plays on. A further one
     * begins in it whenever something begins after something that began on the same page has ended; sounds do
     * neither. So a "seq" of three pictures gives three pages, and a text that comes in beside a picture gives none.
     *
     * Everything that plays is on a page.
     */
    QList<double> slideBegins() const;

    /** The end of "body" in seconds, whether something plays then or not; 0 when empty; may be infinite. */
    double duration() const;

    /**
     * The colour behind everything: attribute "background-color", or else "backgroundColor", of the first
     * "root-layout", or else of the first "topLayout". Verbatim; null when none of them is stated, which an empty one
     * is not. There need not be a "body".
     */
    QString background() const;

    /**
     * What plays @p seconds after the beginning of the message, in the order of cues(): begin <= @p seconds < end.
     * Nothing plays before 0, at infinity and at NaN. Cost: linear in the number of cues().
     */
    QList<SmilCue> cuesAt(double seconds) const;

    /**
     * What plays at some time from @p from until before @p to, in the order of cues(): begin < @p to, end > @p from,
     * and begin < end. @p to may be infinite. Nothing does if one of them is NaN. Cost: linear in the number of cues().
     */
    QList<SmilCue> cuesBetween(double from, double to) const;

    /**
     * Everything that the page at @p index of slideBegins() shows, what begins late on it too: cuesBetween() its begin
     * and that of the next page, or infinity. Nothing outside of these pages. Cost: as cuesBetween().
     */
    QList<SmilCue> cuesOnSlide(int index) const;

    /**
     * When something begins to play or ends next, after @p seconds. What cuesAt() returns stays the same until then.
     * Infinite when nothing does, and for NaN. What never plays does neither. The duration() may still be to come.
     * Cost: linear in the number of cues().
     */
    double nextChange(double seconds) const;

private:
    QSharedDataPointer<class SmilTimelineData> d;
};
Q_DECLARE_TYPEINFO(SmilTimeline, Q_MOVABLE_TYPE);

/**
 * Where everything is shown, in pixels of the message: x to the right and y down from the upper left corner of the
 * root layout. How large such a pixel is, the host decides: these fit a screen that is 240 wide, and a host scales the
 * whole to its own.
 */
class SMILPARSER_EXPORT SmilScreen
{
public:
    /** One of no size and without regions. */
    SmilScreen();

    /**
     * The screen of @p layout on a device of that size in pixels; a side of @p device that is not finite and above 0
     * is 240 (the width) or 320 (the height). The layout is not changed.
     *
     * Pixels count as they are, percent of the length that they are measured against; an inch is 96 pixels, 2.54 cm or
     * 72 pt, as on the Web. A measure that is invalid, of another unit, not finite, or not so in pixels, is not stated.
     *
     * Cost: n log n in the number of regions, times the length of their names. One call level.
     */
    explicit SmilScreen(const SmilLayout &layout, const QSizeF &device = QSizeF(240, 320));

    SmilScreen(const SmilScreen &other); ///< A copy.
    SmilScreen(SmilScreen &&other) noexcept; ///< The same; @p other may only be destroyed or assigned to after that.
    SmilScreen &operator=(const SmilScreen &other); ///< Makes this a copy of @p other.
    SmilScreen &operator=(SmilScreen &&other) noexcept; ///< The same, as the constructor.
    ~SmilScreen(); ///< Releases what no copy shares.

    /**
     * The size of the root layout. On each axis it is the root layout's measure if that is above 0, else the top
     * layout's if that is above 0; percent are of the device. Else it is as far as the farthest region reaches of those
     * whose length is stated, not in percent, and whose "left" or "top" is so or not stated: the message was made for a
     * screen at least that large. A side that none of these gives follows from the other one by the device's
     * proportions, and if neither side is known, the size is the device's. Both sides are finite and above 0.
     */
    QSizeF size() const;

    /**
     * The rectangle of each region, in the order and as many as SmilLayout::regions. A region that reaches beyond the
     * edges is not cut off, one of negative length is 0 long, and nothing is infinite.
     *
     * On each axis, percent are of size(). The length is the stated one; else it is what remains between "left" and
     * "right" ("top" and "bottom"), each of which is 0 when not stated. The region begins at "left"; else so that it
     * ends at "right"; else at 0. Where all three are stated, "right" is ignored, as SMIL does.
     */
    QList<QRectF> regionRects() const;

    /**
     * The index, in regionRects() and in SmilLayout::regions, of the first region whose SmilRegion::id is @p id; -1
     * when there is none, and for a null or empty name. The letter case matters. Cost: log n in the number of regions,
     * times the length of the id.
     */
    int regionIndex(const QString &id) const;

    /**
     * Where each of @p cues is shown when all of them are shown together: one rectangle for each, in their order, and
     * a null one for audio. When they play does not matter.
     *
     * A medium is shown in the area of its region, or on the whole screen when it names no region or one that the
     * layout lacks. Those of the same area share it in equal parts in their order, side by side if it is wider than
     * high, else one above the other. So do those of two regions that have the same area, and one that has the whole
     * screen shares it with those without a region. SMIL would show one on top of the other, and only the last one
     * could be seen.
     *
     * Cost: n log n in the number of cues and regions, times the length of the regions' names.
     */
    QList<QRectF> rects(const QList<SmilCue> &cues) const;

    /**
     * The rectangle that the whole of a picture of size @p picture, in pixels of the message, takes when it is shown in
     * @p area by @p fit, which is its SmilCue::fit. It is in the middle of the area, while
     * SMIL would have it in the upper left corner; it may be larger, and then the host cuts it off at the area's edges.
     *
     * | fit                            | The rectangle                                                               |
     * |--------------------------------|-----------------------------------------------------------------------------|
     * | "fill"                         | the area: the picture is distorted                                          |
     * | "slice"                        | the smallest of the picture's shape that covers the area                    |
     * | "hidden", "scroll", "meetBest" | of the picture's own size if that fits, else as "meet"                      |
     * | "meet", and anything else      | the largest of the picture's shape that fits in the area                    |
     *
     * In SMIL, "hidden" and "scroll" always show the picture in its own size. Phones write "hidden" around photographs,
     * of which only a corner would be seen. The letter case matters; null and empty are "anything else", as is "meet",
     * though the default of SMIL is "hidden".
     *
     * For a picture whose sides are not both finite and above 0, it is an empty rectangle in the middle of the area,
     * whatever @p fit says. In an area without width or height, so is everything that must fit in. Cost: constant.
     */
    static QRectF fitted(const QSizeF &picture, const QRectF &area, const QString &fit);

private:
    QSharedDataPointer<class SmilScreenData> d;
};
Q_DECLARE_TYPEINFO(SmilScreen, Q_MOVABLE_TYPE);

/**
 * Which part of a message a SmilRef::src means. The host numbers the parts as it likes, from 0 on, and adds the names
 * of each. By default, there are none.
 */
class SMILPARSER_EXPORT SmilParts
{
public:
    SmilParts(); ///< Without parts.
    SmilParts(const SmilParts &other); ///< A copy.
    SmilParts(SmilParts &&other) noexcept; ///< The same; @p other may only be destroyed or assigned to after that.
    SmilParts &operator=(const SmilParts &other); ///< Makes this a copy of @p other.
    SmilParts &operator=(SmilParts &&other) noexcept; ///< The same, as the constructor.
    ~SmilParts(); ///< Releases what no copy shares.

    /**
     * Adds @p name, which is a Content-ID, a Content-Location or a file name, as one that part @p part has: verbatim,
     * and *bare*. Bare is without a quotation mark at its beginning and at its end, then without "cid:" in any letter
     * case at its beginning, then without "<" at its beginning and ">" at its end; each of these may be there or not.
     *
     * A part may have several names. If several parts have the same, the first one that was added with it keeps it: add
     * what identifies a part, of all parts, before what it is merely called. Nothing changes for a name of which
     * nothing is left when it is bare, a null one too, and for a negative @p part.
     *
     * Cost: log n in the number of names, times the length of the name.
     */
    void add(int part, const QString &name);

    /**
     * The part that @p src means, or -1. These are tried in turn, each among all parts: the name that is exactly
     * @p src; the bare name that is @p src bare; that with each %XX decoded, as UTF-8, and bare again; and that in any
     * letter case. Folders are part of a name: "../b.txt" and "b.txt" are two. A null or empty @p src means no part.
     *
     * Cost: log n in the number of names, times the length of @p src.
     */
    int find(const QString &src) const;

private:
    QSharedDataPointer<class SmilPartsData> d;
};
Q_DECLARE_TYPEINFO(SmilParts, Q_MOVABLE_TYPE);

#endif
