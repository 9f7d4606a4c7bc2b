// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/bounds.h"
#include "base/escaping.h"
#include "check/elementtable.h"
#include "check/findings.h"

static QString nameOf(const QString &name)
{
    return printable(name.left(bounds::quotation));
}

/** Whether the attribute is a duration or a length that the library understands. */
static bool isRead(const QDomElement &element, const char *attribute)
{
    const QString value = element.attribute(QLatin1String(attribute));
    return SmilUnit(value).valid || SmilUnit().convertClock(value);
}

static void findInAttributes(const QDomElement &element, const QString &name, Findings &found)
{
    const QDomNamedNodeMap attributes = element.attributes();
    QStringList names;
    for (int i = 0; i < attributes.count(); ++i) {
        names.append(attributes.item(i).nodeName());
    }
    names.sort(); // a DOM keeps them in an order that differs from run to run
    for (const QString &attribute : std::as_const(names)) {
        if (!elementNamed(name).attributes.contains(attribute)) {
            found.add("lost-attribute", element.lineNumber(),
                      QStringLiteral("lost when written back: %1 of %2").arg(nameOf(attribute), name));
        }
    }
    if (name == QLatin1String("body") && isRead(element, "dur")) {
        found.add("lost-in-body", element.lineNumber(), QStringLiteral("lost when written back: dur of body"),
                  excerpt(element.attribute(QStringLiteral("dur"))));
    }
    if (name == QLatin1String("topLayout") && (isRead(element, "width") || isRead(element, "height"))) {
        found.add("moved-top-size", element.lineNumber(),
                  QStringLiteral("written back as the root-layout's size: topLayout"));
    }
}

static void walk(const QDomElement &element, const QString &name, Findings &found)
{
    findInAttributes(element, name, found);
    bool mediaSeen = false;
    bool outOfOrder = false;
    const QList<Child> children = childrenOf(element, name);
    for (const Child &child : children) {
        const int line = child.element.lineNumber();
        if (child.isLost) {
            const QString again =
                elementNamed(name).first.contains(child.name) ? QStringLiteral("another ") : QString();
            found.add(
                "lost-element", line,
                QStringLiteral("lost when written back: %1%2 in %3").arg(again, nameOf(child.element.tagName()), name));
            continue;
        }
        if (name == QLatin1String("body") && isMedium(child.name)) {
            found.add("lost-in-body", line, QStringLiteral("lost when written back: media directly in body"),
                      excerpt(child.element.attribute(QStringLiteral("src"))));
        } else {
            outOfOrder = outOfOrder || (mediaSeen && isNode(child.name));
            mediaSeen = mediaSeen || isMedium(child.name);
        }
        walk(child.element, child.name, found);
    }
    if (outOfOrder) {
        found.add("changed-order", element.lineNumber(),
                  QStringLiteral("written back in another order: media before nested elements in %1").arg(name));
    }
}

void findLosses(const QDomElement &smil, Findings &found)
{
    walk(smil, QStringLiteral("smil"), found);
}
