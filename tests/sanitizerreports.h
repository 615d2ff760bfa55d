#pragma once

#include <QRegularExpression>
#include <QTest>

// Makes the running test function fail on a sanitizer's report that a child
// process printed and the program passed on as a warning. Call from init().
inline void failOnChildSanitizerReports()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("Sanitizer|runtime error:")));
}
