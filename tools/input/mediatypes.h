// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_MEDIATYPES_H
#define SMILTOOL_MEDIATYPES_H

#include <QtCore/QString>

/** The content type that has the number, such as "image/jpeg"; "0x7b" for a number that messages are not made of. */
QString mediaType(quint64 number);

#endif
