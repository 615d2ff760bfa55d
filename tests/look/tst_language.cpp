#include "qxlanguage.h"
#include "settings.h"
#include "testhome.h"
#include "version.h"

#include <QApplication>
#include <QMenu>
#include <QSignalSpy>
#include <QSplashScreen>
#include <QTest>
#include <QTranslator>

class TestLanguage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void menuSwitchesAtOnce();

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

int main(int argc, char *argv[])
{
    TestHome home;
    QApplication app(argc, argv);
    TestLanguage test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_language.moc"
