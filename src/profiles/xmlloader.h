#pragma once

#include <QDomDocument>
#include <QString>

// Field readers shared by the profile documents and the catalogue.
// The value attribute of the first descendant element with that tag name.
QString childValue(const QDomNode &node, const QString &tagName);
// The attribute of the node's element, empty when either is missing.
QString attributeValue(const QDomNode &node, const QString &name);
// The element is marked not to be edited; only presence of the mark counts.
bool isReadOnly(const QDomNode &node);
// Writes doc with the UTF-8 declaration and an indent of 4. False, with a
// line in the log, when path can't be written; an existing file then stays.
bool writeDocument(QDomDocument &doc, const QString &path, QString *error = nullptr);

// Holds one XML document read from a file or a resource.
class XmlLoader
{
public:
    XmlLoader() = default;
    virtual ~XmlLoader() = default;
    XmlLoader(const XmlLoader &) = default;
    XmlLoader &operator=(const XmlLoader &) = default;

    // False when the file can't be opened or doesn't parse; the document is
    // empty then.
    bool load(const QString &path);

    QDomDocument doc{QStringLiteral("doc")};
    QString fileName;
};
