// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "elements.h"

const QString bodyElement = QStringLiteral("body");
const QString headElement = QStringLiteral("head");
const QString layoutElement = QStringLiteral("layout");
const QString metaElement = QStringLiteral("meta");
const QString regionElement = QStringLiteral("region");
const QString rootLayoutElement = QStringLiteral("root-layout");
const QString smilElement = QStringLiteral("smil");
const QString topLayoutElement = QStringLiteral("topLayout");
