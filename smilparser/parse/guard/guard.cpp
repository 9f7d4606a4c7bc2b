// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "guard.h"

#include "encoding.h"
#include "scanner.h"

qint64 harmlessSize(const QByteArray &bytes)
{
    const Encoding encoding(bytes);
    if (encoding.start() < 0) {
        return qMin<qint64>(bytes.size(), Encoding::longestDeclaration);
    }
    Replacements replacements;
    // What is markup can be told from the bytes of UTF-8 as they are, and hardly any message is in anything else.
    if (encoding.isUtf8()) {
        Scanner<char> scanner(bytes.constData(), bytes.size(), replacements, ScannedText::Document);
        return scanner.scan() == ScanResult::Refused ? scanner.place() : bytes.size();
    }
    const QString text = encoding.text();
    Scanner<char16_t> scanner(reinterpret_cast<const char16_t *>(text.utf16()), text.size(), replacements,
                              ScannedText::Document);
    return scanner.scan(encoding.start()) == ScanResult::Refused ? encoding.byteOffset(scanner.place()) : bytes.size();
}
