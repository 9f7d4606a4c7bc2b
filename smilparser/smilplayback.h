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
 * of the message it is (SmilParts). SmilSlideshow, in smilslideshow.h, uses these to make slides of a whole message.
 *
 * All classes are plain values: a copy shares what it holds with the original until one of the two is changed, and
 * costs the same however much that is. You may only destroy a value that was moved from, or assign to it. You may set a
 * field to any value: nothing is checked. None of these classes warns or throws. No number is NaN unless the host sets
 * it to NaN.
 */

/** One medium of the timeline, and when it plays. Each media element has a cue, even if it never plays. */
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
     * Attribute "value" of each child "param", by its attribute "name". Values are verbatim, and null if absent. If
     * several have the same name, the first one counts. A "param" whose name is absent or empty is left out. Only
     * "param" in lower case is read.
     */
    QMap<QString, QString> params;

    /**
     * The colour behind the medium: its "background-color" in #params. If that is not stated, it is the attribute
     * "background-color", or else "backgroundColor", of its region, which is the first one whose SmilRegion::id is
     * SmilRef::region. Verbatim; null if none of them is stated. An empty one counts as not stated.
     */
    QString background;

    QString fit; ///< the SmilRegion::fit of that region, for SmilScreen::fitted(); null when there is none
    int line; ///< the line of its element in the text, from 1 on; -1 if the tree was not read from a text

    double begin; ///< seconds from the beginning of the message; may be infinite
    double end; ///< as #begin, and never before it; equal to it when the medium never plays

    bool operator==(const SmilCue &other) const; ///< whether all fields except #line are equal
    bool operator!=(const SmilCue &other) const; ///< the opposite of "=="

private:
    QSharedDataPointer<class SmilCueData> d; // for fields to come
};
Q_DECLARE_TYPEINFO(SmilCue, Q_MOVABLE_TYPE);

/**
 * When everything plays. A timeline is made of the DOM, because the model has neither "begin" and "end" nor the order
 * of media and nodes in a "seq".
 *
 * Cost: constructing takes time linear in the number of elements and in the length of the times, and n log n in the
 * number of media and in the number of params of each. It takes one call level per level of nesting; a stack of 512 KiB
 * is enough. The functions that choose from the cues are linear in the number of all cues. Texts are shared.
 */
class SMILPARSER_EXPORT SmilTimeline
{
public:
    /** A timeline on which nothing plays, and which takes no time. */
    SmilTimeline();

    /**
     * The timeline of the first child "body" of @p smil, which is the document element of SmilParser::dom() or
     * SmilParser::getContent(). It is empty if there is no body, or if @p smil is null or not a "smil" element. Colours
     * and fits come from the first "layout" of the "head", if there is one. The tree is not changed.
     *
     * Like SmilParser::parseSmilNodes(), it reads "par", "seq" and the five media elements, in any letter case. Other
     * elements are skipped with all that is in them, and so are nodes nested deeper than SmilParser::MaxDepth below the
     * body. "repeatCount", "repeatDur" and the like are ignored: everything plays once.
     *
     * **What is stated.** A "dur" is stated if SmilUnit::convertClock(), or else SmilUnit::convert() in SmilUnit::Sec,
     * gives a finite number above 0. A "begin" or "end" is stated if SmilUnit::convertClock() understands it, after a
     * "+" at its beginning was dropped. Anything else counts as absent: "indefinite", an event such as "click", a
     * negative time. A "begin" that is not stated is 0.
     *
     * **What is not stated.** @p length returns how many seconds a medium takes by itself. It is called once for each
     * medium that states neither "dur" nor "end", in document order. The result is ignored unless it is finite and
     * above 0. @p length may be null. A medium that has no length either is called *open*. If nothing else says how
     * long it lasts, it lasts for @p slideDuration seconds. If that is not finite and above 0, it is 5.
     *
     * **Begin and end.** Each element has a base: in a "par" the begin of the par, and in a "seq" the end of what
     * precedes the element. The element begins at its base plus its "begin". It ends at its begin plus its "dur" or at
     * its base plus its "end", whichever is earlier, but never before its begin. If it states neither, a medium lasts
     * for its length, and a node for as long as its contents:
     *
     * - A "seq" plays its media and nodes one after another, in document order. "body" is a seq, too. An open medium
     *   takes @p slideDuration; if it is the last thing in the seq, it lasts until the seq ends.
     * - A "par" plays until the last thing in it ends. An open medium counts as @p slideDuration for this, and an open
     *   audio does not count. If the par would then take no time, but has an open medium directly in it, the par takes
     *   @p slideDuration. All open media last until the par ends.
     *
     * Nothing lasts longer than the node around it. What would begin after the end of that node begins and ends at that
     * end, so it never plays.
     *
     * Times are added up from 0 on, in document order, and compared without rounding. A time beyond the range of a
     * double is infinite.
     */
    explicit SmilTimeline(const QDomElement &smil, double slideDuration = 5.0,
                          const std::function<double(const SmilRef &)> &length = nullptr);

    SmilTimeline(const SmilTimeline &other); ///< A copy.
    SmilTimeline(SmilTimeline &&other) noexcept; ///< Takes over @p other, which may only be assigned to or destroyed.
    SmilTimeline &operator=(const SmilTimeline &other); ///< Makes this a copy of @p other.
    SmilTimeline &operator=(SmilTimeline &&other) noexcept; ///< Takes over @p other, as the constructor.
    ~SmilTimeline(); ///< Releases what no copy shares.

    /** All media, each once, sorted by SmilCue::begin; media that begin together are in document order. */
    QList<SmilCue> cues() const;

    /**
     * When each slide begins, in seconds: ascending, each time once.
     *
     * Each child of "body" in which anything plays gives a slide, which begins when the first thing in it begins to
     * play. Within the child, another slide begins whenever something begins to play at or after the end of something
     * that began on the current slide. Sounds do not count in this. Everything that plays is on a slide.
     */
    QList<double> slideBegins() const;

    /** The end of "body" in seconds, even if nothing plays until then; 0 if the timeline is empty; may be infinite. */
    double duration() const;

    /**
     * The colour behind everything: attribute "background-color", or else "backgroundColor", of the first
     * "root-layout", or else of the first "topLayout". Verbatim; null if none of them is stated. An empty one counts as
     * not stated. It is read even if there is no "body".
     */
    QString background() const;

    /**
     * What plays @p seconds after the beginning of the message, in the order of cues(): begin <= @p seconds < end.
     * Nothing plays before 0, at infinity or at NaN.
     */
    QList<SmilCue> cuesAt(double seconds) const;

    /**
     * What plays at some time between @p from and @p to, in the order of cues(): begin < @p to, end > @p from, and
     * begin < end. @p to may be infinite. The list is empty if one of the two is NaN.
     */
    QList<SmilCue> cuesBetween(double from, double to) const;

    /**
     * Everything that the slide at @p index of slideBegins() shows, even if it begins late: cuesBetween() the begin of
     * this slide and the begin of the next one, or infinity. The list is empty for any other @p index.
     */
    QList<SmilCue> cuesOnSlide(int index) const;

    /**
     * When something next begins to play or ends after @p seconds. Until then, cuesAt() returns the same. The result is
     * infinite if nothing changes any more, and for NaN. What never plays does not count. duration() may be later.
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
 * Cost: constructing takes n log n in the number of regions, regionIndex() takes log n, and rects() takes n log n in
 * the number of cues and regions, each times the length of the ids. Everything else is constant.
 */
class SMILPARSER_EXPORT SmilScreen
{
public:
    /** A screen without size and regions. */
    SmilScreen();

    /**
     * The screen of @p layout on a device of the size @p device, in pixels. A width of @p device that is not finite and
     * above 0 counts as 240, and such a height as 320.
     *
     * An inch is 96 pixels, 2.54 cm or 72 pt; the functions below say what percent refer to. A measure counts as not
     * stated if it is invalid, has another unit, or is not finite when converted to pixels.
     */
    explicit SmilScreen(const SmilLayout &layout, const QSizeF &device = QSizeF(240, 320));

    SmilScreen(const SmilScreen &other); ///< A copy.
    SmilScreen(SmilScreen &&other) noexcept; ///< Takes over @p other, which may then only be assigned to or destroyed.
    SmilScreen &operator=(const SmilScreen &other); ///< Makes this a copy of @p other.
    SmilScreen &operator=(SmilScreen &&other) noexcept; ///< Takes over @p other, as the constructor.
    ~SmilScreen(); ///< Releases what no copy shares.

    /**
     * The size of the root layout; both sides are finite and above 0. On each axis it is the first of these that is
     * known:
     *
     * - the root layout's measure, if that is above 0; percent refer to the device;
     * - the top layout's measure, likewise;
     * - how far the farthest region reaches, if that is above 0. Only regions count whose length is stated, but not in
     *   percent, and whose "left" or "top" is not in percent either;
     * - the length that gives the screen the proportions of the device, if the other side is known;
     * - the device's side.
     */
    QSizeF size() const;

    /**
     * The rectangle of each region, in the order of SmilLayout::regions. A region that reaches beyond the edges is not
     * cut off. A negative length counts as 0. No number is infinite.
     *
     * Percent refer to size(). The width is the stated one, or else what remains between "left" and "right", each of
     * which is 0 if not stated. The region begins at "left" if that is stated. If only "right" is stated, the region
     * ends there. If neither is stated, it begins at 0. If all three are stated, "right" is ignored. The same holds for
     * "height", "top" and "bottom".
     */
    QList<QRectF> regionRects() const;

    /**
     * The index, in regionRects() and in SmilLayout::regions, of the first region whose SmilRegion::id is @p id; -1 if
     * there is none, or if @p id is null or empty. The letter case matters.
     */
    int regionIndex(const QString &id) const;

    /**
     * Where each of @p cues is shown if all of them are shown together: one rectangle for each, in their order. The
     * rectangle of an audio is null. It does not matter when the cues play.
     *
     * A medium is shown in the area of its region, or on the whole screen if it names no region or one that the layout
     * does not have. Media in the same area share it in equal parts, in their order: side by side if the area is wider
     * than high, and otherwise one above the other. Areas are the same if their rectangles are equal, whatever the
     * regions are called.
     */
    QList<QRectF> rects(const QList<SmilCue> &cues) const;

    /**
     * The rectangle of a whole picture that is shown in @p area. @p picture is the size of the picture in pixels of the
     * message, and @p fit is its SmilCue::fit. The rectangle is in the middle of the area. It may be larger than the
     * area; then the host must cut it off at the edges.
     *
     * | fit                            | The rectangle                                                               |
     * |--------------------------------|-----------------------------------------------------------------------------|
     * | "fill"                         | the area: the picture is distorted                                          |
     * | "slice"                        | the smallest with the picture's proportions that covers the area            |
     * | "hidden", "scroll", "meetBest" | the picture's own size if that fits in the area, or else as "meet"          |
     * | "meet", and anything else      | the largest with the picture's proportions that fits in the area            |
     *
     * The letter case matters; null and empty are "anything else".
     *
     * If the sides of the picture are not both finite and above 0, the result is an empty rectangle in the middle of
     * the area, whatever @p fit is. It is also empty if the picture must fit in an area without width or height.
     */
    static QRectF fitted(const QSizeF &picture, const QRectF &area, const QString &fit);

private:
    QSharedDataPointer<class SmilScreenData> d;
};
Q_DECLARE_TYPEINFO(SmilScreen, Q_MOVABLE_TYPE);

/**
 * Finds the part of a message that a SmilRef::src means. The host numbers the parts from 0 on, and adds the names of
 * each. By default there are none. Cost: log n in the number of names, times the length of the name.
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
     * Adds @p name, which is a Content-ID, a Content-Location or a file name, as a name of the part @p part, verbatim
     * and *bare*. To make a name bare, these are dropped if they are there: first a quotation mark at its beginning and
     * one at its end, then "cid:" in any letter case at its beginning, then "<" at its beginning and ">" at its end.
     *
     * A part may have several names. If a name is added for several parts, it means the first of them. A name that is
     * null or has nothing left when it is bare is not added, and neither is one for a negative @p part.
     */
    void add(int part, const QString &name);

    /**
     * The part that @p src means, or -1. These are looked up in turn, each among all parts: @p src among the verbatim
     * names; @p src made bare, among the bare names; the same with each %XX decoded, as UTF-8, and made bare again; and
     * the same in any letter case. Folders are part of a name: "../b.txt" and "b.txt" differ. A null or empty @p src
     * means no part.
     */
    int find(const QString &src) const;

private:
    QSharedDataPointer<class SmilPartsData> d;
};
Q_DECLARE_TYPEINFO(SmilParts, Q_MOVABLE_TYPE);

#endif
