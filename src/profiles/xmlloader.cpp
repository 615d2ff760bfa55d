#include "xmlloader.h"

#include <QDebug>
#include <QFile>
#include <QSaveFile>
#include <QTextStream>

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

bool writeDocument(QDomDocument &doc, const QString &path, QString *error)
{
    // The declaration the documents are written with, in place of whatever
    // quoting the parser kept.
    const QDomProcessingInstruction declaration = doc.createProcessingInstruction(
        QStringLiteral("xml"), QStringLiteral("version=\"1.0\" encoding=\"UTF-8\""));
    const QDomNode first = doc.firstChild();
    if (first.isProcessingInstruction() && first.nodeName() == QLatin1String("xml"))
        doc.replaceChild(declaration, first);
    else
        doc.insertBefore(declaration, first);
    // Written aside and renamed, so a failed write leaves no half file and
    // keeps the last good one.
    QSaveFile file(path);
    auto fail = [&] {
        qDebug().noquote() << "Can't write" << path << ':' << file.errorString();
        if (error)
            *error = QStringLiteral("Can't write \"%1\": %2").arg(path, file.errorString());
        return false;
    };
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return fail();
    QTextStream stream(&file);
    doc.save(stream, 4);
    stream.flush();
    if (stream.status() != QTextStream::Ok || !file.commit())
        return fail();
    return true;
}
