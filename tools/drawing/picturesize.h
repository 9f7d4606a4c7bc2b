// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_PICTURESIZE_H
#define SMILTOOL_PICTURESIZE_H

#include <QtCore/QByteArray>
#include <QtCore/QSizeF>

/**
 * The size in pixels that a picture states, without looking at the picture itself; empty when it is no PNG, JPEG or
 * GIF, or cut off before its size. Qt reads that only in the library that draws windows, which is larger than all else
 * that the tool needs.
 */
QSizeF pictureSize(const QByteArray &data);

#endif
