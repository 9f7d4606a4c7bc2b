// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_SUPPORT_H
#define SMILPARSER_SUPPORT_H

#include <smilparser/smilparser.h>

#include <QtTest/QtTest>

#include <utility>

/** The host's flag, which the library leaves undefined. */
class Q_DECL_EXPORT MMSLogger
{
public:
    static bool qdebugEnabled;
};

/** Takes everything off Qt's message channel while it lives, one at a time. */
class Messages
{
public:
    /** Switches the library's debug lines on, and off again as soon as @p lines of them came. */
    explicit Messages(int lines = 99)
    {
        taken.clear();
        left = lines;
        MMSLogger::qdebugEnabled = lines > 0;
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            taken += QLatin1Char("DWCFI"[type]) + text + QLatin1Char('|');
            MMSLogger::qdebugEnabled = (type == QtDebugMsg ? --left : left) > 0;
        });
    }
    ~Messages()
    {
        qInstallMessageHandler(nullptr);
        MMSLogger::qdebugEnabled = false;
    }

    /** What came since the last call: the letter of its type, the text and a bar each. */
    QString take() { return std::exchange(taken, QString()); }

private:
    Q_DISABLE_COPY(Messages)
    static inline QString taken;
    static inline int left = 0;
};

/** Adds a row for each line of the file cases/@p name: name and texts, divided by " | ". "~" is null, "\n" an end. */
inline void addCases(const char *name)
{
    QFile file(QFINDTESTDATA("cases/") + QLatin1String(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QSet<QByteArray> names;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed().replace("\\n", "\n");
        QStringList texts = QString::fromUtf8(line).split(QStringLiteral(" | "));
        const QByteArray rowName = texts.takeFirst().toUtf8();
        QVERIFY2(!texts.isEmpty() && !names.contains(rowName),
                 "a line without a case, or a second case of its name: " + line);
        names.insert(rowName);
        QTestData &row = QTest::newRow(rowName.constData());
        for (const QString &text : std::as_const(texts)) {
            row << (text == QStringLiteral("~") ? QString() : text);
        }
    }
}

/** The node's text, with sorted attributes and nothing between elements; "<#text/>" for a text and so on. */
inline QString canonical(const QDomNode &node)
{
    QStringList attributes;
    for (int i = 0; i < node.attributes().count(); ++i) {
        const QDomNode attribute = node.attributes().item(i);
        attributes << QStringLiteral(" %1='%2'").arg(attribute.nodeName(), attribute.nodeValue());
    }
    attributes.sort();
    QString inside;
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        inside += canonical(child);
    }
    if (node.isNull() || node.isDocument()) {
        return inside;
    }
    const QString start = QLatin1Char('<') + node.nodeName() + attributes.join(QString());
    return inside.isEmpty() ? start + QStringLiteral("/>")
                            : QStringLiteral("%1>%2</%3>").arg(start, inside, node.nodeName());
}

/** A model as a line of text: quoted texts, bare measures, and "-" for null and for the measure that says nothing. */
class Outline
{
public:
    /** Header, root node, spares; without the parts that say nothing. */
    static QString of(const SmilDocument &m)
    {
        QString all = of(m.header) + QStringLiteral(" / ") + of(m.body.root) + QStringLiteral(" / ")
            + of(m.header.spare, m.body.spare1, m.body.spare2, m.body.spare3, m.body.spare4);
        for (const char *nothing : {" {}", " []", " (- - - -)", " / - - - - -"}) {
            all.remove(QLatin1String(nothing));
        }
        return all;
    }

private:
    static QString of(const QString &t) { return t.isNull() ? QStringLiteral("-") : QStringLiteral("'%1'").arg(t); }
    static QString of(const SmilUnit &u)
    {
        const bool reset = u.unit == SmilUnit::NoUnit && u.value == 0.0;
        return u.valid ? u.toString() : reset ? QStringLiteral("-") : QStringLiteral("not reset");
    }
    template<typename... Fields>
    static QString of(const Fields &...fields)
    {
        return QStringList{of(fields)...}.join(QLatin1Char(' '));
    }
    template<typename Record>
    static QString of(const QList<Record> &list)
    {
        QStringList all;
        for (const Record &record : list) {
            all << of(record);
        }
        return all.join(QStringLiteral(", "));
    }
    static QString of(const SmilRef &r) { return QString::number(r.type) + QLatin1Char(' ') + of(r.src, r.region); }
    static QString of(const SmilMeta &m) { return of(m.id, m.name, m.content); }
    static QString of(const SmilRegion &r)
    {
        return of(r.id, r.width, r.height, r.left, r.right, r.top, r.bottom, r.fit);
    }
    static QString of(const SmilNode &n) // kind, duration, {media}, [children]
    {
        return (n.type == SmilNode::Seq ? QStringLiteral("seq ") : QStringLiteral("par ")) + of(n.dur)
            + QStringLiteral(" {%1} [%2]").arg(of(n.refs), of(n.children));
    }
    static QString of(const SmilHeader &h) // id, class, title, {metas}, (root and top sizes), [regions]
    {
        const SmilLayout &l = h.layout;
        const QString sizes = of(l.rootLayoutWidth, l.rootLayoutHeight, l.topLayoutWidth, l.topLayoutHeight);
        return of(h.id, h.className, h.title)
            + QStringLiteral(" {%1} (%2) [%3]").arg(of(h.metas), sizes, of(l.regions));
    }
};

/** All that a host is told of the input, and the model. */
inline QString toldByLibrary(const QByteArray &input)
{
    Messages messages(0);
    SmilParser parser(input);
    const QString model = Outline::of(parser.parse());
    parser.getContent();
    return messages.take() + model;
}

/** The same, from the XML reader without the library before it. */
inline QString toldByReaderAlone(QByteArray input)
{
    Messages messages(0);
    QBuffer buffer(&input);
    buffer.open(QIODevice::ReadOnly);
    QDomDocument dom;
    QString error;
    int line = 0;
    int column = 0;
    SmilParser parser((SmilDocument()));
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // from Qt 6.8, in favour of one that Qt 5 and 6.4 do not have
        const bool wellFormed = dom.setContent(&buffer, &error, &line, &column);
    QT_WARNING_POP
    if (!wellFormed) {
        qWarning("Fail to parse SMIL document: '%s' at (%d,%d)!", qPrintable(error), line, column);
    } else if (QDomElement smil = dom.firstChildElement(QStringLiteral("smil")); smil.isNull()) {
        qWarning("Fail to find SMIL document!");
    } else {
        parser.parseSmilDocument(smil);
    }
    const QString told = messages.take();
    return told + Outline::of(parser.parse()); // finds no input, so that the model stays
}

/** Each code unit of @p text in @p width bytes, after a byte order mark when it is @p marked. */
inline QByteArray wide(const QString &text, int width, bool bigEndian, bool marked)
{
    const QString units = (marked ? QString(QChar(QChar::ByteOrderMark)) : QString()) + text;
    QByteArray bytes(int(units.size()) * width, '\0');
    for (int i = 0; i < int(units.size()); ++i) {
        const ushort unit = units.at(i).unicode();
        bytes[i * width + (bigEndian ? width - 1 : 0)] = char(unit & 0xff);
        bytes[i * width + (bigEndian ? width - 2 : 1)] = char(unit >> 8);
    }
    return bytes;
}

#endif
