// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_ASSIGNEDNUMBERS_H
#define SMILTOOL_ASSIGNEDNUMBERS_H

#include <QtCore/QString>

/** The content type that has the number, such as "image/jpeg"; "0x7b" for a number that messages are not made of. */
QString mediaType(quint64 number);

/** The charset that has the number, such as "utf-8"; null for one that texts in messages are not written in. */
QString charsetName(quint64 number);

#endif
