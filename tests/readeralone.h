// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_READERALONE_H
#define SMILPARSER_READERALONE_H

#include <QtXml/QDomDocument>

/** QDomDocument::setContent() without the library before it, as each Qt calls it. */
inline bool readAlone(QIODevice &device, QDomDocument &dom, QString &error, int &line, int &column)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    const QDomDocument::ParseResult result = dom.setContent(&device, QDomDocument::ParseOption::Default);
    error = result.errorMessage;
    line = int(result.errorLine);
    column = int(result.errorColumn);
    return bool(result);
#else
    return dom.setContent(&device, &error, &line, &column);
#endif
}

#endif
