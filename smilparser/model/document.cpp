// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilparser.h>

SmilDocument::SmilDocument() = default;
