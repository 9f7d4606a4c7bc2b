// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_READER_H
#define SMILPARSER_READER_H

class QBuffer;
class QDomDocument;
class QString;

/**
 * QDomDocument::setContent() on @p buffer without namespaces, made the same on every Qt: it is silent and leaves the
 * buffer at its end. If the bytes are @p knownUtf8, they are read as that, whatever they declare. When it returns
 * false, the pointers, each of which may be null, get what Qt reports.
 */
bool readXml(QBuffer &buffer, bool knownUtf8, QDomDocument &document, QString *errorMsg, int *errorLine,
             int *errorColumn);

#endif
