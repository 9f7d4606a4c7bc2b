// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "messages.h"

bool MMSLogger::qdebugEnabled = false;
