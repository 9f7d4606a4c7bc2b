// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_CONTENTID_H
#define SMILTOOL_CONTENTID_H

#include <QtCore/QString>

/** The identifier of a part without quotation marks, "cid:" and angle brackets. */
QString bareId(const QString &id);

#endif
