// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_TIMETEXT_H
#define SMILTOOL_TIMETEXT_H

#include <QtCore/QString>

/** How long something takes, such as "6.825s"; "\u221e" is infinite. */
QString lengthText(double seconds);

/** When something happens, such as "0:06.825" or "1:00:00"; as lengthText() when that is in years from now. */
QString clockText(double seconds);

#endif
