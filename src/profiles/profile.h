#pragma once

#include "xmlloader.h"

#include <QList>
#include <QMap>
#include <QStringList>

// One output profile document: sections of parameter elements, each with its
// default value, its candidates and the hints for showing it. A template only;
// a task keeps its own flat copy of the values.
class Profile : public XmlLoader
{
public:
    enum ParameterKind { FreeText = 0, Flag = 1, ClosedList = 2, OpenList = 3 };

    // A path holding "user/" names a user profile: it is read from the user
    // profile directory. A document that can't be read has no sections.
    explicit Profile(const QString &path);

    // The path that Profile(path) reads.
    static QString resolvedPath(const QString &path);

    // The Section elements of the root, in document order.
    QList<QDomElement> sections() const;
    // The parameter elements of all sections, in document order.
    QList<QDomElement> parameters() const;
    // The parameters that the Simple tab offers (those with simpleName).
    QList<QDomNode> simpleParameters() const;
    // The parameter of that key in any section, null when there is none.
    QDomElement parameter(const QString &key) const;
    // Every key, in document order.
    QStringList keys() const;

    // The text form a parameter shows, key by key: the entry of current where
    // it isn't empty, else the document's default. The map a task starts with.
    QMap<QString, QString> values(const QMap<QString, QString> &current = {}) const;

    // Writes the document with each parameter's value replaced by the entry of
    // values for its key (empty when absent) to path. Candidates and hints are
    // kept. False, with a line in the log, when path can't be written.
    bool saveValues(const QMap<QString, QString> &values, const QString &path);

    // Facts about one parameter element.
    static QString key(const QDomNode &parameter);
    static ParameterKind kind(const QDomNode &parameter);
    // Keys whose list also takes a typed value.
    static bool isOpenListKey(const QString &key);
    // The value attribute; a flag reads "True" or "False".
    static QString defaultValue(const QDomNode &parameter);
    static QStringList candidates(const QDomNode &parameter);
    static QString simpleName(const QDomNode &parameter);
    static QStringList simpleLabels(const QDomNode &parameter);
    static QStringList simpleValues(const QDomNode &parameter);
    // Comma lists keep empty parts and have no escape.
    static QStringList splitList(const QString &text);
};
