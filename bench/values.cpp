// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "values.h"

#include <QtCore/QTextStream>

static QTextStream &operator<<(QTextStream &out, const SmilUnit &measure)
{
    return out << (measure.valid ? measure.toString() : QStringLiteral("none"));
}

static void write(QTextStream &out, const SmilHeader &header)
{
    out << "head " << header.id << ' ' << header.className << ' ' << header.title << '\n';
    for (const SmilMeta &meta : header.metas) {
        out << "meta " << meta.id << ' ' << meta.name << ' ' << meta.content << '\n';
    }
    const SmilLayout &layout = header.layout;
    out << "layout " << layout.rootLayoutWidth << ' ' << layout.rootLayoutHeight << ' ' << layout.topLayoutWidth << ' '
        << layout.topLayoutHeight << '\n';
    for (const SmilRegion &region : layout.regions) {
        out << "region " << region.id << ' ' << region.width << ' ' << region.height << ' ' << region.bottom << ' '
            << region.top << ' ' << region.left << ' ' << region.right << ' ' << region.fit << '\n';
    }
}

static void write(QTextStream &out, const SmilNode &node)
{
    out << "node " << node.type << ' ' << node.dur << '\n';
    for (const SmilRef &ref : node.refs) {
        out << "ref " << ref.type << ' ' << ref.src << ' ' << ref.region << '\n';
    }
    for (const SmilNode &child : node.children) {
        write(out, child);
    }
    out << "end\n";
}

QString values(const SmilDocument &model)
{
    QString text;
    QTextStream out(&text);
    write(out, model.header);
    write(out, model.body.root);
    return text;
}
