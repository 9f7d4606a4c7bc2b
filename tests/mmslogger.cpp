// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "support.h"

bool MMSLogger::qdebugEnabled = false;
