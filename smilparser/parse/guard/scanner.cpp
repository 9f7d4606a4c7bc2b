// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "scanner.h"

#include "characters.h"

#include <smilparser/smilparser.h>

#include <QtCore/QStringList>

#include <algorithm>
#include <string>

template<typename Char>
static const Char *find(const Char *begin, const Char *end, Char c)
{
    const Char *const found = std::char_traits<Char>::find(begin, std::size_t(end - begin), c);
    return found ? found : end;
}

template<typename Char>
Scanner<Char>::Scanner(const Char *text, qint64 size, Replacements &known, ScannedText what)
    : begin(text)
    , end(begin + size)
    , at(begin)
    , replacements(known)
    , kind(what)
{
}

template<typename Char>
ScanResult Scanner<Char>::scan(qint64 start)
{
    at = begin + qMin<qint64>(start, end - begin); // decoded anew, the text may be shorter than what preceded the start
    ScanResult result = ScanResult::Passed;
    while (result == ScanResult::Passed) {
        // References matter only where something is declared that can take their place.
        if (replacements.isEmpty()) {
            at = find(at, end, Char('<'));
            skipPlainTags();
        } else {
            at = std::find_if(at, end, [](Char c) { return c == Char('<') || c == Char('&'); });
        }
        if (at == end) {
            break;
        }
        if (*at == Char('<')) {
            result = markup();
        } else {
            // Outside of the root element a reference is an error, and a document cut off there might be complete.
            const bool outside = kind == ScannedText::Document && level == 0;
            result = outside ? ScanResult::Malformed : reference();
        }
    }
    return result;
}

// Nearly all of a document is tags of which all there is to know is whether they end in "/>". The first ">" ends such a
// tag where only text without another follows up to the next "<": had it been quoted, that "<" would be within the tag,
// and there the reader stops. A short tag has no room for what the limits are about. The first one that is different is
// left to markup(), and so is what is outside of the root element.
template<typename Char>
void Scanner<Char>::skipPlainTags()
{
    const int longest = SmilParser::MaxAttributes * 4; // a=""
    static_assert(longest <= SmilParser::MaxName, "a tag that is skipped has no room for a name that is too long");
    int depth = level;
    const Char *tag = at;
    while (depth > 0 && end - tag > 2 && tag[1] != Char('!') && tag[1] != Char('?')) {
        const Char *const close = find(tag + 2, end, Char('>'));
        if (end - close < 2 || close - tag > longest) {
            break;
        }
        const Char *next = close + 1;
        while (*next != Char('<') && *next != Char('>') && next != end - 1) {
            ++next;
        }
        if (*next != Char('<')) {
            break;
        }
        if (tag[1] == Char('/')) {
            --depth;
        } else {
            if (depth == SmilParser::MaxDepth) {
                break;
            }
            depth += close[-1] == Char('/') ? 0 : 1;
        }
        tag = next;
    }
    at = tag;
    level = depth;
}

template<typename Char>
ScanResult Scanner<Char>::markup()
{
    switch (end - at > 1 ? code(at[1]) : u'\0') {
    case u'/':
        return endTag();
    case u'?':
        return processingInstruction();
    case u'!':
        if (startsWith(QLatin1String("<!--"))) {
            return skipPast(QLatin1String("-->"), 4);
        }
        if (startsWith(QLatin1String("<![CDATA["))) {
            return skipPast(QLatin1String("]]>"), 9);
        }
        return startsWith(QLatin1String("<!DOCTYPE")) && kind == ScannedText::Document ? documentType()
                                                                                       : ScanResult::Malformed;
    default:
        return startTag();
    }
}

template<typename Char>
ScanResult Scanner<Char>::startTag()
{
    if (level == SmilParser::MaxDepth) {
        return ScanResult::Refused;
    }
    deepest = qMax(deepest, level + 1);
    const Char *const tag = ++at;
    if (!replacements.isEmpty()) {
        if (replace(QLatin1Char('<') + readName()) == ScanResult::Refused) {
            return ScanResult::Refused;
        }
        at = tag;
    }
    return unlessLongName(tag, attributes());
}

template<typename Char>
ScanResult Scanner<Char>::attributes()
{
    int count = 0;
    for (; at != end; ++at) {
        if (isQuote(code(*at))) {
            const ScanResult result = ++count > SmilParser::MaxAttributes ? ScanResult::Refused : attributeValue();
            if (result != ScanResult::Passed) {
                return result;
            }
        } else if (*at == Char('>')) {
            level += at[-1] == Char('/') ? 0 : 1;
            ++at;
            return ScanResult::Passed;
        } else if (*at == Char('<')) {
            return ScanResult::Malformed;
        }
    }
    return ScanResult::Malformed;
}

// To the quotation mark that ends it, not past that.
template<typename Char>
ScanResult Scanner<Char>::attributeValue()
{
    if (replacements.isEmpty()) {
        return skipLiteral();
    }
    const Char quote = *at++;
    for (;;) {
        at = std::find_if(at, end, [quote](Char c) { return c == quote || c == Char('&'); });
        if (at == end) {
            return ScanResult::Malformed;
        }
        if (*at == quote) {
            return ScanResult::Passed;
        }
        const ScanResult result = reference();
        if (result != ScanResult::Passed) {
            return result;
        }
    }
}

template<typename Char>
ScanResult Scanner<Char>::endTag()
{
    at += 2;
    if (level == 0) {
        return ScanResult::Malformed;
    }
    const Char *const tag = at;
    --level;
    return unlessLongName(tag, skipPast('>'));
}

template<typename Char>
ScanResult Scanner<Char>::processingInstruction()
{
    at += 2;
    return checkName() == ScanResult::Refused ? ScanResult::Refused : skipPast(QLatin1String("?>"), 0);
}

template<typename Char>
ScanResult Scanner<Char>::documentType()
{
    at += 9;
    skipSpace();
    if (checkName() == ScanResult::Refused) {
        return ScanResult::Refused;
    }
    for (; at != end && *at != Char('>'); ++at) {
        const ScanResult result = *at == Char('[') ? subset()
            : isQuote(code(*at))                   ? skipLiteral()
            : *at == Char('<')                     ? ScanResult::Malformed
                                                   : ScanResult::Passed;
        if (result != ScanResult::Passed) {
            return result;
        }
    }
    return skipPast('>');
}

// To the bracket that ends it, not past that.
template<typename Char>
ScanResult Scanner<Char>::subset()
{
    const Char *const start = ++at;
    const Char *const limit = start + qMin<qint64>(SmilParser::MaxSubset - subsetLength, end - start);
    ScanResult result = ScanResult::Passed;
    while (result == ScanResult::Passed && at < limit && *at != Char(']')) {
        result = *at == Char('<') ? declaration() : (++at, ScanResult::Passed);
    }
    // Also when it is malformed, which may show only far behind the limit.
    if (at > limit || (at == limit && at != end && *at != Char(']'))) {
        at = limit;
        return ScanResult::Refused;
    }
    subsetLength += at - start;
    return result == ScanResult::Passed && at == end ? ScanResult::Malformed : result;
}

template<typename Char>
ScanResult Scanner<Char>::declaration()
{
    if (startsWith(QLatin1String("<!--"))) {
        return skipPast(QLatin1String("-->"), 4);
    }
    if (startsWith(QLatin1String("<?"))) {
        return processingInstruction();
    }
    if (startsWith(QLatin1String("<!ENTITY"))) {
        at += 8;
        return entityDeclaration();
    }
    if (startsWith(QLatin1String("<!ATTLIST"))) {
        at += 9;
        skipSpace();
        return restOfDeclaration(QLatin1Char('<') + readName());
    }
    return restOfDeclaration();
}

template<typename Char>
ScanResult Scanner<Char>::entityDeclaration()
{
    skipSpace();
    if (at != end && *at == Char('%')) {
        return ScanResult::Refused;
    }
    const QString name = readName();
    skipSpace();
    if (at != end && isQuote(code(*at))) {
        const Char *const literal = at + 1;
        if (skipLiteral() != ScanResult::Passed) {
            return ScanResult::Malformed;
        }
        const QString text = toText(literal, at);
        if (text.contains(QLatin1Char('%'))) {
            return ScanResult::Refused;
        }
        static const QStringList predefined{QStringLiteral("amp"), QStringLiteral("apos"), QStringLiteral("gt"),
                                            QStringLiteral("lt"), QStringLiteral("quot")};
        // The first declaration of a name counts, and nothing overrides what XML itself declares.
        if (!predefined.contains(name) && !replacements.contains(name)) {
            replacements[name].text = expandCharacters(text);
        }
        ++at;
    }
    return restOfDeclaration();
}

/** Quoted text in it is the default of an attribute when @p defaultsOf is given. */
template<typename Char>
ScanResult Scanner<Char>::restOfDeclaration(const QString &defaultsOf)
{
    int groups = 0;
    for (; at != end && *at != Char('>'); ++at) {
        groups += *at == Char('(') ? 1 : *at == Char(')') ? -1 : 0;
        if (groups > SmilParser::MaxDepth) {
            return ScanResult::Refused;
        }
        if (isQuote(code(*at))) {
            const Char *const literal = at;
            if (skipLiteral() != ScanResult::Passed) {
                return ScanResult::Malformed;
            }
            if (!defaultsOf.isEmpty()) {
                replacements[defaultsOf].text += toText(literal, at);
            }
        }
    }
    return skipPast('>');
}

// Stays where it is when the reference is refused, so that the document is cut off before it.
template<typename Char>
ScanResult Scanner<Char>::reference()
{
    const Char *const semicolon = std::find_if(at, end, [](Char c) { return c == Char(';') || endsName(code(c)); });
    if (semicolon == end || *semicolon != Char(';')) {
        return ScanResult::Malformed;
    }
    if (semicolon - at > SmilParser::MaxName) {
        return ScanResult::Refused;
    }
    const ScanResult result = replace(toText(at + 1, semicolon));
    if (result == ScanResult::Passed) {
        at = semicolon + 1;
    }
    return result;
}

template<typename Char>
ScanResult Scanner<Char>::replace(const QString &name)
{
    const auto found = replacements.find(name);
    if (found == replacements.end()) {
        return ScanResult::Passed;
    }
    if (!found->scanned) {
        found->scanned = true;
        const QString &text = found->text;
        Scanner<char16_t> scanner(reinterpret_cast<const char16_t *>(text.utf16()), text.size(), replacements,
                                  ScannedText::Entity);
        found->complete = scanner.scan() == ScanResult::Passed && scanner.isComplete();
        found->length = scanner.length();
        found->depth = scanner.depth();
    }
    // One that is being scanned refers to itself.
    replaced += found->length;
    deepest = qMax(deepest, level + found->depth);
    const bool harmless = found->complete && replaced <= SmilParser::MaxExpansion && deepest <= SmilParser::MaxDepth;
    return harmless ? ScanResult::Passed : ScanResult::Refused;
}

template<typename Char>
bool Scanner<Char>::startsWith(QLatin1String text) const
{
    return end - at >= text.size() && std::equal(text.begin(), text.end(), at);
}

template<typename Char>
ScanResult Scanner<Char>::skipPast(QLatin1String text, int from)
{
    at += qMin<qint64>(from, end - at);
    at = std::search(at, end, text.begin(), text.end());
    if (at == end) {
        return ScanResult::Malformed;
    }
    at += text.size();
    return ScanResult::Passed;
}

template<typename Char>
ScanResult Scanner<Char>::skipPast(char c)
{
    at = find(at, end, Char(c));
    if (at == end) {
        return ScanResult::Malformed;
    }
    ++at;
    return ScanResult::Passed;
}

// To the quotation mark that ends it, not past that.
template<typename Char>
ScanResult Scanner<Char>::skipLiteral()
{
    at = find(at + 1, end, *at);
    return at == end ? ScanResult::Malformed : ScanResult::Passed;
}

template<typename Char>
ScanResult Scanner<Char>::skipName()
{
    const Char *const name = at;
    at = std::find_if(at, end, [](Char c) { return endsName(code(c)); });
    return at - name > SmilParser::MaxName ? ScanResult::Refused
        : at == end                        ? ScanResult::Malformed
                                           : ScanResult::Passed;
}

template<typename Char>
ScanResult Scanner<Char>::checkName()
{
    const Char *const name = at;
    const ScanResult result = skipName();
    at = name;
    return result;
}

template<typename Char>
void Scanner<Char>::skipSpace()
{
    at = std::find_if_not(at, end, [](Char c) { return isSpace(code(c)); });
}

template<typename Char>
QString Scanner<Char>::readName()
{
    const Char *const name = at;
    skipName();
    return toText(name, at);
}

// Also where the tag seems not to end: past a name that is too long, the reader of Qt 6.4 goes on differently.
template<typename Char>
ScanResult Scanner<Char>::unlessLongName(const Char *tag, ScanResult result)
{
    if (!hasLongName(tag)) {
        return result;
    }
    at = tag;
    return ScanResult::Refused;
}

template<typename Char>
bool Scanner<Char>::hasLongName(const Char *tag) const
{
    const Char *name = tag;
    const bool hasRoom = at - tag > SmilParser::MaxName;
    for (const Char *c = tag; hasRoom && c < at; ++c) {
        if (!endsName(code(*c))) {
            continue;
        }
        if (c - name > SmilParser::MaxName) {
            return true;
        }
        if (isQuote(code(*c))) {
            c = find(c + 1, at, *c);
            if (c == at) {
                break;
            }
        }
        name = c + 1;
    }
    return at - name > SmilParser::MaxName;
}

template class Scanner<char>;
template class Scanner<char16_t>;
