// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/mmslogger.h>

bool MMSLogger::qdebugEnabled = false;
