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
 * What every host needs: the model of a presentation, which is SmilUnit and the records up to SmilDocument; and
 * SmilParser, which reads SMIL text into the model and writes the model as a DOM or as text.
 *
 * The types of the model are plain values. A copy shares its texts and lists with the source until one of the two is
 * changed, so it costs the same however much it holds. As with all lists of Qt, a reference into a list that was taken
 * before the copy still changes both. A field may be set to anything: nothing is checked, and the field says how it is
 * written. The order and types of the fields and the numbers of the enumerators are part of the binary interface.
 *
 * Two values are equal ("==") if all their fields are: texts character by character, where a null text equals an empty
 * one; lists record by record, in order; measures by SmilUnit::operator==(). Comparing changes neither value. It takes
 * time in proportion to what the smaller one holds, less what the two share, and one call level per level of nested
 * nodes.
 *
 * Every program that uses the library defines MMSLogger::qdebugEnabled, which smilparser/mmslogger.h declares.
 */

/**
 * A size, position or duration: a number and the unit it was written in. By default it is the invalid measure: not
 * #valid, #NoUnit, 0. Cost: reading is linear in the length of the text; everything else is constant.
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

    /** The measure of @p number in @p kind. It is #valid whatever the two are; toString() says what is written. */
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
     * text. The first of them that is found gives the unit. What precedes its first occurrence is the number; what
     * follows is ignored. If none is found, the whole text is the number, in pixels. The number is a decimal of the C
     * locale, with an optional sign, full stop and exponent; white space around it is ignored.
     *
     * @return whether the number was understood. If not (letters, nothing before the suffix, "nan", "inf", too large or
     * too small for a double), the unit becomes #NoUnit and the value 0. A null or empty text changes nothing and
     * returns false.
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
     * MM and SS are one or two digits, 59 at most. Digits are those of ASCII, units are in lower case, and there is no
     * sign and no exponent. Blanks, tabs, carriage returns and line feeds are ignored around the whole, and not allowed
     * inside. The value is the double nearest to what is written, however many digits that has; what is too small
     * becomes 0.
     *
     * @return whether @p text is a clock value within the range of a double. If not, as with a null or empty text,
     * nothing is changed. Store the result in #valid to make a measure of it.
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
     * Whether #valid, #unit and #value are the same in both. Units are not converted: 1 in is not 72 pt. Two values
     * that are not a number are equal here, and so are 0 and -0.
     */
    bool operator==(const SmilUnit &other) const;
    bool operator!=(const SmilUnit &other) const; ///< the opposite of "=="

    bool valid; ///< whether the text was understood; an invalid measure is not written
    int unit; ///< a #Unit; a valid measure of any other kind is written as an empty attribute
    double value; ///< the number, in #unit
};
Q_DECLARE_TYPEINFO(SmilUnit, Q_MOVABLE_TYPE);

/** One medium of the timeline: a picture, text, sound or film that plays in a region. */
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

    /** A reference of kind @p kind, which is not checked, with null texts. */
    explicit SmilRef(int kind)
        : type(kind)
    {
    }

    int type; ///< a #Type; a reference of any other kind is not written
    QString src; ///< attribute "src", verbatim: where the media is; null when absent, not written when empty
    QString region; ///< attribute "region", verbatim: the SmilRegion::id to play in, existing or not; as #src

    bool operator==(const SmilRef &other) const; ///< whether all fields are equal
    bool operator!=(const SmilRef &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilRef, Q_MOVABLE_TYPE);

/**
 * One element of the timeline: "par", whose contents play together, or "seq", whose contents play one after another.
 * Nested elements and media are kept apart. Which came before which is not recorded; SmilTimeline knows it.
 *
 * Destroying, writing and comparing a tree takes one call level per level of nesting. SmilParser::parse() makes none
 * deeper than SmilParser::MaxDepth. To replace a node by one of its descendants, copy that first.
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

    /** The same of kind @p kind, which is not checked. */
    explicit SmilNode(int kind)
        : type(kind)
    {
    }

    QList<SmilNode> children; ///< the nested "par" and "seq" elements, in document order; written before #refs
    int type; ///< a #Type; any other kind is written as "par"
    SmilUnit dur; ///< attribute "dur"; invalid when absent or not understood; "5000ms" takes SmilParser::ClockDurations
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
     * The root, which stands for "body" itself. Its contents play one after another, as in a "seq", though its
     * SmilNode::type is SmilNode::Par by default and after parsing. Parsing fills its SmilNode::dur and, from media
     * directly inside "body", its SmilNode::refs. Only its SmilNode::children are written.
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
 * A rectangle of the screen that media play in, element "region". By default its texts are null and its measures
 * invalid. A measure is invalid, too, when its attribute is absent or not understood; an invalid one is not written.
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
 * Where things are shown, element "layout". The measures are as those of SmilRegion. Only one "root-layout" is written,
 * with the size of the *top* layout; SmilParser::KeepRootSize keeps the size that was read.
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
 * and call toXml() or getContent() as often as wanted. The references that parse() and getContent() return are to
 * members of the parser and live as long as it does. A parser cannot be copied.
 *
 * Each parser, with its DOM and every copy of that, is used by one thread at a time; several parsers may be used at the
 * same time. All they share is MMSLogger::qdebugEnabled, which they read without a lock. A copy of a model may go to
 * another thread.
 *
 * Nothing is thrown, except by a failing allocation inside Qt. Warnings go to qWarning(). Debug lines go to qDebug()
 * while MMSLogger::qdebugEnabled is true.
 *
 * Cost: constructing from bytes or a model is constant; reading a device copies what it holds. parse() takes a scan of
 * the input, what QDomDocument::setContent() takes for it, and time linear in the elements that are read and in the
 * length of their measures; what is inside of elements that are skipped adds nothing to that. Writing is linear in the
 * number of records, and toXml() in the length of their texts too. Dropping an old tree comes on top. Each level of
 * nested nodes takes one call level.
 */
class SMILPARSER_EXPORT SmilParser
{
public:
    /**
     * A bound on what is read. parse() reads a document up to where it exceeds this bound or one of the others that
     * SECURITY.md lists, and reports that it is not well formed. No ordinary message is near them.
     */
    enum Limit {
        MaxDepth = 512 ///< levels of nested elements, of any name; also the deepest `depth` of parseSmilNodes()
    };

    /** What parse() does beyond reading the message as it is written; combined with "|". */
    enum ReadOption {
        AsWritten = 0, ///< nothing

        /**
         * A "dur" of "body", "par" or "seq" that is a clock value is read by SmilUnit::convertClock(): "5000ms" is 5 s,
         * and "5" is 5 s, not 5 pixels. Any other is read as without this option: "12px" is 12 pixels, "1e3s" is
         * 1000 s, and "indefinite" is not valid.
         */
        ClockDurations = 1,

        /**
         * SmilLayout::rootLayoutWidth is copied to SmilLayout::topLayoutWidth where no valid one was read, and the
         * height likewise, so that the size that was read is written. If neither is valid, nothing changes.
         */
        KeepRootSize = 2,

        /**
         * The input is UTF-8, whatever its XML declaration says: for text that was decoded already. A byte order mark
         * at its beginning is dropped. Bytes that are no UTF-8 are an error with Qt 6 (though it may be called another
         * one) and U+FFFD with Qt 5, as in a document that declares UTF-8. Of the declaration, only what the XML reader
         * itself refuses is refused.
         */
        DecodedText = 4
    };
    /** Any of #ReadOption together. */
    Q_DECLARE_FLAGS(ReadOptions, ReadOption)

    /** What became of the input: the rows of the table at parse(), the last one first. */
    enum Outcome {
        Complete = 0, ///< "smil", "head" and "body" were found and read
        NotWellFormed = 1, ///< it is empty, no XML that Qt reads, beyond a #Limit, or has been read before
        NoSmil = 2, ///< there is no "smil" root element
        NoHead = 3, ///< there is no "head" in "smil"
        NoBody = 4 ///< there is a "head" in "smil", but no "body"
    };

    /**
     * A parser of all that @p device gives from its position to its end. It is read here, by QIODevice::readAll(), and
     * not opened, moved back, closed or kept. A device that is null, not open (Qt warns of that) or at its end gives no
     * input.
     */
    explicit SmilParser(QIODevice *device);

    /** A parser of @p bytes, which are shared, not copied. Null or empty bytes are no input. */
    explicit SmilParser(const QByteArray &bytes);

    /** A parser that holds a copy of @p model, for writing. It has no input: parse() fails and keeps the copy. */
    explicit SmilParser(const SmilDocument &model);

    /**
     * Reads the input into the model, and returns the model in any case:
     *
     * | The input                            | Warning                                           | The model       |
     * |--------------------------------------|---------------------------------------------------|-----------------|
     * | is not XML that Qt reads, or empty   | "Fail to parse SMIL document: '%s' at (%d,%d)!"   | unchanged       |
     * | has no "smil" root element           | "Fail to find SMIL document!"                     | default         |
     * | has no "head" in it                  | "Fail to find SMIL head!"                         | default         |
     * | has no "body" in it                  | "Fail to find SMIL body!"                         | only the header |
     * | is complete                          | none                                              | filled          |
     *
     * The first row is also that of a document beyond a #Limit. In that row alone, @p errorMsg, @p errorLine and
     * @p errorColumn, each of which may be null, get the XML reader's message and place, as the warning does. Lines
     * start at 1. The column is the number of UTF-16 code units of its line up to where the reader gave up; in some
     * cases that is 0 with Qt 6. What the model has no place for is ignored, as is a measure that is not understood.
     *
     * The input is read once. A second call finds none, which is the first row, and keeps the model of the first.
     *
     * Every call replaces the tree that an earlier parse() or getContent() left, in copies of dom() too. Elements of
     * the old tree that the host still holds keep what is inside them, but are no longer in the document. When that
     * ends, they may only be destroyed, in any order.
     *
     * The model is the parser's. Copy it if the parser is a temporary.
     */
    SmilDocument &parse(QString *errorMsg = nullptr, int *errorLine = nullptr, int *errorColumn = nullptr);

    /**
     * The same with @p options, which change nothing but the model. Bits that are no #ReadOption are ignored. In every
     * case @p outcome, which may be null, gets what became of the input.
     *
     * What is read with #ClockDurations and #KeepRootSize, written and read so again has the same top layout, and the
     * same durations to the six digits that SmilUnit::toString() writes.
     */
    SmilDocument &parse(ReadOptions options, Outcome *outcome = nullptr, QString *errorMsg = nullptr,
                        int *errorLine = nullptr, int *errorColumn = nullptr);

    /**
     * The tree that the last parse() read or the last getContent() made. It has what the model has no place for, and no
     * XML declaration. It is null before the first of the two, unless render() was called, and after a parse() whose
     * outcome is #NotWellFormed. Later changes to the model do not show in it.
     *
     * This is Qt's handle: a change to the tree shows in every copy. A copy keeps the tree when the parser is destroyed
     * or getContent() begins another one; a further parse() replaces the tree in the copy too, by what it reads or by
     * nothing. Elements of a tree that no copy keeps may only be destroyed, in any order.
     */
    QDomDocument dom() const;

    /**
     * Reads the first "head" child of @p smil, then the first "body" child, into the model, whichever comes first. The
     * model is not cleared before. The element and its tree are not changed; they need not be parse()'s.
     *
     * @return whether both were found and read. If not, there is one warning as of parse(), or none when
     * parseSmilNodes() refused the body. Without a head, the body is not looked for. A null element has neither.
     *
     * The debug lines are "Begin to parse smil document. ", then "Smil document have a head. " and "Smil document have
     * a body. " as each has been read.
     */
    bool parseSmilDocument(QDomElement &smil);

    /**
     * Reads the attributes of @p head, its "meta" children and its first "layout" child into the model's header. Metas
     * and regions are appended to those that are there. Attributes replace what is there, absent ones too. The element
     * is not changed; a null one counts as one without attributes and children. Always true.
     */
    bool parseSmilHead(QDomElement &head);

    /**
     * Reads the first "root-layout", the first "topLayout" and every "region" child of @p layout into the model's
     * layout. Regions are appended to those that are there. A missing "root-layout" or "topLayout" leaves its two
     * measures alone. The element is not changed; a null one counts as empty. Always true.
     */
    bool parseLayout(QDomElement &layout);

    /** Reads @p body into the root of the model's timeline: parseSmilNodes() with it, that root and depth 0. */
    bool parseSmilBody(QDomElement &body);

    /**
     * Reads the timeline inside @p element into @p node. Replaces SmilNode::dur, and appends a node for each "par" and
     * "seq" child and a reference for each "text", "img", "audio", "video" and "ref" child, their names in any letter
     * case. Other children are skipped with all they hold. SmilNode::type is not changed, nor is the element, and no
     * member of the parser is used. A null element counts as empty.
     *
     * @p depth says how deep @p element is nested: 0 for "body"; a negative one allows for that many levels more.
     *
     * @return false, without a warning, when something is nested deeper than #MaxDepth. If that is @p element, @p node
     * is not touched; if it is an element inside, that one and those around it up to @p element are left out, and what
     * precedes them is kept.
     */
    bool parseSmilNodes(QDomElement &element, SmilNode &node, int depth);

    /**
     * Makes a new tree of the model under the root element "smil", and returns it. The old tree is dropped, unless a
     * copy keeps it. The model is not changed, and every model can be written: each field says how, and texts are
     * written verbatim. There is no XML declaration, document type or namespace.
     */
    QDomDocument &getContent();

    /**
     * The model as text: the elements, attributes and values of getContent(), in UTF-8, without an XML declaration.
     * With a negative @p indent it is one line without a line end. From 0 on each element has a line, which begins with
     * that many blanks for each element around it, as in QDomDocument::toByteArray(). The bytes are the same on every
     * run, Qt and machine. Neither the model nor the parser is changed.
     *
     * Attributes stand in the order in which getContent() sets them. An element without others inside is written as
     * `<img src="a"/>`. Tabs and line ends in a text stay, as references. A character that XML does not allow, such as
     * U+0001 or half a surrogate pair, is left out of its text, and what is left may be empty (`src=""`).
     *
     * parse() reads all this back as #Complete, unless "smil", "body", the nodes and a medium are together deeper than
     * #MaxDepth, or than 32 levels around a byte on average.
     */
    QByteArray toXml(int indent = -1) const;

    /**
     * Each of these returns a new element for its record, with all that it holds. The caller appends it where it
     * belongs. The record is not changed. The result is null only for a SmilRef of unknown kind.
     *
     * The element belongs to the parser's document, which ends when getContent() begins another one, parse() fails, or
     * the parser is destroyed, unless the host keeps a copy of dom(). An element that is in no document by then may
     * only be destroyed.
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
