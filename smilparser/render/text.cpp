// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "writer.h"

#include <QtCore/QXmlStreamWriter>

#include <algorithm>

static bool isCharacter(char16_t unit)
{
    return (unit >= 0x20 && !QChar::isSurrogate(unit) && unit < 0xfffe) || unit == u'\t' || unit == u'\n'
        || unit == u'\r';
}

/** The text without what XML does not allow. Qt's writer would leave out all of a text with half a surrogate pair. */
static QString allowed(const QString &text)
{
    const auto isOrdinary = [](QChar c) { return c >= u' ' && c.unicode() < 0xd800; };
    if (std::all_of(text.begin(), text.end(), isOrdinary)) {
        return text;
    }
    QString result;
    result.reserve(text.size());
    for (auto at = text.begin(); at != text.end(); ++at) {
        if (isCharacter(at->unicode())) {
            result += *at;
        } else if (at->isHighSurrogate() && at + 1 != text.end() && at[1].isLowSurrogate()) {
            result += *at++;
            result += *at;
        }
    }
    return result;
}

namespace
{
class TextWriter final : public Writer
{
public:
    TextWriter(QByteArray &text, int indent)
        : writer(&text)
    {
        writer.setAutoFormatting(indent >= 0);
        writer.setAutoFormattingIndent(indent);
    }
    void begin(const QString &element) override { writer.writeStartElement(element); }
    void write(const QString &attribute, const QString &text) override
    {
        writer.writeAttribute(attribute, allowed(text));
    }
    void end() override { writer.writeEndElement(); }

private:
    QXmlStreamWriter writer;
};
}

QByteArray SmilParser::toXml(int indent) const
{
    QByteArray text;
    TextWriter out(text, indent);
    writeRecord(out, document);
    return indent < 0 ? text : text.trimmed() + '\n'; // Qt begins each line, the first one too, with its line end
}
