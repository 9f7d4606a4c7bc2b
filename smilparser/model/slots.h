// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_SLOTS_H
#define SMILPARSER_SLOTS_H

/** The media that a slide has room for, one of each. */
enum class Slot { Visual = 1, Text = 2, Audio = 4 };

/** A set of #Slot, as bits. */
using Slots = int;

inline bool has(Slots slots, Slot slot)
{
    return slots & int(slot);
}

/** The slots that a medium of that SmilRef::Type takes; none for an unknown type. */
Slots slotsOf(int type);

#endif
