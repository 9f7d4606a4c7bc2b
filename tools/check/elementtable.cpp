// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "check/elementtable.h"

#include <algorithm>
#include <iterator>

static QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

const Element &elementNamed(const QString &name)
{
    static const QStringList timeline = words("par seq text img audio video ref");
    static const Element table[] = {
        {words("smil"), {}, words("head body"), {}},
        {words("head"), words("id title class"), words("layout"), words("meta")},
        {words("meta"), words("id name content"), {}, {}},
        {words("layout"), {}, words("root-layout topLayout"), words("region")},
        {words("root-layout topLayout"), words("width height"), {}, {}},
        {words("region"), words("id width height top bottom left right fit"), {}, {}},
        {words("body par seq"), words("dur"), {}, timeline},
        {words("text img audio video ref"), words("src region"), {}, {}},
    };
    static const Element unknown;
    const auto found = std::find_if(std::begin(table), std::end(table),
                                    [&name](const Element &element) { return element.names.contains(name); });
    return found == std::end(table) ? unknown : *found;
}

QList<Child> childrenOf(const QDomElement &element, const QString &name)
{
    const Element &known = elementNamed(name);
    const bool anyCase = known.all.contains(QStringLiteral("par"));
    QList<Child> children;
    QStringList seen;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString childName = anyCase ? child.tagName().toLower() : child.tagName();
        const bool isFirst = known.first.contains(childName) && !seen.contains(childName);
        seen += isFirst ? QStringList(childName) : QStringList();
        children.append({child, childName, !isFirst && !known.all.contains(childName)});
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
