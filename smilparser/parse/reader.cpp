// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "reader.h"

#include <QtCore/QBuffer>
#include <QtXml/QDomDocument>

bool readXml(QBuffer &buffer, QDomDocument &document, QString *errorMsg, int *errorLine, int *errorColumn)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // Qt 6 opens a closed device too, but warns about it.
    if (!buffer.isOpen()) {
        buffer.open(QIODevice::ReadOnly);
    }
#endif
    // From Qt 6.8 this overload is deprecated in favour of one that Qt 5 and 6.4 do not have.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    const bool wellFormed = document.setContent(&buffer, errorMsg, errorLine, errorColumn);
    QT_WARNING_POP
    // Qt 6 stops reading at an error; what follows must not be taken for a document by the next call.
    buffer.seek(buffer.size());
    return wellFormed;
}
