// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "reader.h"

#include "guard/guard.h"

#include <QtCore/QBuffer>
#include <QtXml/QDomDocument>

bool readXml(QBuffer &buffer, QDomDocument &document, QString *errorMsg, int *errorLine, int *errorColumn)
{
    // Closed, it has not been read yet.
    if (!buffer.isOpen()) {
        const QByteArray &bytes = buffer.data();
        const qint64 size = harmlessSize(bytes);
        if (size < bytes.size()) {
            buffer.setData(bytes.left(int(size)));
        }
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        buffer.open(QIODevice::ReadOnly); // Qt 6 would do so too, but warn about it.
#endif
    }
    // From Qt 6.8 this overload is deprecated in favour of one that Qt 5 and 6.4 do not have.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    const bool wellFormed = document.setContent(&buffer, errorMsg, errorLine, errorColumn);
    QT_WARNING_POP
    // Qt 6 stops reading at an error; what follows must not be taken for a document by the next call.
    buffer.seek(buffer.size());
    return wellFormed;
}
