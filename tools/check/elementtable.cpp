// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "check/elementtable.h"

#include <QtCore/QMap>

static QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

static const char timeline[] = "par seq text img audio video ref";

static const struct {
    const char *elements;
    const char *attributes;
    const char *first;
    const char *all;
} table[] = {
    {"smil", "", "head body", ""},
    {"head", "id title class", "layout", "meta"},
    {"meta", "id name content", "", ""},
    {"layout", "", "root-layout topLayout", "region"},
    {"root-layout topLayout", "width height", "", ""},
    {"region", "id width height top bottom left right fit", "", ""},
    {"body par seq", "dur", "", timeline},
    {"text img audio video ref", "src region", "", ""},
};

static QMap<QString, Element> byName()
{
    QMap<QString, Element> result;
    for (const auto &row : table) {
        const QStringList names = words(row.elements);
        for (const QString &name : names) {
            result.insert(name, {words(row.attributes), words(row.first), words(row.all)});
        }
    }
    return result;
}

const Element &elementNamed(const QString &name)
{
    static const QMap<QString, Element> known = byName();
    static const Element unknown;
    const auto found = known.constFind(name);
    return found == known.constEnd() ? unknown : *found;
}

QList<Child> childrenOf(const QDomElement &element, const QString &name)
{
    const Element &known = elementNamed(name);
    const bool anyCase = known.all.contains(QStringLiteral("par"));
    QList<Child> children;
    QStringList seen;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString childName = anyCase ? child.tagName().toLower() : child.tagName();
        const bool isAgain = seen.contains(childName);
        const bool isFirst = !isAgain && known.first.contains(childName);
        seen += isFirst ? QStringList(childName) : QStringList();
        children.append({child, childName, isAgain, !isFirst && !known.all.contains(childName)});
    }
    return children;
}

bool isNode(const QString &name)
{
    return name == QLatin1String("par") || name == QLatin1String("seq");
}

bool isMedium(const QString &name)
{
    return elementNamed(name).attributes.contains(QStringLiteral("src"));
}
