// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "scanner.h"

#include "characters.h"

#include <smilparser/smilparser.h>

#include <algorithm>

Scanner::Scanner(const QString &text, Replacements &known, Kind what)
    : begin(reinterpret_cast<const char16_t *>(text.utf16()))
    , end(begin + text.size())
    , at(begin)
    , replacements(known)
    , kind(what)
{
}

Scanner::Result Scanner::scan(qint64 start)
{
    at = begin + start;
    Result result = Passed;
    while (result == Passed) {
        // References matter only where something is declared that can take their place.
        const char16_t ampersand = replacements.isEmpty() ? u'<' : u'&';
        at = std::find_if(at, end, [ampersand](char16_t c) { return c == u'<' || c == ampersand; });
        if (at == end) {
            break;
        }
        // Outside of the root element a reference is an error, and a document cut off there might be complete.
        const bool outside = kind == Document && level == 0;
        result = *at == u'<' ? markup() : outside ? Malformed : reference();
    }
    return result;
}

Scanner::Result Scanner::markup()
{
    switch (end - at > 1 ? at[1] : u'\0') {
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
        return startsWith(QLatin1String("<!DOCTYPE")) && kind == Document ? documentType() : Malformed;
    default:
        return startTag();
    }
}

Scanner::Result Scanner::startTag()
{
    if (kind == Document && rootSeen && level == 0) {
        return Malformed; // A second root. Cut off before it, the document would be complete.
    }
    if (level == SmilParser::MaxDepth) {
        return Refused;
    }
    rootSeen = true;
    deepest = qMax(deepest, level + 1);
    ++at;
    if (!replacements.isEmpty()) {
        const char16_t *const tag = at;
        if (replace(QLatin1Char('<') + readName()) == Refused) {
            return Refused;
        }
        at = tag;
    }
    int attributes = 0;
    for (;; ++at) {
        Result result = skipName();
        if (result == Passed && isQuote(*at)) {
            result = ++attributes > SmilParser::MaxAttributes ? Refused : attributeValue();
        }
        if (result != Passed) {
            return result;
        }
        if (*at == u'<') {
            return Malformed;
        }
        if (*at == u'>') {
            level += at[-1] == u'/' ? 0 : 1;
            ++at;
            return Passed;
        }
    }
}

// To the quotation mark that ends it, not past that.
Scanner::Result Scanner::attributeValue()
{
    const char16_t quote = *at++;
    const char16_t ampersand = replacements.isEmpty() ? quote : u'&';
    for (;;) {
        at = std::find_if(at, end, [quote, ampersand](char16_t c) { return c == quote || c == ampersand; });
        if (at == end) {
            return Malformed;
        }
        if (*at == quote) {
            return Passed;
        }
        const Result result = reference();
        if (result != Passed) {
            return result;
        }
    }
}

Scanner::Result Scanner::endTag()
{
    at += 2;
    const Result result = skipName();
    if (result != Passed) {
        return result;
    }
    if (level == 0) {
        return Malformed;
    }
    --level;
    return skipPast(QLatin1String(">"), 0);
}

Scanner::Result Scanner::processingInstruction()
{
    at += 2;
    return checkName() == Refused ? Refused : skipPast(QLatin1String("?>"), 0);
}

Scanner::Result Scanner::documentType()
{
    at += 9;
    skipSpace();
    if (checkName() == Refused) {
        return Refused;
    }
    for (; at != end && *at != u'>'; ++at) {
        const Result result = *at == u'[' ? subset() : isQuote(*at) ? skipLiteral() : *at == u'<' ? Malformed : Passed;
        if (result != Passed) {
            return result;
        }
    }
    return skipPast(QLatin1String(">"), 0);
}

// To the bracket that ends it, not past that.
Scanner::Result Scanner::subset()
{
    const char16_t *const limit = at + qMin<qint64>(SmilParser::MaxSubset - subsetLength, end - at);
    const char16_t *const bracket = at++;
    Result result = Passed;
    while (result == Passed && at < limit && *at != u']') {
        result = *at == u'<' ? declaration() : (++at, Passed);
    }
    // Also when it is malformed, which may show only far behind the limit.
    if (at >= limit && limit != end) {
        at = limit;
        return Refused;
    }
    subsetLength += at - bracket;
    return result == Passed && at == end ? Malformed : result;
}

Scanner::Result Scanner::declaration()
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

Scanner::Result Scanner::entityDeclaration()
{
    skipSpace();
    if (at != end && *at == u'%') {
        return Refused;
    }
    const QString name = readName();
    skipSpace();
    if (at != end && isQuote(*at)) {
        const char16_t *const literal = at + 1;
        if (skipLiteral() != Passed) {
            return Malformed;
        }
        const QString text(reinterpret_cast<const QChar *>(literal), at - literal);
        if (text.contains(QLatin1Char('%'))) {
            return Refused;
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
Scanner::Result Scanner::restOfDeclaration(const QString &defaultsOf)
{
    int groups = 0;
    for (; at != end && *at != u'>'; ++at) {
        groups += *at == u'(' ? 1 : *at == u')' ? -1 : 0;
        if (groups > SmilParser::MaxDepth) {
            return Refused;
        }
        if (isQuote(*at)) {
            const char16_t *const literal = at;
            if (skipLiteral() != Passed) {
                return Malformed;
            }
            if (!defaultsOf.isEmpty()) {
                replacements[defaultsOf].text.append(reinterpret_cast<const QChar *>(literal), at - literal);
            }
        }
    }
    return skipPast(QLatin1String(">"), 0);
}

// Stays where it is when the reference is refused, so that the document is cut off before it.
Scanner::Result Scanner::reference()
{
    const char16_t *const semicolon = std::find_if(at, end, [](char16_t c) { return c == u';' || endsName(c); });
    if (semicolon == end || *semicolon != u';') {
        return Malformed;
    }
    if (semicolon - at > SmilParser::MaxName) {
        return Refused;
    }
    const Result result = replace(QString(reinterpret_cast<const QChar *>(at + 1), semicolon - at - 1));
    if (result == Passed) {
        at = semicolon + 1;
    }
    return result;
}

Scanner::Result Scanner::replace(const QString &name)
{
    const auto found = replacements.find(name);
    if (found == replacements.end()) {
        return Passed;
    }
    if (found->state == Replacement::Unknown) {
        found->state = Replacement::BeingFound;
        Scanner scanner(found->text, replacements, Entity);
        found->complete = scanner.scan() == Passed && scanner.level == 0;
        found->length = found->text.size() + scanner.replaced;
        found->depth = scanner.deepest;
        found->state = Replacement::Known;
    }
    // One that is still being found refers to itself and has no end.
    replaced += found->length;
    deepest = qMax(deepest, level + found->depth);
    const bool harmless = found->state == Replacement::Known && found->complete && replaced <= SmilParser::MaxExpansion
        && deepest <= SmilParser::MaxDepth;
    return harmless ? Passed : Refused;
}

bool Scanner::startsWith(QLatin1String text) const
{
    return end - at >= text.size() && std::equal(text.begin(), text.end(), at);
}

Scanner::Result Scanner::skipPast(QLatin1String text, int from)
{
    at += qMin<qint64>(from, end - at);
    at = std::search(at, end, text.begin(), text.end());
    if (at == end) {
        return Malformed;
    }
    at += text.size();
    return Passed;
}

// To the quotation mark that ends it, not past that.
Scanner::Result Scanner::skipLiteral()
{
    const char16_t quote = *at;
    at = std::find(at + 1, end, quote);
    return at == end ? Malformed : Passed;
}

Scanner::Result Scanner::skipName()
{
    const char16_t *const name = at;
    at = std::find_if(at, end, endsName);
    return at == end ? Malformed : at - name > SmilParser::MaxName ? Refused : Passed;
}

Scanner::Result Scanner::checkName()
{
    const char16_t *const name = at;
    const Result result = skipName();
    at = name;
    return result;
}

void Scanner::skipSpace()
{
    at = std::find_if_not(at, end, isSpace);
}

QString Scanner::readName()
{
    const char16_t *const name = at;
    skipName();
    return QString(reinterpret_cast<const QChar *>(name), at - name);
}
