// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_SCANNER_H
#define SMILPARSER_SCANNER_H

#include <QtCore/QHash>
#include <QtCore/QString>

/** Text that a document type declaration brings into the document wherever it is referred to. */
struct Replacement {
    enum State { Unknown, BeingFound, Known };

    QString text;
    State state = Unknown;
    bool complete = false; ///< whether all markup that begins in it ends in it, within the limits
    qint64 length = 0; ///< in characters, with what its own references bring
    int depth = 0; ///< levels of elements in it
};

/** Entities by their name, and the default attributes of an element by "<" and its name. */
using Replacements = QHash<QString, Replacement>;

/**
 * Finds the first place of a text where a limit of SmilParser::Limit is exceeded. It knows just enough of XML for that:
 * where markup begins and ends, and what takes the place of references. It does not look for errors: what it takes for
 * markup is what the reader takes for it up to the first error, and there the reader stops.
 */
class Scanner
{
public:
    enum Kind { Document, Entity };
    enum Result {
        Passed, ///< up to place(), or to the end, everything is within the limits
        Malformed, ///< so is everything up to an error that stops the reader
        Refused ///< a limit is exceeded at place()
    };

    /** A scanner of @p text, which it does not copy. */
    Scanner(const QString &text, Replacements &replacements, Kind kind);

    Result scan(qint64 start = 0);
    qint64 place() const { return at - begin; }

private:
    Result markup();
    Result startTag();
    Result attributeValue();
    Result endTag();
    Result processingInstruction();
    Result documentType();
    Result subset();
    Result declaration();
    Result entityDeclaration();
    Result restOfDeclaration(const QString &defaultsOf = QString());
    Result reference();
    Result replace(const QString &name);

    bool startsWith(QLatin1String text) const;
    Result skipPast(QLatin1String text, int from);
    Result skipLiteral();
    Result skipName();
    Result checkName();
    void skipSpace();
    QString readName();

    const char16_t *const begin;
    const char16_t *const end;
    const char16_t *at; ///< where the scan is; each function moves it past what it is named for
    Replacements &replacements;
    const Kind kind;
    int level = 0; ///< of elements open
    int deepest = 0; ///< the most there were
    bool rootSeen = false;
    qint64 replaced = 0; ///< characters that references brought
    qint64 subsetLength = 0;
};

#endif
