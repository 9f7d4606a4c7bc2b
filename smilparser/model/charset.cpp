// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "charset.h"

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QtCore/QStringDecoder>
#else
#include <QtCore/QTextCodec>
#endif

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
QString decodeText(const QByteArray &charset, const QByteArray &bytes, Malformed malformed)
{
    const bool stop = malformed == Malformed::Stop;
    QStringDecoder decoder(charset.constData(), stop ? QStringDecoder::Flag::Default : QStringDecoder::Flag::Stateless);
    if (!decoder.isValid()) {
        return QString();
    }
    QString text = decoder(bytes);
    if (stop && decoder.hasError()) {
        // Bytes that are not of the encoding are an error to the XML reader of Qt 6, and so is a text that ends there.
        text.truncate(text.indexOf(QChar::ReplacementCharacter) + 1);
    }
    return text;
}
#else
QString decodeText(const QByteArray &charset, const QByteArray &bytes, Malformed malformed)
{
    const QTextCodec *const codec = QTextCodec::codecForName(charset);
    if (!codec) {
        return QString();
    }
    return malformed == Malformed::Stop ? QTextDecoder(codec).toUnicode(bytes.constData(), bytes.size())
                                        : codec->toUnicode(bytes);
}
#endif

void replaceUnpairedSurrogates(QString &text)
{
    QChar *const begin = text.data();
    QChar *const end = begin + text.size();
    for (QChar *at = begin; at != end; ++at) {
        if (at->isHighSurrogate() && at[1].isLowSurrogate()) {
            ++at; // at the end of the text, what follows is its final U+0000
        } else if (at->isSurrogate()) {
            *at = QChar::ReplacementCharacter;
        }
    }
}
