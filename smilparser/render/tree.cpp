// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "writer.h"

#include <utility>
#include <vector>

namespace
{
/** An element is appended when it is complete: how deep it will stand costs nothing then. */
class TreeWriter final : public Writer
{
public:
    explicit TreeWriter(QDomDocument &document)
        : dom(document)
    {
    }
    void begin(const QString &element) override { open.push_back(dom.createElement(element)); }
    void write(const QString &attribute, const QString &text) override { open.back().setAttribute(attribute, text); }
    void end() override
    {
        last = std::move(open.back());
        open.pop_back();
        if (!open.empty()) {
            open.back().appendChild(last);
        }
    }

    QDomElement last; ///< the element that has ended last

private:
    QDomDocument &dom;
    std::vector<QDomElement> open;
};
}

template<typename Record>
static QDomElement rendered(QDomDocument &dom, const Record &record)
{
    TreeWriter out(dom);
    writeRecord(out, record);
    return out.last;
}

QDomDocument &SmilParser::getContent()
{
    // Cleared, not replaced by an empty document: a null one starts anew with the first element it creates.
    domDocument.clear();
    domDocument.appendChild(render(document));
    return domDocument;
}

QDomElement SmilParser::render(SmilDocument &model)
{
    return rendered(domDocument, model);
}

QDomElement SmilParser::render(SmilHeader &header)
{
    return rendered(domDocument, header);
}

QDomElement SmilParser::render(SmilLayout &layout)
{
    return rendered(domDocument, layout);
}

QDomElement SmilParser::render(SmilBody &body)
{
    return rendered(domDocument, body);
}

QDomElement SmilParser::render(SmilNode &node)
{
    return rendered(domDocument, node);
}

QDomElement SmilParser::render(SmilRef &ref)
{
    return rendered(domDocument, ref);
}
