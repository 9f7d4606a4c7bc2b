// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// Compares what a host sees of a document with what the XML reader alone makes of it: the same within the limits, and
// an error beyond them. The program has the guard in it, and asks it where a limit is exceeded.

#include "grammar.h"

#include "smilparser/parse/guard/guard.h"

bool MMSLogger::qdebugEnabled = false;

static void require(bool holds, const char *what, const QByteArray &input, const QString &told, const QString &expected)
{
    if (!holds) {
        fprintf(stderr, "%s %s\n", what, input.left(4000).toPercentEncoding(" <>'\"=/?!&;[]").constData());
        fprintf(stderr, "%s\n%s\n", qPrintable(told.left(2000)), qPrintable(expected.left(2000)));
        abort();
    }
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input = documentOf(data, size, 16384);
    const QString told = toldByLibrary(input);
    const std::optional<QByteArray> decoded = decode(input);
    const QByteArray text = decoded.value_or(input);
    const bool refused = isRefused(told);
    require(decoded || toldByLibrary(input, SmilParser::DecodedText) == told, "Other with DecodedText:", input, told,
            QString());
    // Nothing is left of a document with an odd declaration.
    if (text.isEmpty() || safePrefixLength(text) < text.size()) {
        require(refused, "Beyond the limits, and no error:", input, told, QString());
    } else if (!decoded || !text.contains("\xef\xbf\xbd")) { // readers report unknown characters in their own ways
        const QString expected = toldByReaderAlone(input);
        // If the bytes are not in the declared encoding, neither sees XML, and what they see differs.
        const bool garbled = decoded && (!text.startsWith('<') || text.contains('\0'));
        const bool bothRefuse = refused && isRefused(expected);
        require(told == expected || (garbled && bothRefuse), "Not what the reader alone gives:", input, told, expected);
    }
    return 0;
}
