#include "utils.h"

#include <QElapsedTimer>
#include <QTest>

#include <limits>

class TestUtils : public QObject
{
    Q_OBJECT

private slots:
    void sanitize_data();
    void sanitize();
    void commonParent_data();
    void commonParent();
    void byteText_data();
    void byteText();
    void durationText_data();
    void durationText();
    void sizeLabel_data();
    void sizeLabel();
    void sleepLastsTheWholeTime();
};

void TestUtils::sanitize_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("expected");
    QTest::newRow("blanks trimmed") << "  a:b?c  "
                                    << "abc";
    QTest::newRow("every forbidden character") << "a/b*c?d:e<f>g|h\"i\\j"
                                               << "abcdefghij";
    QTest::newRow("inner blanks stay") << "My  Movie (2009)"
                                       << "My  Movie (2009)";
    QTest::newRow("non-ASCII stays") << "Amélie: Ça va?"
                                     << "Amélie Ça va";
    QTest::newRow("blanks behind removed characters") << "Title : "
                                                      << "Title";
    QTest::newRow("nothing left") << " /?* "
                                  << "";
}

void TestUtils::sanitize()
{
    QFETCH(QString, title);
    QTEST(sanitizeFileName(title), "expected");
}

void TestUtils::commonParent_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<QString>("expected");
    QTest::newRow("sibling folders") << "D:/x/y/a.vob"
                                     << "D:/x/z/b.vob"
                                     << "D:/x";
    QTest::newRow("same folder") << "/m/v/a.mp4"
                                 << "/m/v/b.mp4"
                                 << "/m/v";
    QTest::newRow("equal") << "/m/v/a.mp4"
                           << "/m/v/a.mp4"
                           << "/m/v/a.mp4";
    QTest::newRow("nothing common") << "C:/a/x"
                                    << "D:/a/x"
                                    << "";
    QTest::newRow("root only") << "/a/x"
                               << "/b/x"
                               << "";
    QTest::newRow("prefix of a name is no folder") << "/mov/a"
                                                   << "/movies/a"
                                                   << "";
    QTest::newRow("case counts") << "/M/a/x"
                                 << "/m/a/x"
                                 << "";
    QTest::newRow("folder and a file in it") << "/m/v"
                                             << "/m/v/a.mp4"
                                             << "/m/v";
    QTest::newRow("longer name at the same level") << "/m/va/a"
                                                   << "/m/v/a"
                                                   << "/m";
    QTest::newRow("backslash doesn't separate") << "C:\\x\\a"
                                                << "C:\\x\\b"
                                                << "";
    QTest::newRow("empty") << ""
                           << "/a"
                           << "";
}

void TestUtils::commonParent()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QTEST(::commonParent(a, b), "expected");
}

void TestUtils::byteText_data()
{
    QTest::addColumn<quint64>("bytes");
    QTest::addColumn<QString>("expected");
    QTest::newRow("zero") << quint64(0) << "0.00B";
    QTest::newRow("below a kB") << quint64(1023) << "1023.00B";
    QTest::newRow("one kB") << quint64(1024) << "1.00kB";
    QTest::newRow("fraction is cut") << quint64(1536) << "1.00kB";
    QTest::newRow("below a MB") << quint64(1024 * 1024 - 1) << "1023.00kB";
    QTest::newRow("MB") << quint64(5) * 1024 * 1024 + 7 << "5.00MB";
    QTest::newRow("GB") << quint64(4700000000ULL) << "4.00GB";
    QTest::newRow("TB") << (quint64(3) << 40) << "3.00TB";
    QTest::newRow("largest") << std::numeric_limits<quint64>::max() << "15.00EB";
}

void TestUtils::byteText()
{
    QFETCH(quint64, bytes);
    QTEST(Utils::byteText(bytes), "expected");
}

void TestUtils::durationText_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("expected");
    QTest::newRow("zero") << 0.0 << "00:00:00";
    QTest::newRow("fraction is cut") << 59.99 << "00:00:59";
    QTest::newRow("hours") << 3723.0 << "01:02:03";
    QTest::newRow("below a day") << 86399.9 << "23:59:59";
    QTest::newRow("one day") << 86400.0 << "1.00:00:00";
    QTest::newRow("day and more") << 90061.0 << "1.01:01:01";
    QTest::newRow("many days") << 12.0 * 86400 + 5 << "12.00:00:05";
    QTest::newRow("negative") << -5.0 << "00:00:00";
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << "00:00:00";
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << "11574074.01:46:40";
}

void TestUtils::durationText()
{
    QFETCH(double, seconds);
    QTEST(Utils::durationText(seconds), "expected");
}

void TestUtils::sizeLabel_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<QString>("expected");
    QTest::newRow("picture") << 720 << 576 << "720x576";
    QTest::newRow("no width") << 0 << 480 << "";
    QTest::newRow("no height") << 640 << 0 << "";
    QTest::newRow("negative") << -1 << 480 << "";
}

void TestUtils::sizeLabel()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QTEST(Utils::sizeLabel(width, height), "expected");
}

void TestUtils::sleepLastsTheWholeTime()
{
    QElapsedTimer timer;
    timer.start();
    Utils::sleepMs(120);
    QVERIFY2(timer.elapsed() >= 120, qPrintable(QString::number(timer.elapsed())));
    timer.restart();
    Utils::sleepMs(0);
    QVERIFY(timer.elapsed() < 100);
}

QTEST_GUILESS_MAIN(TestUtils)
#include "tst_utils.moc"
