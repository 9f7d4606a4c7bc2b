// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilparser.h>

#include <QtCore/qnumeric.h>

namespace
{
struct Suffix {
    QLatin1String text;
    SmilUnit::Unit unit;
};

// In the order in which they are looked for, which is also that of the units' numbers: "3pxin" has the unit "in" and
// the number "3px", which is none.
const Suffix suffixes[] = {
    {QLatin1String("pt"), SmilUnit::Pt     },
    {QLatin1String("in"), SmilUnit::In     },
    {QLatin1String("cm"), SmilUnit::Cm     },
    {QLatin1String("px"), SmilUnit::Px     },
    {QLatin1String("%"),  SmilUnit::Percent},
    {QLatin1String("s"),  SmilUnit::Sec    },
};
}

bool SmilUnit::convert(const QString &text)
{
    if (text.isEmpty()) {
        return false;
    }
    unit = Px;
    auto length = text.size();
    for (const Suffix &suffix : suffixes) {
        const auto found = text.indexOf(suffix.text);
        if (found >= 0) {
            unit = suffix.unit;
            length = found;
            break;
        }
    }
    bool understood = false;
    value = text.left(length).toDouble(&understood);
    // Qt reads "nan" and "inf", and for a number out of range hands back infinity while it reports failure.
    if (!understood || !qIsFinite(value)) {
        unit = NoUnit;
        value = 0.0;
        return false;
    }
    return true;
}

QString SmilUnit::toString() const
{
    if (!valid || unit < Pt || unit > NoUnit) {
        return QString();
    }
    const QString number = QString::number(value, 'g', 6);
    return unit == NoUnit ? number : number + suffixes[unit].text;
}
