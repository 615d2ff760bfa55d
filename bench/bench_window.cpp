// Times the main window: a new process to its first painted window with the
// catalogue loaded (goal under 400 ms), the resident memory of the idle
// window (goal under 120 MB), and a list of 500 files: the time to build
// their rows (goal under 1 s) and the slowest repaint while scrolling it.
//   bench_window FIXTURES   (the test fixtures folder, for a file to list)

#include "cmainwnd.h"
#include "profilegrouploader.h"
#include "tasklist.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QScrollBar>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

long residentKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    return -1;
}

// The first paint of a widget ends the event loop.
class FirstPaint : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return false;
    }
};

// The child: the window up and painted, "painted", then idle a second and
// its resident memory.
int child(int argc, char **argv)
{
    QApplication app(argc, argv);
    ProfileGroupLoader::instance(); // the whole catalogue, as the window needs it
    CMainWnd window;
    FirstPaint watch;
    window.installEventFilter(&watch);
    window.show();
    app.exec();
    std::printf("painted\n");
    std::fflush(stdout);
    window.removeEventFilter(&watch);
    QTimer::singleShot(1000, &app, &QCoreApplication::quit);
    app.exec();
    std::printf("rss %ld\n", residentKb());
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1 && !std::strcmp(argv[1], "--child"))
        return child(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: bench_window FIXTURES\n");
        return 2;
    }
    std::vector<double> starts;
    long rss = 0;
    for (int run = 0; run < 5; ++run) {
        QProcess process;
        QElapsedTimer timer;
        timer.start();
        process.start(QString::fromLocal8Bit(argv[0]), {QStringLiteral("--child")});
        if (!process.waitForReadyRead(20000) || !process.readLine().startsWith("painted"))
            return 1;
        starts.push_back(timer.nsecsElapsed() / 1e6);
        process.waitForFinished(20000);
        rss = process.readAll().trimmed().split(' ').value(1).toLong();
    }
    std::printf("start-up to the first painted window: median %.0f ms (5 runs), idle window resident "
                "%ld MB\n",
                median(starts), rss / 1024);

    QApplication app(argc, argv);
    CMainWnd window;
    window.resize(1000, 640);
    window.show();
    TaskList *list = window.tasks();
    const QString key = ProfileGroupLoader::instance()->defaultProfile();
    const QString film = QString::fromLocal8Bit(argv[1]) + QStringLiteral("/movie.mkv");
    for (int i = 0; i < 500; ++i)
        if (list->addFile(key, film) < 0)
            return 1;
    QElapsedTimer build;
    build.start();
    window.addTaskRows();
    QCoreApplication::processEvents();
    const double buildMs = build.nsecsElapsed() / 1e6;
    QScrollBar *bar = window.treeTask->verticalScrollBar();
    double slowest = 0.0;
    for (int value = 0; value <= bar->maximum(); value += bar->pageStep() / 4 + 1) {
        QElapsedTimer step;
        step.start();
        bar->setValue(value);
        window.treeTask->viewport()->repaint();
        slowest = std::max(slowest, step.nsecsElapsed() / 1e6);
    }
    std::printf("500 rows: built in %.0f ms, slowest scroll step with its repaint %.1f ms\n", buildMs,
                slowest);
    return 0;
}
