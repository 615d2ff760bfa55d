#pragma once

#include <QTranslator>

// A language with one text: enough to see that a window follows a switch.
class FixedTranslator : public QTranslator
{
public:
    FixedTranslator(const char *context, const char *source, const QString &translation)
        : context(context), source(source), translation(translation)
    {
    }
    QString translate(const char *c, const char *s, const char *, int) const override
    {
        return qstrcmp(c, context) == 0 && qstrcmp(s, source) == 0 ? translation : QString();
    }
    bool isEmpty() const override { return false; }

private:
    const char *context;
    const char *source;
    QString translation;
};
