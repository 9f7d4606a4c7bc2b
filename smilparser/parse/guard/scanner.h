// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_SCANNER_H
#define SMILPARSER_SCANNER_H

#include <QtCore/QHash>
#include <QtCore/QString>

/** Text that a document type declaration brings into the document wherever it is referred to. */
struct Replacement {
    QString text;
    bool scanned = false; ///< or being scanned, and not complete as yet
    bool complete = false; ///< whether all markup that begins in it ends in it, within the limits
    qint64 length = 0; ///< in characters, with what its own references bring
    int depth = 0; ///< levels of elements in it
};

/** Entities by their name, and the default attributes of an element by "<" and its name. */
using Replacements = QHash<QString, Replacement>;

enum class ScannedText { Document, Entity };
enum class ScanResult {
    Passed, ///< up to the place, or to the end, everything is within the limits
    Malformed, ///< so is everything up to an error that stops the reader
    Refused ///< a limit is exceeded at the place
};

/**
 * Finds the first place of a text where a limit of SmilParser::Limit is exceeded. It knows just enough of XML for that:
 * where markup begins and ends, and what takes the place of references. It does not look for errors: what it takes for
 * markup is what the reader takes for it up to the first error, and there the reader stops.
 *
 * @tparam Char char for UTF-8, char16_t for decoded text
 */
template<typename Char>
class Scanner
{
public:
    /** A scanner of a text, which is not copied. */
    Scanner(const Char *text, qint64 size, Replacements &replacements, ScannedText kind);

    ScanResult scan(qint64 start = 0);
    qint64 place() const { return at - begin; }
    qint64 length() const { return end - begin + replaced; } ///< with what references brought
    int depth() const { return deepest; } ///< the most levels of elements
    bool isComplete() const { return level == 0; } ///< whether all elements have ended

private:
    void skipPlainTags();
    ScanResult markup();
    ScanResult startTag();
    ScanResult attributes();
    ScanResult attributeValue();
    ScanResult endTag();
    ScanResult processingInstruction();
    ScanResult documentType();
    ScanResult subset();
    ScanResult declaration();
    ScanResult entityDeclaration();
    ScanResult restOfDeclaration(const QString &defaultsOf = QString());
    ScanResult reference();
    ScanResult replace(const QString &name);

    bool startsWith(QLatin1String text) const;
    ScanResult skipPast(QLatin1String text, int from);
    ScanResult skipPast(char text);
    ScanResult skipLiteral();
    ScanResult skipName();
    ScanResult checkName();
    void skipSpace();
    QString readName();
    ScanResult unlessLongName(const Char *tag, ScanResult result);
    bool hasLongName(const Char *tag) const;

    const Char *const begin;
    const Char *const end;
    const Char *at; ///< where the scan is; each function moves it past what it is named for
    Replacements &replacements;
    const ScannedText kind;
    int level = 0; ///< of elements open
    int deepest = 0;
    qint64 replaced = 0; ///< characters that references brought
    qint64 subsetLength = 0;
};

extern template class Scanner<char>;
extern template class Scanner<char16_t>;

#endif
