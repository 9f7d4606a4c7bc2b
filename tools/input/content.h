// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_CONTENT_H
#define SMILTOOL_CONTENT_H

#include <QtCore/QString>

/**
 * The type of what the bytes are, whatever their name says, as the system tells it from their beginning, such as
 * "image/png". It is "text/plain" for every text except XML, and also when there are none.
 */
QString recognisedType(const QByteArray &bytes);

/** The name of the element for a SmilRef::Type. */
QString elementName(int kind);

#endif
