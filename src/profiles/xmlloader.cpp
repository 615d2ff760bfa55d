#include "xmlloader.h"

#include <QDebug>
#include <QFile>

QString childValue(const QDomNode &node, const QString &tagName)
{
    QDomNodeList found;
    if (node.isDocument())
        found = node.toDocument().elementsByTagName(tagName);
    else
        found = node.toElement().elementsByTagName(tagName);
    if (found.isEmpty())
        return QString();
    return found.at(0).toElement().attribute(QStringLiteral("value"));
}

QString attributeValue(const QDomNode &node, const QString &name)
{
    return node.toElement().attribute(name);
}

bool isReadOnly(const QDomNode &node)
{
    return node.toElement().hasAttribute(QStringLiteral("advReadonly"));
}

bool XmlLoader::load(const QString &path)
{
    fileName = path;
    doc = QDomDocument(QStringLiteral("doc"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QString error;
    int line = 0;
    int column = 0;
    if (!doc.setContent(&file, false, &error, &line, &column)) {
        qDebug().noquote() << "Can't read" << path
                           << QStringLiteral("(%1:%2):").arg(line).arg(column) << error;
        doc = QDomDocument(QStringLiteral("doc"));
        return false;
    }
    return true;
}
