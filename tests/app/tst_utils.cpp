#include "utils.h"

#include <QElapsedTimer>
#include <QTest>

class TestUtils : public QObject
{
    Q_OBJECT

private slots:
    void texts_data();
    void texts();
    void sleepLastsTheWholeTime();
};

// Every text maker in one table: which one, what it is given (two paths
// split by "|", a picture's size as "WxH"), the text it gives.
void TestUtils::texts_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *call, const char *tag, const char *input, const char *expected) {
        QTest::newRow(tag) << QString::fromLatin1(call) << QString::fromUtf8(input)
                           << QString::fromUtf8(expected);
    };
    row("name", "every forbidden character", "a/b*c?d:e<f>g|h\"i\\j", "abcdefghij");
    row("name", "blanks trimmed, inner ones and non-ASCII stay", " Amélie:  Ça va? ", "Amélie  Ça va");
    row("name", "blanks behind removed characters", "Title : ", "Title");
    row("name", "nothing left", " /?* ", "");
    row("parent", "sibling folders", "D:/x/y/a.vob|D:/x/z/b.vob", "D:/x");
    row("parent", "equal", "/m/v/a.mp4|/m/v/a.mp4", "/m/v/a.mp4");
    row("parent", "nothing common", "C:/a/x|D:/a/x", "");
    row("parent", "root only", "/a/x|/b/x", "");
    row("parent", "prefix of a name is no folder", "/mov/a|/movies/a", "");
    row("parent", "folder and a file in it", "/m/v|/m/v/a.mp4", "/m/v");
    row("parent", "longer name at the same level", "/m/va/a|/m/v/a", "/m");
    row("parent", "backslash doesn't separate", "C:\\x\\a|C:\\x\\b", "");
    row("bytes", "below a kB", "1023", "1023.00B");
    row("bytes", "one kB", "1024", "1.00kB");
    row("bytes", "fraction is cut", "1536", "1.00kB");
    row("bytes", "below a MB", "1048575", "1023.00kB");
    row("bytes", "largest", "18446744073709551615", "15.00EB");
    row("duration", "fraction is cut", "59.99", "00:00:59");
    row("duration", "below a day", "86399.9", "23:59:59");
    row("duration", "one day", "86400", "1.00:00:00");
    row("duration", "days and more", "1040465", "12.01:01:05");
    row("duration", "negative", "-5", "00:00:00");
    row("duration", "not a number", "nan", "00:00:00");
    row("duration", "infinite", "inf", "11574074.01:46:40");
    row("size", "picture", "720x576", "720x576");
    row("size", "no width", "0x480", "");
    row("size", "no height", "640x0", "");
}

void TestUtils::texts()
{
    QFETCH(QString, call);
    QFETCH(QString, input);
    const QString a = input.section(QLatin1Char('|'), 0, 0);
    const QString b = input.section(QLatin1Char('|'), 1);
    QString text;
    if (call == QLatin1String("name"))
        text = sanitizeFileName(input);
    else if (call == QLatin1String("parent"))
        text = commonParent(a, b);
    else if (call == QLatin1String("bytes"))
        text = Utils::byteText(input.toULongLong());
    else if (call == QLatin1String("duration"))
        text = Utils::durationText(input.toDouble());
    else
        text = Utils::sizeLabel(input.section(QLatin1Char('x'), 0, 0).toInt(),
                                input.section(QLatin1Char('x'), 1).toInt());
    QTEST(text, "expected");
}

void TestUtils::sleepLastsTheWholeTime()
{
    QElapsedTimer timer;
    timer.start();
    Utils::sleepMs(120);
    QVERIFY2(timer.elapsed() >= 120, qPrintable(QString::number(timer.elapsed())));
}

QTEST_GUILESS_MAIN(TestUtils)
#include "tst_utils.moc"
