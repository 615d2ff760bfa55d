// Puts a piece of the window on the screen as a user would see it and saves
// the whole screen as a picture: for looking at by eye and for the pictures
// in docs/. Run under Xvfb; QT_SCALE_FACTOR=2 for a HiDPI screen. Not shipped.
//
//   uishots picker OUT.png             the profile popup with a search in progress
//   uishots settings LANG OUT.png      the settings window in a language, both tabs

#include "cprofilecombo.h"
#include "qxlanguage.h"
#include "settingswindow.h"
#include "qxmainwidget.h"
#include "qxskin.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QTabWidget>
#include <QTranslator>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() < 3) {
        std::fprintf(stderr, "usage: uishots picker OUT.png | settings LANG OUT.png\n");
        return 2;
    }
    QTranslator application, browser, toolkit;
    for (QTranslator *t : {&application, &browser, &toolkit})
        QCoreApplication::installTranslator(t);
    QxLanguage::setTranslators(&application, &browser, &toolkit);
    const bool settings = args.at(1) == QLatin1String("settings");
    QxLanguage::instance()->setLanguage(settings ? args.value(2) : QStringLiteral("en"));
    const QString out = args.value(settings ? 3 : 2);
    QWidget backdrop(nullptr, Qt::FramelessWindowHint);
    backdrop.setStyleSheet(QStringLiteral("background: #6b7785;"));
    backdrop.setGeometry(QGuiApplication::primaryScreen()->geometry());
    backdrop.show();

    QxMainWidget window;
    QMenuBar bar(&window);
    bar.addMenu(QxSkin::instance()->createMenu(&window));
    bar.hide();
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(20, 40, 20, 20);
    auto *row = new QHBoxLayout;
    auto *label = new QLabel(QCoreApplication::translate("CMainWnd", "Profile:"), &window);
    auto *combo = new CProfileCombo(&window);
    combo->setMinimumWidth(320);
    label->setBuddy(combo);
    row->addWidget(label);
    row->addWidget(combo, 1);
    layout->addLayout(row);
    layout->addStretch();
    window.setGeometry(40, 40, 700, 620);
    if (settings) {
        // Both tabs side by side: the Simple one and the Advanced tree.
        auto grabBoth = std::make_shared<std::vector<std::unique_ptr<SettingsWindow>>>();
        for (int tab : {0, 1}) {
            auto dialog = std::make_unique<SettingsWindow>();
            dialog->setProfile(QStringLiteral("mp4.xml"), nullptr);
            dialog->findChild<QTabWidget *>(QStringLiteral("tabWidget"))->setCurrentIndex(tab);
            dialog->setGeometry(40 + tab * 340, 40, 320, 640);
            dialog->show();
            grabBoth->push_back(std::move(dialog));
        }
        QTimer::singleShot(800, &app, [&, grabBoth] {
            QGuiApplication::primaryScreen()->grabWindow(0, 24, 24, 692, 672).save(out);
            QCoreApplication::quit();
        });
        return app.exec();
    }
    window.show();
    combo->selectProfile(QStringLiteral("14"), QStringLiteral("126"));

    QTimer::singleShot(300, &app, [&] {
        combo->showSearch();
        QTest::keyClicks(combo->profileMenu()->searchField(), QStringLiteral("ipad"));
        QTimer::singleShot(500, &app, [&] {
            const QRect area = window.frameGeometry()
                                   .united(combo->profileMenu()->geometry())
                                   .adjusted(-16, -16, 16, 16);
            QGuiApplication::primaryScreen()
                ->grabWindow(0, area.x(), area.y(), area.width(), area.height())
                .save(out);
            QCoreApplication::quit();
        });
    });
    return app.exec();
}
