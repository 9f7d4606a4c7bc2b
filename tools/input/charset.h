// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_CHARSET_H
#define SMILTOOL_CHARSET_H

#include <QtCore/QString>

/**
 * The text that the bytes are. A byte order mark decides. Without one it is @p charset, the number ("MIBenum") of
 * Latin-1 or of a kind of UTF-16. With another number or none they are UTF-8 if they can be, and Latin-1 if not.
 */
QString decoded(const QByteArray &bytes, quint64 charset = 0);

/** The same of the first characters, @p most of them, without a look at the rest. */
QString decodedBeginning(const QByteArray &bytes, int most);

#endif
