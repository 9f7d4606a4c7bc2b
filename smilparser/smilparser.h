// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_H
#define SMILPARSER_H

#include <smilparser/smilparser_export.h>

#include <QtCore/QBuffer>
#include <QtCore/QByteArray>
#include <QtCore/QFlags>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtXml/QDomDocument>

/**
 * @file
 * What every host needs. SmilUnit and the records up to SmilDocument are the model of a presentation. SmilParser reads
 * SMIL text into the model, and writes the model as a DOM or as text.
 *
 * The types of the model are plain values. A copy shares its texts and lists with the original until one of the two is
 * changed, so it costs the same however much it holds. As with all lists of Qt, a reference into a list that was taken
 * before the list was copied changes both. You may set a field to any value: nothing is checked, and the description of
 * the field says how it is written. The order and types of the fields and the numbers of the enumerators are part of
 * the binary interface.
 *
 * Two values are equal ("==") if all their fields are equal. Texts are compared character by character, and a null text
 * equals an empty one; lists are compared record by record, in order; measures by SmilUnit::operator==(). Comparing
 * changes neither value. It takes time in proportion to what the smaller one holds, minus what the two share, and one
 * call level per level of nested nodes.
 *
 * Every program that uses the library defines MMSLogger::qdebugEnabled, which smilparser/mmslogger.h declares.
 */

/**
 * A size, position or duration: a number and its unit. By default it is the invalid measure: not #valid, #NoUnit, 0.
 * Cost: reading is linear in the length of the text; everything else is constant.
 */
class SMILPARSER_EXPORT SmilUnit
{
public:
    /** The units. The text of a measure is its number followed by the suffix given here. */
    enum Unit {
        Pt = 0, ///< points, "pt"
        In = 1, ///< inches, "in"
        Cm = 2, ///< centimetres, "cm"
        Px = 3, ///< pixels, "px"; also a number without a suffix
        Percent = 4, ///< percent of the surrounding size, "%"
        Sec = 5, ///< seconds, "s"
        NoUnit = 6 ///< no suffix; the unit of a measure that was not understood
    };

    /** The invalid measure. */
    SmilUnit()
        : valid(false)
        , unit(NoUnit)
        , value(0.0)
    {
    }

    /** The measure that convert() reads from @p text; invalid when the text is null, empty or not understood. */
    explicit SmilUnit(const QString &text)
        : valid(false)
        , unit(NoUnit)
        , value(0.0)
    {
        valid = convert(text);
    }

    /** The measure @p number in unit @p kind. It is #valid whatever the two are; toString() says how it is written. */
    SmilUnit(double number, Unit kind)
        : valid(true)
        , unit(kind)
        , value(number)
    {
    }

    /**
     * Reads a number with an optional unit from @p text into #unit and #value. #valid is neither read nor changed.
     *
     * The suffixes "pt", "in", "cm", "px", "%" and "s" are looked for in this order, in lower case and anywhere in the
     * text. The first one that is found gives the unit. The text before its first occurrence is the number; the text
     * after it is ignored. If none is found, the whole text is the number, in pixels. The number is a decimal of the C
     * locale, with an optional sign, decimal point and exponent. White space around it is ignored.
     *
     * @return whether the number was understood. If it was not (letters, nothing before the suffix, "nan", "inf", too
     * large or too small for a double), the unit becomes #NoUnit and the value 0. A null or empty text changes nothing
     * and returns false.
     */
    bool convert(const QString &text);

    /**
     * Reads a SMIL clock value from @p text into #unit, which becomes #Sec, and #value, in seconds. #valid is neither
     * read nor changed. A clock value is one of these, where D and F stand for one digit or more:
     *
     * | Written              | Is                        | For example                             |
     * |----------------------|---------------------------|-----------------------------------------|
     * | D:MM:SS or D:MM:SS.F | hours:minutes:seconds     | "1:30:00" is 5400 s                     |
     * | MM:SS or MM:SS.F     | minutes:seconds           | "1:30" is 90 s, "00:02.50" is 2.5 s     |
     * | D or D.F             | seconds                   | "5" is 5 s                              |
     * | the same and a unit  | "h", "min", "s" or "ms"   | "1.5min" is 90 s, "5000ms" is 5 s       |
     *
     * MM and SS are one or two digits, at most 59. Only ASCII digits and units in lower case are allowed, and neither a
     * sign nor an exponent. Blanks, tabs, carriage returns and line feeds are ignored around the whole, and not allowed
     * inside. The value is the double nearest to what is written, however many digits that has; a value that is too
     * small becomes 0.
     *
     * @return whether @p text is a clock value within the range of a double. If it is not, or if it is null or empty,
     * nothing is changed. Store the result in #valid to complete the measure.
     */
    bool convertClock(const QString &text);

    /**
     * The measure as text: the number in its shortest form of at most six significant digits, then the suffix. A null
     * string when #valid is false or #unit is not one of #Unit.
     *
     * "010px" comes back as "10px", "33.333333%" as "33.3333%", "20000000s" as "2e+07s". A #value that is not finite
     * is written as "inf", "-inf" or "nan" and the suffix, which convert() does not read.
     */
    QString toString() const;

    /**
     * Whether #valid, #unit and #value are the same in both. Units are not converted: 1 in is not equal to 72 pt. Two
     * values that are NaN are equal here, and so are 0 and -0.
     */
    bool operator==(const SmilUnit &other) const;
    bool operator!=(const SmilUnit &other) const; ///< the opposite of "=="

    bool valid; ///< whether the text was understood; an invalid measure is not written
    int unit; ///< a #Unit; a valid measure with any other unit is written as an empty attribute
    double value; ///< the number, in #unit
};
Q_DECLARE_TYPEINFO(SmilUnit, Q_MOVABLE_TYPE);

/** One medium of the timeline: a picture, text, sound or film. */
class SMILPARSER_EXPORT SmilRef
{
public:
    /** The kinds of media, by element. */
    enum Type {
        Text = 0, ///< "text"
        Img = 1, ///< "img"
        Audio = 2, ///< "audio"
        Video = 3, ///< "video"
        Ref = 4 ///< "ref", media of any kind
    };

    /** A reference of type @p kind, which is not checked, with null texts. */
    explicit SmilRef(int kind)
        : type(kind)
    {
    }

    int type; ///< a #Type; a reference of any other type is not written
    QString src; ///< attribute "src", verbatim: where the media is; null when absent, not written when empty
    QString region; ///< attribute "region", verbatim: the SmilRegion::id to play in, existing or not; as #src

    bool operator==(const SmilRef &other) const; ///< whether all fields are equal
    bool operator!=(const SmilRef &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilRef, Q_MOVABLE_TYPE);

/**
 * One element of the timeline: "par", whose contents play together, or "seq", whose contents play one after another.
 * Nested elements and media are in two lists. The order between the two is not recorded; SmilTimeline knows it.
 *
 * Destroying, writing and comparing a tree takes one call level per level of nesting. SmilParser::parse() makes no tree
 * deeper than SmilParser::MaxDepth. To replace a node by one of its descendants, first copy the descendant.
 */
class SMILPARSER_EXPORT SmilNode
{
public:
    /** The kinds of timeline elements. */
    enum Type {
        Seq = 1, ///< "seq"
        Par = 2 ///< "par"
    };

    /** A #Par with an invalid #dur, no #children and no #refs. */
    SmilNode()
        : type(Par)
    {
    }

    /** The same, but of type @p kind, which is not checked. */
    explicit SmilNode(int kind)
        : type(kind)
    {
    }

    QList<SmilNode> children; ///< the nested "par" and "seq" elements, in document order; written before #refs
    int type; ///< a #Type; any other type is written as "par"
    SmilUnit dur; ///< attribute "dur"; invalid when absent or not understood; "5000ms" needs SmilParser::ClockDurations
    QList<SmilRef> refs; ///< the media directly inside this element, in document order

    bool operator==(const SmilNode &other) const; ///< whether all fields are equal
    bool operator!=(const SmilNode &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilNode, Q_MOVABLE_TYPE);

/** The timeline, element "body". */
class SMILPARSER_EXPORT SmilBody
{
public:
    QString spare1; ///< free for the host; null by default, copied and compared, never read or written here
    QString spare2; ///< as #spare1
    QString spare3; ///< as #spare1
    QString spare4; ///< as #spare1

    /**
     * The root, which stands for "body" itself. Its contents play one after another, as in a "seq", although its
     * SmilNode::type is SmilNode::Par by default and after parsing. Parsing also fills its SmilNode::dur, and its
     * SmilNode::refs with the media directly inside "body". Only its SmilNode::children are written.
     */
    SmilNode root;

    bool operator==(const SmilBody &other) const; ///< whether all fields are equal
    bool operator!=(const SmilBody &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilBody, Q_MOVABLE_TYPE);

/** One named piece of information about the presentation, element "meta". All fields are null by default. */
class SMILPARSER_EXPORT SmilMeta
{
public:
    QString id; ///< attribute "id", verbatim; null when absent, not written when empty
    QString name; ///< attribute "name"; as #id
    QString content; ///< attribute "content"; as #id

    bool operator==(const SmilMeta &other) const; ///< whether all fields are equal
    bool operator!=(const SmilMeta &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilMeta, Q_MOVABLE_TYPE);

/**
 * A rectangle of the screen in which media play, element "region". By default its texts are null and its measures
 * invalid. A measure is also invalid if its attribute is absent or not understood. An invalid measure is not written.
 */
class SMILPARSER_EXPORT SmilRegion
{
public:
    QString id; ///< attribute "id", verbatim: what SmilRef::region names; null when absent, not written when empty
    SmilUnit width; ///< attribute "width"
    SmilUnit height; ///< attribute "height"
    SmilUnit bottom; ///< attribute "bottom": distance from the lower edge of the root layout
    SmilUnit top; ///< attribute "top": distance from its upper edge
    SmilUnit left; ///< attribute "left": distance from its left edge
    SmilUnit right; ///< attribute "right": distance from its right edge
    QString fit; ///< attribute "fit", verbatim ("meet", "scroll", "hidden" or anything else); as #id

    bool operator==(const SmilRegion &other) const; ///< whether all fields are equal
    bool operator!=(const SmilRegion &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilRegion, Q_MOVABLE_TYPE);

/**
 * Where things are shown, element "layout". For its measures, the same holds as in SmilRegion. Only one "root-layout"
 * is written, with the size of the *top* layout. Read with SmilParser::KeepRootSize to keep the size of the root
 * layout.
 */
class SMILPARSER_EXPORT SmilLayout
{
public:
    SmilUnit rootLayoutWidth; ///< attribute "width" of "root-layout"; read, never written
    SmilUnit rootLayoutHeight; ///< attribute "height" of "root-layout"; read, never written
    SmilUnit topLayoutWidth; ///< attribute "width" of "topLayout" when read, of "root-layout" when written
    SmilUnit topLayoutHeight; ///< attribute "height" of "topLayout" when read, of "root-layout" when written
    QList<SmilRegion> regions; ///< every "region", in document order, those of equal SmilRegion::id too

    bool operator==(const SmilLayout &other) const; ///< whether all fields are equal
    bool operator!=(const SmilLayout &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilLayout, Q_MOVABLE_TYPE);

/** What precedes the timeline, element "head". */
class SMILPARSER_EXPORT SmilHeader
{
public:
    /** An empty header. */
    SmilHeader() { }

    /** A header whose title is @p text, which may be null; everything else is empty. */
    explicit SmilHeader(const QString &text)
        : title(text)
    {
    }

    QString id; ///< attribute "id", verbatim; null when absent, not written when empty
    QString className; ///< attribute "class"; as #id
    QString title; ///< attribute "title"; as #id
    QString spare; ///< free for the host; null by default, copied and compared, never read or written here
    QList<SmilMeta> metas; ///< every "meta", in document order, those of equal SmilMeta::name too
    SmilLayout layout; ///< the element "layout"

    bool operator==(const SmilHeader &other) const; ///< whether all fields are equal
    bool operator!=(const SmilHeader &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilHeader, Q_MOVABLE_TYPE);

/** A whole presentation: element "smil". */
class SMILPARSER_EXPORT SmilDocument
{
public:
    /** An empty presentation: empty texts and lists, invalid measures, a SmilNode::Par as the timeline's root. */
    SmilDocument();

    SmilBody body; ///< the timeline
    SmilHeader header; ///< what precedes it

    bool operator==(const SmilDocument &other) const; ///< whether all fields are equal
    bool operator!=(const SmilDocument &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilDocument, Q_MOVABLE_TYPE);

/**
 * Reads one presentation, or writes one.
 *
 * To read, construct a parser from a device or from bytes, and call parse() once. To write, construct it from a model,
 * and call toXml() or getContent() as often as you like. parse() and getContent() return references to members of the
 * parser, which are valid as long as the parser exists. A parser cannot be copied.
 *
 * Only one thread at a time may use a parser, its DOM and the copies of that DOM. Different threads may use different
 * parsers at the same time. Parsers share only MMSLogger::qdebugEnabled, which they read without a lock. You may pass a
 * copy of a model to another thread.
 *
 * Nothing is thrown, except if an allocation inside Qt fails. Warnings go to qWarning(). Debug lines go to qDebug()
 * while MMSLogger::qdebugEnabled is true.
 *
 * Cost: constructing from bytes or a model is constant; constructing from a device copies what it holds. parse() scans
 * the input, calls QDomDocument::setContent(), and then takes time linear in the number of elements that are read and
 * in the length of their measures; elements inside skipped ones do not count. Writing is linear in the number of
 * records, and toXml() also in the length of their texts. Destroying an old tree adds to that. Each level of nested
 * nodes takes one call level.
 */
class SMILPARSER_EXPORT SmilParser
{
public:
    /**
     * A limit on what is read. If a document exceeds this limit, or one of the others that SECURITY.md lists, parse()
     * reads it only up to that place and reports that it is not well formed. No ordinary message comes near the limits.
     */
    enum Limit {
        MaxDepth = 512 ///< levels of nested elements, of any name; also the deepest `depth` of parseSmilNodes()
    };

    /** What parse() does beyond reading the message as it is written; combined with "|". */
    enum ReadOption {
        AsWritten = 0, ///< nothing

        /**
         * If the "dur" of a "body", "par" or "seq" is a clock value, SmilUnit::convertClock() reads it: "5000ms" and
         * "5" are 5 s. Without this option, "5" is 5 pixels. Any other "dur" is read as without the option: "12px" is
         * 12 pixels, "1e3s" is 1000 s, and "indefinite" is not valid.
         */
        ClockDurations = 1,

        /**
         * If no valid SmilLayout::topLayoutWidth was read, SmilLayout::rootLayoutWidth is copied to it, so that it is
         * written. The same holds for the height. If neither is valid, none is written.
         */
        KeepRootSize = 2,

        /**
         * The input is UTF-8, whatever its XML declaration says. This is for text that was decoded already. A byte
         * order mark at its beginning is dropped. Bytes that are not UTF-8 are an error with Qt 6 (though its message
         * may say something else) and become U+FFFD with Qt 5, as in a document that declares UTF-8. A declaration is
         * refused only if the XML reader itself refuses it.
         */
        DecodedText = 4
    };
    /** Any combination of #ReadOption. */
    Q_DECLARE_FLAGS(ReadOptions, ReadOption)

    /** What happened to the input. The table at parse() has a row for each of these. */
    enum Outcome {
        Complete = 0, ///< "smil", "head" and "body" were found and read
        NotWellFormed = 1, ///< it is empty, not XML that Qt reads, beyond a #Limit, or was read before
        NoSmil = 2, ///< there is no "smil" root element
        NoHead = 3, ///< there is no "head" in "smil"
        NoBody = 4 ///< there is a "head" in "smil", but no "body"
    };

    /**
     * A parser of everything from the current position of @p device to its end. The constructor reads it with
     * QIODevice::readAll(). It does not open, rewind, close or keep the device. A device that is null, not open (Qt
     * warns about that) or at its end gives no input.
     */
    explicit SmilParser(QIODevice *device);

    /** A parser of @p bytes, which are shared, not copied. Null or empty bytes are no input. */
    explicit SmilParser(const QByteArray &bytes);

    /** A parser that holds a copy of @p model, for writing. It has no input: parse() fails and keeps the copy. */
    explicit SmilParser(const SmilDocument &model);

    /**
     * Reads the input into the model, and always returns the model:
     *
     * | The input                            | Warning                                           | The model       |
     * |--------------------------------------|---------------------------------------------------|-----------------|
     * | is not XML that Qt reads, or empty   | "Fail to parse SMIL document: '%s' at (%d,%d)!"   | unchanged       |
     * | has no "smil" root element           | "Fail to find SMIL document!"                     | default         |
     * | has no "head" in it                  | "Fail to find SMIL head!"                         | default         |
     * | has no "body" in it                  | "Fail to find SMIL body!"                         | only the header |
     * | is complete                          | none                                              | filled          |
     *
     * The first row also applies to a document beyond a #Limit. Only in that row, @p errorMsg, @p errorLine and
     * @p errorColumn, each of which may be null, are set to the XML reader's message and place, which the warning also
     * has. Lines start at 1. The column is the number of UTF-16 code units of the line up to where the reader gave up;
     * with Qt 6 it is sometimes 0. What the model has no place for is ignored, and so is a measure that is not
     * understood.
     *
     * The input is read once. A second call finds no input, as in the first row, and keeps the model of the first call.
     *
     * Every call replaces the tree that an earlier parse() or getContent() left, also in the copies of dom(). Elements
     * of the old tree that the host still holds keep what is inside them, but are no longer in the document. When the
     * document has ended, you may only destroy them, in any order.
     *
     * The model belongs to the parser. Copy it if the parser is a temporary.
     */
    SmilDocument &parse(QString *errorMsg = nullptr, int *errorLine = nullptr, int *errorColumn = nullptr);

    /**
     * The same with @p options. #ClockDurations and #KeepRootSize change only the model, not the tree. Bits that are
     * not a #ReadOption are ignored. @p outcome, which may be null, is always set to what happened to the input.
     *
     * If you read with #ClockDurations and #KeepRootSize, write the model, and read it again in the same way, the top
     * layout is the same, and so are the durations, to the six digits that SmilUnit::toString() writes.
     */
    SmilDocument &parse(ReadOptions options, Outcome *outcome = nullptr, QString *errorMsg = nullptr,
                        int *errorLine = nullptr, int *errorColumn = nullptr);

    /**
     * The tree that the last parse() read or the last getContent() made. It also has what the model has no place for,
     * but no XML declaration. It is null after a parse() whose outcome is #NotWellFormed. It is also null before the
     * first parse(), getContent() or render(). Later changes to the model do not show in it.
     *
     * As always in Qt, a change to the tree shows in every copy of the document. A copy keeps the tree when the parser
     * is destroyed or getContent() makes another one. A further parse() replaces the tree in the copy, too, by what it
     * reads or by nothing. If no copy keeps a tree, you may only destroy its elements, in any order.
     */
    QDomDocument dom() const;

    /**
     * Reads the first "head" child of @p smil into the model, and then the first "body" child, in whatever order they
     * are. The model is not cleared before. The element and its tree are not changed, and may come from elsewhere.
     *
     * @return whether both were found and read. If not, there is one warning, as in parse(), or none if
     * parseSmilNodes() refused the body. Without a head, the body is not read either. A null element has neither.
     *
     * The debug lines are "Begin to parse smil document. ", then "Smil document have a head. " after the head was read,
     * and "Smil document have a body. " after the body was read.
     */
    bool parseSmilDocument(QDomElement &smil);

    /**
     * Reads the attributes of @p head, its "meta" children and its first "layout" child into the model's header. Metas
     * and regions are appended to those in the model. Attributes replace those in the model, even if they are absent
     * here. The element is not changed; a null one counts as one without attributes and children. Always true.
     */
    bool parseSmilHead(QDomElement &head);

    /**
     * Reads the first "root-layout", the first "topLayout" and every "region" child of @p layout into the model's
     * layout. Regions are appended to those in the model. If "root-layout" or "topLayout" is missing, its two measures
     * are not changed. The element is not changed; a null one counts as empty. Always true.
     */
    bool parseLayout(QDomElement &layout);

    /** Reads @p body into the root of the model's timeline: parseSmilNodes() with @p body, that root and depth 0. */
    bool parseSmilBody(QDomElement &body);

    /**
     * Reads the timeline inside @p element into @p node. Replaces SmilNode::dur. Appends a node for each "par" and
     * "seq" child, and a reference for each "text", "img", "audio", "video" and "ref" child, their names in any letter
     * case. Other children are skipped with all that is in them. SmilNode::type and the element are not changed, and no
     * member of the parser is used. A null element counts as empty.
     *
     * @p depth says how deep @p element is nested: 0 for "body". A negative depth allows that many more levels.
     *
     * @return false, without a warning, if something is nested deeper than #MaxDepth. If that is @p element, @p node is
     * not changed. If it is an element inside, that element and those around it, up to @p element, are left out, and
     * what precedes them is kept.
     */
    bool parseSmilNodes(QDomElement &element, SmilNode &node, int depth);

    /**
     * Makes a new tree of the model under the root element "smil", and returns it. The old tree is destroyed, unless a
     * copy keeps it. The model is not changed. Every model can be written: the description of each field says how.
     * Texts are written verbatim. There is no XML declaration, document type or namespace.
     */
    QDomDocument &getContent();

    /**
     * The model as text: the elements, attributes and values of getContent(), in UTF-8, without an XML declaration.
     * With a negative @p indent it is one line without a line end. Otherwise each element has its own line, which
     * begins with that many blanks for each element around it, as in QDomDocument::toByteArray(). The bytes are the
     * same on every run, with every Qt and on every machine.
     *
     * Attributes are in the order in which getContent() sets them. An element with no others inside it is written as
     * `<img src="a"/>`. Tabs and line ends in a text are kept as references. A character that XML does not allow, such
     * as U+0001 or half a surrogate pair, is left out of its text, and the rest may be empty (`src=""`).
     *
     * parse() reads the result as #Complete, unless "smil", "body", the nodes and a medium together are nested deeper
     * than #MaxDepth, or deeper than 32 levels around a byte on average.
     */
    QByteArray toXml(int indent = -1) const;

    /**
     * Each of these returns a new element for its record, with everything in it. The caller appends the element where
     * it belongs. The record is not changed. The result is null only for a SmilRef of unknown type.
     *
     * The element belongs to the parser's document. That ends when getContent() makes another one, parse() fails, or
     * the parser is destroyed, unless the host keeps a copy of dom(). If the element was not appended by then, you may
     * only destroy it.
     */
    QDomElement render(SmilDocument &model);
    QDomElement render(SmilHeader &header); ///< @copydoc render(SmilDocument&)
    QDomElement render(SmilLayout &layout); ///< @copydoc render(SmilDocument&)
    QDomElement render(SmilBody &body); ///< @copydoc render(SmilDocument&)
    QDomElement render(SmilNode &node); ///< @copydoc render(SmilDocument&)
    QDomElement render(SmilRef &ref); ///< @copydoc render(SmilDocument&)

private:
    QBuffer buffer;
    SmilDocument document;
    QDomDocument domDocument;
};
Q_DECLARE_OPERATORS_FOR_FLAGS(SmilParser::ReadOptions)

#endif
