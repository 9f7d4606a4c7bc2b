// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "text.h"
#include "vocabulary.h"

#include <QtCore/QHash>
#include <QtCore/QIODevice>
#include <QtCore/QSet>

#include <algorithm>

namespace
{
/** What one line says, of all places where it is so. */
struct Finding {
    QString name;
    int line;
    QString subject;
    QStringList details; ///< the first few different ones
    int count;
};

struct Region {
    QString id;
    int line;
    bool used;
};
}

static const QString unreadMeasure = QStringLiteral("unread-measure");
static const QString wrongMeasure = QStringLiteral("wrong-measure");
static const QString clockDuration = QStringLiteral("clock-duration");
static const QString lostRootSize = QStringLiteral("lost-root-size");
static const QString movedTopSize = QStringLiteral("moved-top-size");
static const QString lostInBody = QStringLiteral("lost-in-body");
static const QString lostElement = QStringLiteral("lost-element");
static const QString lostAttribute = QStringLiteral("lost-attribute");
static const QString changedOrder = QStringLiteral("changed-order");
static const QString unknownRegion = QStringLiteral("unknown-region");
static const QString unusedRegion = QStringLiteral("unused-region");
static const QString duplicateRegion = QStringLiteral("duplicate-region");
static const QString missingId = QStringLiteral("missing-id");
static const QString missingSrc = QStringLiteral("missing-src");
static const QString emptyTimeline = QStringLiteral("empty-timeline");
static const QString missingPart = QStringLiteral("missing-part");
static const QString unusedPart = QStringLiteral("unused-part");
static const QString wrongKind = QStringLiteral("wrong-kind");

/** What matters only to who writes the message back. */
static const QString lost = QStringLiteral("lost");
static const QStringList lostFindings{lostRootSize, movedTopSize, lostInBody, lostElement, lostAttribute, changedOrder};

QStringList findingNames()
{
    return QStringList{unreadMeasure,   wrongMeasure, clockDuration, unknownRegion, unusedRegion,
                       duplicateRegion, missingId,    missingSrc,    emptyTimeline, missingPart,
                       unusedPart,      wrongKind,    lost}
    + lostFindings;
}

/** The text in quotation marks, and not much of it. */
static QString shown(const QString &text)
{
    return quoted(shortened(text, 40));
}

/** The measures that cannot be negative. */
static const QStringList sizes{QStringLiteral("dur"), QStringLiteral("width"), QStringLiteral("height")};

static bool isNode(const QString &name)
{
    return name == QLatin1String("par") || name == QLatin1String("seq");
}

/** Whether media of this name cannot be what the part holds. Sound may come in a container that is also a film's. */
static bool isWrong(const QString &name, Parts::Kind kind)
{
    const auto isFor = [&name](const char *media) {
        return QLatin1String("ref") == name || QLatin1String(media) == name;
    };
    switch (kind) {
    case Parts::Picture:
    case Parts::OtherPicture:
        return !isFor("img");
    case Parts::Text:
    case Parts::Xml:
        return !isFor("text");
    case Parts::Audio:
        return !isFor("audio");
    case Parts::Video:
        return !isFor("video") && !isFor("audio");
    default:
        return false;
    }
}

namespace
{
/** Walks the message's own DOM, which has the lines and what the model leaves out. */
class Checker
{
public:
    explicit Checker(Message &from)
        : message(from)
    {
    }

    QList<Finding> findings()
    {
        const QDomElement smil = message.dom.documentElement();
        walk(smil, QStringLiteral("smil"));
        checkLayout(smil, message.document.header.layout);
        checkRegions();
        checkParts(smil.lineNumber());
        const SmilNode &root = message.document.body.root;
        if (root.children.isEmpty() && root.refs.isEmpty()) {
            add(emptyTimeline, smil.firstChildElement(QStringLiteral("body")), QStringLiteral("nothing plays"));
        }
        std::stable_sort(found.begin(), found.end(),
                         [](const Finding &a, const Finding &b) { return a.line < b.line; });
        return found;
    }

private:
    void add(const QString &name, int line, const QString &subject, const QString &detail = QString())
    {
        Finding &finding = found[index(name, line, subject)];
        ++finding.count;
        if (!detail.isEmpty() && finding.details.size() < 4 && !finding.details.contains(detail)) {
            finding.details.append(detail);
        }
    }

    void add(const QString &name, const QDomElement &element, const QString &subject, const QString &detail = QString())
    {
        add(name, element.lineNumber(), subject, detail);
    }

    /** Where the finding is, which is new the first time. */
    int index(const QString &name, int line, const QString &subject)
    {
        const QString key = name + QLatin1Char(' ') + subject;
        if (!indexes.contains(key)) {
            indexes.insert(key, int(found.size()));
            found.append({name, line, subject, {}, 0});
        }
        return indexes.value(key);
    }

    void walk(const QDomElement &element, const QString &name)
    {
        const Vocabulary &known = vocabularyOf(name);
        walkAttributes(element, name, known.attributes);
        if (known.attributes.contains(QStringLiteral("src"))) {
            checkMedia(element, name);
        }
        if (name == QLatin1String("region")) {
            regions.append({element.attribute(QStringLiteral("id")), element.lineNumber(), false});
        }
        QSet<QString> seen;
        bool mediaSeen = false;
        bool outOfOrder = false;
        // The library knows the names of the timeline in any letter case.
        const bool anyCase = known.all.contains(QStringLiteral("par"));
        for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            const QString childName = anyCase ? child.tagName().toLower() : child.tagName();
            const bool again = known.first.contains(childName) && seen.contains(childName);
            if (again || !(known.first.contains(childName) || known.all.contains(childName))) {
                add(lostElement, child,
                    QStringLiteral("lost when written back: %1 in %2")
                        .arg(again ? QLatin1String("another ") + printable(child.tagName().left(40))
                                   : printable(child.tagName().left(40)),
                             name));
                continue;
            }
            seen.insert(childName);
            if (name == QLatin1String("body") && !isNode(childName)) {
                add(lostInBody, child, QStringLiteral("lost when written back: media directly in body"),
                    shown(child.attribute(QStringLiteral("src"))));
            } else if (anyCase) {
                outOfOrder = outOfOrder || (mediaSeen && isNode(childName));
                mediaSeen = mediaSeen || !isNode(childName);
            }
            walk(child, childName);
        }
        if (outOfOrder) {
            add(changedOrder, element,
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
                add(lostAttribute, element,
                    QStringLiteral("lost when written back: %1 of %2").arg(printable(attribute.left(40)), name));
            }
        }
    }

    void checkMeasure(const QDomElement &element, const QString &name, const QString &attribute, const QString &value)
    {
        if (!isMeasure(attribute)) {
            return;
        }
        const SmilUnit plain(value);
        const bool clock = attribute == QLatin1String("dur") && SmilUnit().convertClock(value);
        const QString what = QStringLiteral("%1 of %2").arg(attribute, name);
        if (clock && plain.unit != SmilUnit::Sec) {
            add(clockDuration, element,
                (plain.valid ? QStringLiteral("pixels without ClockDurations: ")
                             : QStringLiteral("not understood without ClockDurations: "))
                    + what,
                shown(value));
        } else if (!plain.valid) {
            add(unreadMeasure, element, QStringLiteral("not understood: ") + what, shown(value));
        } else if ((plain.unit == SmilUnit::Sec) != (attribute == QLatin1String("dur"))) {
            add(wrongMeasure, element,
                (plain.unit == SmilUnit::Sec ? QStringLiteral("a duration, not a length: ")
                                             : QStringLiteral("a length, not a duration: "))
                    + what,
                shown(value));
        } else if (plain.value < 0 && sizes.contains(attribute)) {
            add(wrongMeasure, element, QStringLiteral("negative: ") + what, shown(value));
        }
        if (name == QLatin1String("body") && (clock || plain.valid)) {
            add(lostInBody, element, QStringLiteral("lost when written back: ") + what, shown(value));
        }
    }

    void checkMedia(const QDomElement &element, const QString &name)
    {
        const QString src = element.attribute(QStringLiteral("src"));
        if (src.isEmpty()) {
            add(missingSrc, element, QStringLiteral("no src: %1").arg(name));
        } else if (message.hasParts) {
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
            add(movedTopSize, element.firstChildElement(QStringLiteral("topLayout")),
                QStringLiteral("written back as the root-layout's size: topLayout"));
        }
        const bool width = layout.rootLayoutWidth.valid && !layout.topLayoutWidth.valid;
        const bool height = layout.rootLayoutHeight.valid && !layout.topLayoutHeight.valid;
        if (width || height) {
            const QString what = !top ? QStringLiteral("size")
                : width               ? QStringLiteral("width")
                                      : QStringLiteral("height");
            add(lostRootSize, element.firstChildElement(QStringLiteral("root-layout")),
                QStringLiteral("lost when written back without KeepRootSize: %1 of root-layout").arg(what));
        }
    }

    void checkRegions()
    {
        QHash<QString, int> byId;
        for (int i = 0; i < regions.size(); ++i) {
            const Region &region = regions.at(i);
            if (region.id.isEmpty()) {
                add(missingId, region.line, QStringLiteral("region without id"));
            } else if (byId.contains(region.id)) {
                add(duplicateRegion, region.line, QStringLiteral("more than one region: %1").arg(shown(region.id)));
            } else {
                byId.insert(region.id, i);
            }
        }
        for (const Region &reference : std::as_const(references)) {
            const int i = byId.value(reference.id, -1);
            if (i < 0) {
                add(unknownRegion, reference.line, QStringLiteral("no such region: %1").arg(shown(reference.id)));
            } else {
                regions[i].used = true;
            }
        }
        for (int i = 0; i < regions.size(); ++i) {
            const Region &region = regions.at(i);
            if (!region.used && byId.value(region.id, -1) == i) {
                add(unusedRegion, region.line, QStringLiteral("nothing plays in region: %1").arg(shown(region.id)));
            }
        }
    }

    void checkPart(const QDomElement &element, const QString &name, const QString &src)
    {
        const int part = message.parts.find(src);
        if (part < 0) {
            add(missingPart, element, QStringLiteral("no such part: src of %1").arg(name), shown(src));
            return;
        }
        usedParts.insert(part);
        const Parts::Part &read = message.parts.read(part);
        if (isWrong(name, read.kind)) {
            add(wrongKind, element, QStringLiteral("the part of %1 is %2:").arg(name, read.type), shown(src));
        }
    }

    void checkParts(int line)
    {
        for (int i = 0; i < message.parts.size(); ++i) {
            if (!usedParts.contains(i) && !isPresentation(i)) {
                add(unusedPart, line, QStringLiteral("nothing refers to the part"), shown(message.parts.at(i).name));
            }
        }
    }

    /** Whether the part is the SMIL itself, or a copy of what came from elsewhere, such as standard input. */
    bool isPresentation(int part)
    {
        const int smil = message.parts.smil();
        return part == smil || (smil < 0 && message.parts.read(part).data == message.bytes);
    }

    Message &message;
    QSet<int> usedParts;
    QList<Finding> found;
    QHash<QString, int> indexes;
    QList<Region> regions;
    QList<Region> references;
};
}

bool check(Message &message, const QStringList &ignored, QIODevice &out)
{
    bool any = false;
    const QList<Finding> findings = Checker(message).findings();
    for (const Finding &finding : findings) {
        if (ignored.contains(finding.name) || (ignored.contains(lost) && lostFindings.contains(finding.name))) {
            continue;
        }
        any = true;
        QString text = QStringLiteral("%1:%2: %3").arg(printable(message.file)).arg(finding.line).arg(finding.subject);
        if (!finding.details.isEmpty()) {
            text += QLatin1String(" ") + finding.details.mid(0, 3).join(QLatin1String(", "))
                + (finding.details.size() > 3 ? QStringLiteral(", ...") : QString());
        }
        if (finding.count > 1) {
            text += QStringLiteral(" (%1 times)").arg(finding.count);
        }
        out.write((text + QLatin1String(" [") + finding.name + QLatin1String("]\n")).toUtf8());
    }
    return any;
}
