#include "qxlanguage.h"
#include "settings.h"
#include "testhome.h"
#include "version.h"

#include <QApplication>
#include <QMenu>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QSplashScreen>
#include <QTest>
#include <QTranslator>

#include <csignal>

class TestLanguage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void menuSwitchesAtOnce();
    void firstStartFollowsTheSystem_data();
    void firstStartFollowsTheSystem();

private:
    QTranslator application, browser, toolkit;
};

void TestLanguage::initTestCase()
{
    for (QTranslator *t : {&application, &browser, &toolkit})
        QCoreApplication::installTranslator(t);
    QxLanguage::setTranslators(&application, &browser, &toolkit);
}

void TestLanguage::menuSwitchesAtOnce()
{
    QxLanguage *language = QxLanguage::instance();
    QWidget window;
    QMenu *menu = language->createMenu(&window);
    language->setLanguage(QStringLiteral("en"));
    QSignalSpy changed(language, &QxLanguage::languageChanged);

    // Chosen from the menu as a user does: the menu, its title and the splash speak German.
    auto pick = [&](const QString &name) {
        menu->popup(QPoint(0, 0));
        QVERIFY(QTest::qWaitForWindowExposed(menu));
        for (QAction *action : menu->actions()) {
            if (action->text() == name)
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        }
    };
    pick(QStringLiteral("Deutsch"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.last().first().toString(), QStringLiteral("de"));
    QCOMPARE(language->currentLocale(), QStringLiteral("de"));
    QCOMPARE(menu->title(), QStringLiteral("&Sprache"));
    for (QAction *action : menu->actions())
        QCOMPARE(action->isEnabled(), action->text() != QLatin1String("Deutsch"));
    QCOMPARE(Setting::uiLanguage(), QStringLiteral("de"));
    QCOMPARE(showSplash()->message(), QStringLiteral("© %1 Tessarine. Alle Rechte vorbehalten.\n"
                                                     "Version: %2\n\n")
                                          .arg(QString::fromLatin1(__DATE__).right(4), productVersion()));

    // Arabic turns the layout round, by the toolkit's own translation.
    pick(QStringLiteral("العربية"));
    QTRY_COMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    QCOMPARE(menu->title(), QStringLiteral("ال&لغة"));
    language->setLanguage(QStringLiteral("en"));
    QTRY_COMPARE(QApplication::layoutDirection(), Qt::LeftToRight);

    // A stored language that's no longer known keeps English texts.
    language->setLanguage(QStringLiteral("xx"));
    QCOMPARE(menu->title(), QStringLiteral("&Language"));
    QCOMPARE(Setting::uiLanguage(), QStringLiteral("xx"));
}

void TestLanguage::firstStartFollowsTheSystem_data()
{
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("stored");
    QTest::newRow("German") << "de_DE.UTF-8" << "de";
    QTest::newRow("Chinese as listed") << "zh_CN.UTF-8" << "zh_CN";
    QTest::newRow("Chinese of a region not listed") << "zh_HK.UTF-8" << "en";
}

// The real program, started on an empty store under a system language.
void TestLanguage::firstStartFollowsTheSystem()
{
    QFETCH(QString, system);
    QFETCH(QString, stored);
    QTemporaryDir home;
    QProcess program;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANGUAGE", "XDG_CONFIG_HOME"})
        env.remove(QLatin1String(name));
    env.insert(QStringLiteral("LANG"), system);
    env.insert(QStringLiteral("HOME"), home.path());
    program.setProcessEnvironment(env);
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QCoreApplication::applicationDirPath() + QStringLiteral("/kestrove"), {});
    QVERIFY(program.waitForStarted(10000));
    const QString file = home.path() + QStringLiteral("/.config/Tessarine/Kestrove.conf");
    // The choice is stored as soon as it's made; a second start reads it.
    QTRY_COMPARE_WITH_TIMEOUT(QSettings(file, QSettings::IniFormat).value(QStringLiteral("Setting/UiLanguage")).toString(),
                              stored, 30000);
    ::kill(pid_t(program.processId()), SIGTERM);
    QVERIFY(program.waitForFinished(20000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
}

int main(int argc, char *argv[])
{
    TestHome home;
    QApplication app(argc, argv);
    TestLanguage test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_language.moc"
