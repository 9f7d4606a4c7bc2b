// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "require.h"

#include "tests/messages.h"
#include "tests/outline.h"

#include <QtCore/QRegularExpression>

bool MMSLogger::qdebugEnabled = false;

/** The outline without empty texts, which are not written, and without a head that held no more. */
static QString outline(const SmilDocument &model)
{
    static const QRegularExpression empty(QStringLiteral("<head( [a-z]+='')*/>| [a-z]+=''"));
    return Outline::of(model).remove(empty);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Messages messages(0);
    SmilParser parser(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    QString error;
    int line = -7;
    int column = -8;
    SmilDocument model = parser.parse(&error, &line, &column);
    const QString warning = messages.take();
    if (!error.isNull()) {
        require(line != -7 && column != -8, "the reader wrote the place");
        // Qt 5 warns about some encodings too.
        const QString place = QStringLiteral("' at (%1,%2)!\n").arg(line).arg(column);
        require(warning.count(QStringLiteral("warning: Fail to ")) == 1 && warning.endsWith(place),
                "one warning says it");
        require(model == SmilDocument(), "the model is the default one");
        return 0;
    }
    require(line == -7 && column == -8 && !warning.contains(QLatin1String(" parse ")), "nothing is reported");

    const QDomDocument dom = parser.getContent();
    if (!isXml(dom.toString())) {
        return 0;
    }
    SmilParser second(dom.toByteArray());
    const SmilDocument &again = second.parse(&error, &line, &column);
    require(messages.take().isEmpty() && error.isNull(), "what was written can be read");
    // What is not kept: media and a duration directly inside the body, and which of the two sizes it was.
    model.body.root.refs.clear();
    model.body.root.dur = SmilUnit();
    SmilLayout &layout = model.header.layout;
    layout.rootLayoutWidth = std::exchange(layout.topLayoutWidth, SmilUnit());
    layout.rootLayoutHeight = std::exchange(layout.topLayoutHeight, SmilUnit());
    require(outline(again) == outline(model), "it is the same when read again");
    return 0;
}
