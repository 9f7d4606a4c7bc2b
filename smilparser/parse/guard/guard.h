// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_GUARD_H
#define SMILPARSER_GUARD_H

#include <QtCore/QByteArray>

#include <optional>

// The limits beside SmilParser::MaxDepth. SECURITY.md says what each is for.
const int maxMeanDepth = 32; // levels around a byte
const int leastSize = 128 * 1024; // what a document counts as, at least, for the mean
const int maxAttributes = 64; // of an element, those of equal names too
const int maxName = 4096; // as QString::size() counts it
const int maxDeclaration = 1024; // bytes

/**
 * The text of @p bytes that are not UTF-8, as UTF-8: decoded by their byte order mark, their first character or their
 * XML declaration. There is none for bytes that are UTF-8, unless they begin with an instruction such as "<?xml-a?>",
 * from which Qt 5 would take an encoding. The XML reader gets this text, not the bytes, so that it cannot read another
 * text than was scanned.
 *
 * The text is empty when the declaration names several encodings or one that Qt does not know, or is longer than it may
 * be. It is never so when the bytes are @p knownUtf8. Then there is a text, equal to them, wherever the reader could
 * take them for anything else.
 */
std::optional<QByteArray> decode(const QByteArray &bytes, bool knownUtf8 = false);

/**
 * How much of a text the XML reader may get: all of it, or what precedes the first place where a limit is exceeded. A
 * document that is cut off there is always incomplete, and the reader reports that.
 *
 * The size of its input does not bound the reader's memory, stack and time. Within the limits, it does.
 */
qint64 safePrefixLength(const QByteArray &utf8);

#endif
