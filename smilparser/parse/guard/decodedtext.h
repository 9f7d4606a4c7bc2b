// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_DECODEDTEXT_H
#define SMILPARSER_DECODEDTEXT_H

#include <QtCore/QByteArray>
#include <QtCore/QString>

/**
 * The input as the XML reader decodes it. Its encoding decides what is markup, and the versions of Qt find it in ways
 * of their own that differ from the standard's and from each other's; so this follows them step by step.
 */
class DecodedText
{
public:
    explicit DecodedText(const QByteArray &bytes);

    const QString &text() const { return decoded; }

    /**
     * All that is looked at for the encoding. Qt 5 reads no further itself. Qt 6 decodes anew what it then holds of the
     * input, which is all of it up to there only when that is short; so a longer declaration is refused.
     */
    static constexpr qint64 longestDeclaration = 1024;

    /** Where in the text the reader is when it knows the encoding; -1 when the declaration is too long. */
    qint64 start() const { return continuation; }

    /** How many bytes make up the text before @p index. Cost: linear; meant for the rare refusal. */
    qint64 byteOffset(qint64 index) const;

private:
    QString decode(qint64 size) const;

    const QByteArray bytes;
    QByteArray encoding;
    QString decoded;
    qint64 continuation = 0;
};

#endif
