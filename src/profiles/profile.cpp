#include "profile.h"

#include "settings.h"

#include <QDebug>
#include <QFileInfo>

namespace {

const QString valueAttribute = QStringLiteral("value");

QStringList listOf(const QDomNode &node, const QString &name)
{
    if (!node.toElement().hasAttribute(name))
        return QStringList();
    return Profile::splitList(attributeValue(node, name));
}

} // namespace

Profile::Profile(const QString &path)
{
    load(resolvedPath(path));
}

QString Profile::resolvedPath(const QString &path)
{
    if (!path.contains(QLatin1String("user/")))
        return path;
    return userProfilesDir() + QLatin1Char('/') + QFileInfo(path).fileName();
}

QList<QDomElement> Profile::sections() const
{
    QList<QDomElement> found;
    const QDomElement root = doc.documentElement();
    if (root.tagName() != QLatin1String("Parameter"))
        return found;
    for (QDomElement section = root.firstChildElement(QStringLiteral("Section")); !section.isNull();
         section = section.nextSiblingElement(QStringLiteral("Section")))
        found << section;
    return found;
}

QList<QDomElement> Profile::parameters() const
{
    QList<QDomElement> found;
    for (const QDomElement &section : sections()) {
        for (QDomElement element = section.firstChildElement(); !element.isNull();
             element = element.nextSiblingElement())
            found << element;
    }
    return found;
}

QList<QDomNode> Profile::simpleParameters() const
{
    QList<QDomNode> found;
    for (const QDomElement &element : parameters()) {
        if (element.hasAttribute(QStringLiteral("simpleName")))
            found << element;
    }
    return found;
}

QDomElement Profile::parameter(const QString &wanted) const
{
    for (const QDomElement &element : parameters()) {
        if (key(element) == wanted)
            return element;
    }
    return QDomElement();
}

QStringList Profile::keys() const
{
    QStringList found;
    for (const QDomElement &element : parameters())
        found << key(element);
    return found;
}

QMap<QString, QString> Profile::values(const QMap<QString, QString> &current) const
{
    QMap<QString, QString> result;
    for (const QDomElement &element : parameters()) {
        const QString parameterKey = key(element);
        QString text = current.value(parameterKey);
        if (text.isEmpty())
            text = defaultValue(element);
        // A list stands at its first candidate when the text is none of them.
        const ParameterKind parameterKind = kind(element);
        if (parameterKind == ClosedList || parameterKind == Flag) {
            const QStringList offered = parameterKind == Flag ? QStringList{QStringLiteral("True"),
                                                                            QStringLiteral("False")}
                                                              : candidates(element);
            if (!offered.contains(text))
                text = offered.value(0);
        }
        result.insert(parameterKey, text);
    }
    return result;
}

bool Profile::saveValues(const QMap<QString, QString> &values, const QString &path)
{
    for (const QDomElement &element : parameters()) {
        // Looked up by key, the name every values map uses; for tags without
        // "_num_" that is the tag name itself.
        const QString wanted = values.value(key(element));
        if (element.attribute(valueAttribute) != wanted) {
            QDomElement target = element;
            target.setAttribute(valueAttribute, wanted);
        }
    }
    return writeDocument(doc, path);
}

QString Profile::key(const QDomNode &parameter)
{
    return parameter.toElement().tagName().remove(QStringLiteral("_num_"));
}

Profile::ParameterKind Profile::kind(const QDomNode &parameter)
{
    const QDomElement element = parameter.toElement();
    if (element.hasAttribute(QStringLiteral("advHasCandidates")))
        return isOpenListKey(key(element)) ? OpenList : ClosedList;
    if (!element.hasAttribute(valueAttribute))
        return Flag;
    const QString value = element.attribute(valueAttribute);
    if (value == QLatin1String("True") || value == QLatin1String("False"))
        return Flag;
    return FreeText;
}

bool Profile::isOpenListKey(const QString &key)
{
    static const QStringList openKeys{
        QStringLiteral("s"),  QStringLiteral("b"),  QStringLiteral("r"),  QStringLiteral("aspect"),
        QStringLiteral("ab"), QStringLiteral("ar"), QStringLiteral("vol")};
    return openKeys.contains(key);
}

QString Profile::defaultValue(const QDomNode &parameter)
{
    const QString value = parameter.toElement().attribute(valueAttribute);
    if (kind(parameter) == Flag && value != QLatin1String("True"))
        return QStringLiteral("False");
    return value;
}

QStringList Profile::candidates(const QDomNode &parameter)
{
    return listOf(parameter, QStringLiteral("advCandidatesDisplay"));
}

QString Profile::simpleName(const QDomNode &parameter)
{
    return attributeValue(parameter, QStringLiteral("simpleName"));
}

QStringList Profile::simpleLabels(const QDomNode &parameter)
{
    return listOf(parameter, QStringLiteral("simpleCandidatesDisplay"));
}

QStringList Profile::simpleValues(const QDomNode &parameter)
{
    return listOf(parameter, QStringLiteral("simpleCandidatesValue"));
}

QStringList Profile::splitList(const QString &text)
{
    return text.split(QLatin1Char(','));
}
