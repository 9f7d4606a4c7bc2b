// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "times.h"

#include "smilparser/model/duration.h"
#include "smilparser/model/vocabulary.h"

#include <QtCore/qnumeric.h>

// Made once, not at each look-up.
static const QString beginName = QStringLiteral("begin");
static const QString endName = QStringLiteral("end");

static double readDur(const QDomElement &element)
{
    const QString text = element.attribute(durAttribute, absent);
    if (text.isEmpty()) {
        return qInf();
    }
    SmilUnit measure;
    const bool understood = measure.convertClock(text) || measure.convert(text);
    return understood && measure.unit == SmilUnit::Sec && isDuration(measure.value) ? measure.value : qInf();
}

static double readOffset(const QDomElement &element, const QString &name, double otherwise)
{
    const QString text = element.attribute(name, absent);
    if (text.isEmpty()) {
        return otherwise;
    }
    SmilUnit measure;
    return measure.convertClock(text.startsWith(QLatin1Char('+')) ? text.mid(1) : text) ? measure.value : otherwise;
}

bool Times::stateEnd() const
{
    return qIsFinite(dur) || qIsFinite(end);
}

Times readTimes(const QDomElement &element)
{
    return {readOffset(element, beginName, 0), readDur(element), readOffset(element, endName, qInf())};
}
