// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "reader.h"

#include "guard/guard.h"

#include <QtCore/QBuffer>
#include <QtXml/QDomDocument>

bool readXml(QBuffer &buffer, QDomDocument &document, QString *errorMsg, int *errorLine, int *errorColumn)
{
    std::optional<QByteArray> text;
    // Open, it has been read already. Qt would open it too, but Qt 6 warns about it.
    if (!buffer.isOpen()) {
        text = decode(buffer.data());
        if (!text) {
            buffer.setData(buffer.data().left(harmlessSize(buffer.data())));
        }
        buffer.open(QIODevice::ReadOnly);
    }
    // From Qt 6.8 these overloads are deprecated in favour of ones that Qt 5 and 6.4 do not have.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    const bool wellFormed = text ? document.setContent(QString::fromUtf8(text->constData(), harmlessSize(*text)),
                                                       errorMsg, errorLine, errorColumn)
                                 : document.setContent(&buffer, errorMsg, errorLine, errorColumn);
    QT_WARNING_POP
    // Qt 6 stops reading at an error; what follows must not be taken for a document by the next call.
    buffer.seek(buffer.size());
    return wellFormed;
}
