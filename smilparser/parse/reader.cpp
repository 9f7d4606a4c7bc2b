// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "reader.h"

#include "guard/guard.h"

#include <QtCore/QBuffer>
#include <QtXml/QDomDocument>

/** From @p source, a device or a text. */
template<typename Source>
static bool setContent(QDomDocument &document, const Source &source, QString *errorMsg, int *errorLine,
                       int *errorColumn)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    const QDomDocument::ParseResult result = document.setContent(source, QDomDocument::ParseOption::Default);
    if (result) {
        return true;
    }
    if (errorMsg) {
        *errorMsg = result.errorMessage;
    }
    if (errorLine) {
        *errorLine = int(result.errorLine);
    }
    if (errorColumn) {
        *errorColumn = int(result.errorColumn);
    }
    return false;
#else
    return document.setContent(source, errorMsg, errorLine, errorColumn);
#endif
}

bool readXml(QBuffer &buffer, bool knownUtf8, QDomDocument &document, QString *errorMsg, int *errorLine,
             int *errorColumn)
{
    std::optional<QByteArray> text;
    // An open buffer has been read already. Qt would open a closed one too, but Qt 6 warns about it.
    if (!buffer.isOpen()) {
        text = decode(buffer.data(), knownUtf8);
        if (!text) {
            buffer.setData(buffer.data().left(safePrefixLength(buffer.data())));
        }
        buffer.open(QIODevice::ReadOnly);
    }
    const bool wellFormed = text ? setContent(document, QString::fromUtf8(text->constData(), safePrefixLength(*text)),
                                              errorMsg, errorLine, errorColumn)
                                 : setContent(document, &buffer, errorMsg, errorLine, errorColumn);
    // Qt 6 stops reading at an error. The next call must not take what follows for a document.
    buffer.seek(buffer.size());
    return wellFormed;
}
