// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "check/elementtable.h"
#include "check/findings.h"
#include "input/content.h"

#include <set>

namespace
{
/** What is collected on the way through the tree. */
struct Walk {
    Message &message;
    Findings &found;
    std::map<QString, int> regions; // the line of each; in order: strangers can make hashes collide
    std::vector<std::pair<QString, int>> references; // to regions, with the lines
    std::set<int> parts; // that are referred to
};
}

/** Whether an element of that name may play such content; any may play what is not known to be something else. */
static bool mayPlay(const QString &element, SmilRef::Type content)
{
    // The container of a film may also have nothing but sound.
    return content == SmilRef::Ref || element == QLatin1String("ref") || element == elementName(content)
        || (content == SmilRef::Video && element == QLatin1String("audio"));
}

/** What is wrong with the measure, to be written before its name, or nothing. */
static QString problemOf(const QString &attribute, const QString &value)
{
    static const QStringList notNegative = QStringLiteral("dur width height").split(QLatin1Char(' '));
    const SmilUnit measure(value);
    const bool isTime = attribute == QLatin1String("dur");
    if (isTime && SmilUnit().convertClock(value)) {
        return QString();
    }
    if (!measure.valid) {
        return QStringLiteral("not understood: ");
    }
    if ((measure.unit == SmilUnit::Sec) != isTime) {
        return isTime ? QStringLiteral("a length, not a duration: ") : QStringLiteral("a duration, not a length: ");
    }
    return measure.value < 0 && notNegative.contains(attribute) ? QStringLiteral("negative: ") : QString();
}

static void checkMeasures(const QDomElement &element, const QString &name, Findings &found)
{
    static const QStringList measures =
        QStringLiteral("top bottom left right width height dur").split(QLatin1Char(' '));
    for (const QString &attribute : elementNamed(name).attributes) {
        const QString value = element.attribute(attribute);
        const bool isMeasure = element.hasAttribute(attribute) && measures.contains(attribute);
        const QString problem = isMeasure ? problemOf(attribute, value) : QString();
        if (!problem.isEmpty()) {
            found.add(SmilUnit(value).valid ? "wrong-measure" : "unread-measure", element.lineNumber(),
                      QStringLiteral("%1%2 of %3").arg(problem, attribute, name), excerpt(value));
        }
    }
}

static void checkMedium(const QDomElement &element, const QString &name, Walk &walk)
{
    const QString src = element.attribute(QStringLiteral("src"));
    const int line = element.lineNumber();
    const QString region = element.attribute(QStringLiteral("region"));
    if (!region.isEmpty()) {
        walk.references.emplace_back(region, line);
    }
    MessageParts &parts = walk.message.parts;
    const int part = parts.find(src);
    if (src.isEmpty()) {
        walk.found.add("missing-src", line, QStringLiteral("no src: %1").arg(name));
    } else if (part >= 0) {
        walk.parts.insert(part);
        SmilPart content;
        content.type = parts.read(part).type;
        if (!mayPlay(name, content.kind())) {
            walk.found.add("wrong-kind", line, QStringLiteral("the part of %1 is %2:").arg(name, content.type),
                           excerpt(src));
        }
    } else if (parts.areKnown()) {
        walk.found.add("missing-part", line, QStringLiteral("no such part: src of %1").arg(name), excerpt(src));
    }
}

static void checkRegion(const QDomElement &element, Walk &walk)
{
    const QString id = element.attribute(QStringLiteral("id"));
    if (id.isEmpty()) {
        walk.found.add("missing-id", element.lineNumber(), QStringLiteral("region without id"));
    } else if (!walk.regions.try_emplace(id, element.lineNumber()).second) {
        walk.found.add("duplicate-region", element.lineNumber(),
                       QStringLiteral("more than one region: %1").arg(excerpt(id)));
    }
}

static void visit(const QDomElement &element, const QString &name, Walk &walk)
{
    checkMeasures(element, name, walk.found);
    if (isMedium(name)) {
        checkMedium(element, name, walk);
    } else if (name == QLatin1String("region")) {
        checkRegion(element, walk);
    }
    const QList<Child> children = childrenOf(element, name);
    for (const Child &child : children) {
        if (isNode(name) && isNode(child.name)) {
            walk.found.add("nested-timeline", child.element.lineNumber(),
                           QStringLiteral("nested: %1 in %2").arg(child.name, name));
        }
        if (!child.isLost) {
            visit(child.element, child.name, walk);
        }
    }
}

static void checkReferences(Walk &walk)
{
    std::set<QString> used{QStringLiteral("Image"), QStringLiteral("Text")}; // phones write both, used or not
    for (const auto &[region, line] : walk.references) {
        used.insert(region);
        if (walk.regions.count(region) == 0) {
            walk.found.add("unknown-region", line, QStringLiteral("no such region: %1").arg(excerpt(region)));
        }
    }
    for (const auto &[region, line] : walk.regions) {
        if (used.count(region) == 0) {
            walk.found.add("unused-region", line, QStringLiteral("nothing plays in region: %1").arg(excerpt(region)));
        }
    }
}

/** Whether no src can mean the part, as others have all its names. */
static bool isHidden(int part, const MessageParts &parts)
{
    const SmilPart &headers = parts.headers().at(part);
    std::set<int> meant;
    for (const QString &name : {headers.contentId, headers.location, headers.name}) {
        meant.insert(parts.find(name));
    }
    meant.erase(-1);
    return !meant.empty() && meant.count(part) == 0;
}

void findFaults(const QDomElement &smil, Message &message, Findings &found)
{
    Walk walk{message, found, {}, {}, {}};
    visit(smil, QStringLiteral("smil"), walk);
    checkReferences(walk);
    const MessageParts &parts = message.parts;
    if (message.smil.isEmpty() && message.problem.isNone()) {
        found.add("no-smil", 0, QStringLiteral("has no SMIL part"));
    }
    for (int i = 0; i < parts.size(); ++i) {
        const QString name = excerpt(parts.at(i).name);
        if (isHidden(i, parts)) {
            found.add("duplicate-part", smil.lineNumber(), QStringLiteral("another part has the name"), name);
        } else if (walk.parts.count(i) == 0 && !smil.isNull() && !parts.headers().at(i).isSmil()) {
            found.add("unused-part", smil.lineNumber(), QStringLiteral("nothing refers to the part"), name);
        }
    }
}
