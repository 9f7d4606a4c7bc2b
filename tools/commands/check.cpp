// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/bounds.h"
#include "base/escaping.h"
#include "check/crowding.h"
#include "check/elementtable.h"
#include "check/findings.h"
#include "commands/commands.h"
#include "input/content.h"

#include <QtCore/QIODevice>
#include <QtCore/QSet>

#include <map>

namespace
{
struct Region {
    QString id;
    int line;
    bool used; ///< or nothing more to be said of it
};
}

/** The measures that cannot be negative. */
static const QStringList sizes{QStringLiteral("dur"), QStringLiteral("width"), QStringLiteral("height")};

static bool isNode(const QString &name)
{
    return name == QLatin1String("par") || name == QLatin1String("seq");
}

/** Whether an element of that name may play such content; any may play what is not known to be something else. */
static bool mayPlay(const QString &element, SmilRef::Type content)
{
    // The container of a film may also have nothing but sound.
    return content == SmilRef::Ref || element == QLatin1String("ref") || element == elementName(content)
        || (content == SmilRef::Video && element == QLatin1String("audio"));
}

namespace
{
/** Walks the message's own DOM, which has the lines and what the model leaves out. */
class Checker
{
public:
    Checker(Message &from, bool withoutOptions)
        : message(from)
        , plain(withoutOptions)
    {
    }

    Findings findings()
    {
        const QDomElement smil = message.dom.documentElement();
        walk(smil, QStringLiteral("smil"));
        checkLayout(smil, message.document.header.layout);
        checkRegions();
        checkParts(smil.lineNumber());
        const SmilNode &root = message.document.body.root;
        if (root.children.isEmpty() && root.refs.isEmpty()) {
            add(Finding::EmptyTimeline, smil.firstChildElement(QStringLiteral("body")),
                QStringLiteral("nothing plays"));
        }
        findCrowding(smil, message.document.header.layout, found); // changes the tree
        return found;
    }

private:
    void add(Finding finding, const QDomElement &element, const QString &subject, const QString &detail = QString())
    {
        found.add(finding, element.lineNumber(), subject, detail);
    }

    void walk(const QDomElement &element, const QString &name)
    {
        const Element &known = elementNamed(name);
        walkAttributes(element, name, known.attributes);
        if (known.attributes.contains(QStringLiteral("src"))) {
            checkMedia(element, name);
        }
        if (name == QLatin1String("region")) {
            regions.append({element.attribute(QStringLiteral("id")), element.lineNumber(), false});
        }
        QStringList seen;
        bool mediaSeen = false;
        bool outOfOrder = false;
        // The library knows the names of the timeline in any letter case.
        const bool anyCase = known.all.contains(QStringLiteral("par"));
        for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            const QString childName = anyCase ? child.tagName().toLower() : child.tagName();
            const bool isFirst = known.first.contains(childName);
            const bool again = isFirst && seen.contains(childName);
            if (again || !(isFirst || known.all.contains(childName))) {
                add(Finding::LostElement, child,
                    QStringLiteral("lost when written back: %1 in %2")
                        .arg(again ? QLatin1String("another ") + printable(child.tagName().left(bounds::quotation))
                                   : printable(child.tagName().left(bounds::quotation)),
                             name));
                continue;
            }
            if (isFirst) {
                seen += childName;
            }
            if (isNode(name) && isNode(childName)) {
                add(Finding::NestedTimeline, child, QStringLiteral("nested: %1 in %2").arg(childName, name));
            }
            if (name == QLatin1String("body") && !isNode(childName)) {
                add(Finding::LostInBody, child, QStringLiteral("lost when written back: media directly in body"),
                    excerpt(child.attribute(QStringLiteral("src"))));
            } else if (anyCase) {
                outOfOrder = outOfOrder || (mediaSeen && isNode(childName));
                mediaSeen = mediaSeen || !isNode(childName);
            }
            walk(child, childName);
        }
        if (outOfOrder) {
            add(Finding::ChangedOrder, element,
                QStringLiteral("written back in another order: media before nested elements in %1").arg(name));
        }
    }

    void walkAttributes(const QDomElement &element, const QString &name, const QStringList &known)
    {
        const QDomNamedNodeMap attributes = element.attributes();
        QStringList names;
        for (int i = 0; i < attributes.count(); ++i) {
            names.append(attributes.item(i).nodeName());
        }
        names.sort(); // a DOM keeps them in an order that differs from run to run
        for (const QString &attribute : std::as_const(names)) {
            const QString value = element.attribute(attribute);
            if (known.contains(attribute)) {
                checkMeasure(element, name, attribute, value);
            } else {
                add(Finding::LostAttribute, element,
                    QStringLiteral("lost when written back: %1 of %2")
                        .arg(printable(attribute.left(bounds::quotation)), name));
            }
        }
    }

    void checkMeasure(const QDomElement &element, const QString &name, const QString &attribute, const QString &value)
    {
        if (!isMeasure(attribute)) {
            return;
        }
        const SmilUnit measure(value);
        const bool clock = attribute == QLatin1String("dur") && SmilUnit().convertClock(value);
        const QString what = QStringLiteral("%1 of %2").arg(attribute, name);
        if (clock && measure.unit != SmilUnit::Sec) {
            if (plain) {
                add(Finding::ClockDuration, element,
                    (measure.valid ? QStringLiteral("pixels without ClockDurations: ")
                                   : QStringLiteral("not understood without ClockDurations: "))
                        + what,
                    excerpt(value));
            }
        } else if (!measure.valid) {
            add(Finding::UnreadMeasure, element, QStringLiteral("not understood: ") + what, excerpt(value));
        } else if ((measure.unit == SmilUnit::Sec) != (attribute == QLatin1String("dur"))) {
            add(Finding::WrongMeasure, element,
                (measure.unit == SmilUnit::Sec ? QStringLiteral("a duration, not a length: ")
                                               : QStringLiteral("a length, not a duration: "))
                    + what,
                excerpt(value));
        } else if (measure.value < 0 && sizes.contains(attribute)) {
            add(Finding::WrongMeasure, element, QStringLiteral("negative: ") + what, excerpt(value));
        }
        if (name == QLatin1String("body") && (clock || measure.valid)) {
            add(Finding::LostInBody, element, QStringLiteral("lost when written back: ") + what, excerpt(value));
        }
    }

    void checkMedia(const QDomElement &element, const QString &name)
    {
        const QString src = element.attribute(QStringLiteral("src"));
        if (src.isEmpty()) {
            add(Finding::MissingSrc, element, QStringLiteral("no src: %1").arg(name));
        } else if (message.parts.areKnown()) {
            checkPart(element, name, src);
        }
        const QString region = element.attribute(QStringLiteral("region"));
        if (!region.isEmpty()) {
            references.append({region, element.lineNumber(), false});
        }
    }

    void checkLayout(const QDomElement &smil, const SmilLayout &layout)
    {
        const QDomElement element =
            smil.firstChildElement(QStringLiteral("head")).firstChildElement(QStringLiteral("layout"));
        const bool top = layout.topLayoutWidth.valid || layout.topLayoutHeight.valid;
        if (top) {
            add(Finding::MovedTopSize, element.firstChildElement(QStringLiteral("topLayout")),
                QStringLiteral("written back as the root-layout's size: topLayout"));
        }
        const bool width = layout.rootLayoutWidth.valid && !layout.topLayoutWidth.valid;
        const bool height = layout.rootLayoutHeight.valid && !layout.topLayoutHeight.valid;
        if (plain && (width || height)) {
            const QString what = !top ? QStringLiteral("size")
                : width               ? QStringLiteral("width")
                                      : QStringLiteral("height");
            add(Finding::LostRootSize, element.firstChildElement(QStringLiteral("root-layout")),
                QStringLiteral("lost when written back without KeepRootSize: %1 of root-layout").arg(what));
        }
    }

    void checkRegions()
    {
        std::map<QString, Region *> byId; // in order: strangers can make hashes collide
        for (Region &region : regions) {
            region.used = region.id.isEmpty() || !byId.try_emplace(region.id, &region).second;
            if (region.id.isEmpty()) {
                found.add(Finding::MissingId, region.line, QStringLiteral("region without id"));
            } else if (region.used) {
                found.add(Finding::DuplicateRegion, region.line,
                          QStringLiteral("more than one region: %1").arg(excerpt(region.id)));
            }
        }
        for (const Region &reference : std::as_const(references)) {
            const auto region = byId.find(reference.id);
            if (region == byId.end()) {
                found.add(Finding::UnknownRegion, reference.line,
                          QStringLiteral("no such region: %1").arg(excerpt(reference.id)));
            } else {
                region->second->used = true;
            }
        }
        // Phones write both, whether they use them or not.
        const QStringList written{QStringLiteral("Image"), QStringLiteral("Text")};
        for (const Region &region : std::as_const(regions)) {
            if (!region.used && !written.contains(region.id)) {
                found.add(Finding::UnusedRegion, region.line,
                          QStringLiteral("nothing plays in region: %1").arg(excerpt(region.id)));
            }
        }
    }

    void checkPart(const QDomElement &element, const QString &name, const QString &src)
    {
        const int part = message.parts.find(src);
        if (part < 0) {
            add(Finding::MissingPart, element, QStringLiteral("no such part: src of %1").arg(name), excerpt(src));
            return;
        }
        usedParts.insert(part);
        const MessageParts::Part &read = message.parts.read(part);
        if (!mayPlay(name, kindOfType(read.type))) {
            add(Finding::WrongKind, element, QStringLiteral("the part of %1 is %2:").arg(name, read.type),
                excerpt(src));
        }
    }

    void checkParts(int line)
    {
        for (int i = 0; i < message.parts.size(); ++i) {
            if (!usedParts.contains(i) && !message.parts.headers().at(i).isSmil()) {
                found.add(Finding::UnusedPart, line, QStringLiteral("nothing refers to the part"),
                          excerpt(message.parts.at(i).name));
            }
        }
    }

    Message &message;
    const bool plain; ///< whether it matters what is read without options
    QSet<int> usedParts;
    Findings found;
    QList<Region> regions;
    QList<Region> references;
};
}

bool check(Message &message, bool plain, const QStringList &ignored, QIODevice &out)
{
    const QStringList lines = Checker(message, plain).findings().lines(message.file, ignored);
    for (const QString &line : lines) {
        out.write(line.toUtf8() + '\n');
    }
    return !lines.isEmpty();
}

static Result run(const QString &file, const Arguments &arguments, QIODevice &out)
{
    return withMessage(file, arguments, [&](Message &message) {
        return Result{!check(message, false, arguments.ignored, out), {}};
    });
}

const Command checkCommand = {"check",
                              "FILE...",
                              "parts ignore",
                              "Tells what is odd in each message, or lost on writing.",
                              "smiltool check --ignore lost message.smil",
                              run};
