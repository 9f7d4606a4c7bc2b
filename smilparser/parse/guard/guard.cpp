// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "guard.h"

#include "decodedtext.h"
#include "scanner.h"

qint64 harmlessSize(const QByteArray &bytes)
{
    const DecodedText decoded(bytes);
    if (decoded.start() < 0) {
        return qMin<qint64>(bytes.size(), DecodedText::longestDeclaration);
    }
    Replacements replacements;
    Scanner scanner(decoded.text(), replacements, Scanner::Document);
    return scanner.scan(decoded.start()) == Scanner::Refused ? decoded.byteOffset(scanner.place()) : bytes.size();
}
