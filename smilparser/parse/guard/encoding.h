// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_ENCODING_H
#define SMILPARSER_ENCODING_H

#include <QtCore/QByteArray>
#include <QtCore/QString>

/**
 * The encoding in which the XML reader will read its input. That decides what is markup, and the versions of Qt find it
 * in ways of their own that differ from the standard's and from each other's; so this follows them step by step.
 */
class Encoding
{
public:
    explicit Encoding(const QByteArray &bytes);

    /**
     * All that is looked at. Qt 5 reads no further itself. Qt 6 decodes anew what it holds of the input at the end of
     * the XML declaration, which is all of it up to there only when that is short; so a longer declaration is refused.
     */
    static constexpr int longestDeclaration = 1024;

    bool isUtf8() const { return qstricmp(name.constData(), "UTF-8") == 0; }

    /** Where in text() the reader is when it knows the encoding; -1 when the declaration is too long. */
    qint64 start() const { return continuation; }

    /** The input, decoded. */
    QString text() const { return decode(bytes.size()); }

    /** How many bytes of the input make up the text before @p index. */
    qint64 byteOffset(qint64 index) const;

private:
    QString decode(qint64 size) const;

    const QByteArray bytes;
    QByteArray name;
    qint64 continuation = 0;
};

#endif
