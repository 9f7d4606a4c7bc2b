// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "document.h"

namespace
{
/** The way out into a DOM. An element is appended when it is complete: how deep it will stand costs nothing then. */
class Tree
{
public:
    using Element = QDomElement;

    explicit Tree(QDomDocument &document)
        : dom(document)
    {
    }
    Element begin(const QString &name) { return dom.createElement(name); }
    void write(Element &element, const QString &attribute, const QString &text)
    {
        element.setAttribute(attribute, text);
    }
    void append(Element &element, const Element &child) { element.appendChild(child); }
    void end() { }

private:
    QDomDocument &dom;
};
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
    Tree tree(domDocument);
    return writeDocument(tree, model);
}

QDomElement SmilParser::render(SmilHeader &header)
{
    Tree tree(domDocument);
    return writeHead(tree, header);
}

QDomElement SmilParser::render(SmilLayout &layout)
{
    Tree tree(domDocument);
    return writeLayout(tree, layout);
}

QDomElement SmilParser::render(SmilBody &body)
{
    Tree tree(domDocument);
    return writeBody(tree, body);
}

QDomElement SmilParser::render(SmilNode &node)
{
    Tree tree(domDocument);
    return writeNode(tree, node);
}

QDomElement SmilParser::render(SmilRef &ref)
{
    Tree tree(domDocument);
    return writeRef(tree, ref);
}
