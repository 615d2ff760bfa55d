#include "cmainwnd.h"
#include "qxlanguage.h"
#include "settings.h"
#include "terminationsignals.h"
#include "version.h"

#include <QApplication>
#include <QDir>
#include <QSplashScreen>
#include <QTranslator>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    // From the first moment: a logout during the splash still ends the
    // program through the window's normal close, once the loop runs.
    TerminationSignals termination;
    bool ended = false;
    QObject::connect(&termination, &TerminationSignals::requested, [&ended] { ended = true; });
    // Relative paths of the program rest on its own folder.
    QDir::setCurrent(QCoreApplication::applicationDirPath());

    // Installed empty; the language fills them.
    QTranslator application;
    QTranslator browser;
    QTranslator toolkit;
    QCoreApplication::installTranslator(&application);
    QCoreApplication::installTranslator(&browser);
    QCoreApplication::installTranslator(&toolkit);
    QxLanguage::setTranslators(&application, &browser, &toolkit);

    QCoreApplication::setApplicationVersion(productVersion());
    // An empty choice is the system's language, stored from then on.
    QxLanguage::instance()->setLanguage(Setting::uiLanguage());
    const auto splash = showSplash();

    int result = 0;
    {
        CMainWnd window;
        window.show();
        splash->finish(&window);
        QObject::connect(&termination, &TerminationSignals::requested, &window, &CMainWnd::close);
        // A request seen while the splash painted ends the program here.
        result = ended ? 0 : app.exec();
    }
    return result;
}
