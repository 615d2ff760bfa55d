#include "cmainwnd.h"
#include "terminationsignals.h"
#include "version.h"

#include <QApplication>
#include <QDir>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    // Relative paths of the program rest on its own folder.
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    QCoreApplication::setApplicationVersion(productVersion());

    CMainWnd window;
    window.show();

    TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::requested, &window, &CMainWnd::close);

    return app.exec();
}
