// Times the main window: a new process to its first painted window with the
// catalogue loaded (goal under 400 ms), the resident memory of the idle
// window (goal under 120 MB), and a list of 500 files: the time to build
// their rows (goal under 1 s) and the slowest repaint while scrolling it.
// Then the imports: Open DVD on the twelve-title disc, offered as the one
// mounted disc, to all its rows with their thumbnails (goal under 1 s), and
// a drop of 200 one-second files to their rows (goal under 3 s) with the
// longest the event loop stood still meanwhile (goal under 100 ms).
//   bench_window FIXTURES   (the test fixtures folder, for a file to list)

#include "cmainwnd.h"
#include "mediaimagereader.h"
#include "profilegrouploader.h"
#include "tasklist.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QProcess>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>
#include <QUrl>

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

// The largest gap between the ticks of a 10 ms timer: how long the event
// loop stood still.
class LoopWatch
{
public:
    LoopWatch()
    {
        QObject::connect(&timer, &QTimer::timeout, [this] {
            const double now = clock.nsecsElapsed() / 1e6;
            longest = std::max(longest, now - last);
            last = now;
        });
        timer.start(10);
        clock.start();
    }
    double longest = 0.0;

private:
    QTimer timer;
    QElapsedTimer clock;
    double last = 0.0;
};

// Answers whatever modal dialog comes up: a file dialog by its start folder,
// a message box by OK, and notes when.
class Answers
{
public:
    explicit Answers(QElapsedTimer &clock)
    {
        QObject::connect(&timer, &QTimer::timeout, [this, &clock] {
            QWidget *modal = QApplication::activeModalWidget();
            if (auto *dialog = qobject_cast<QFileDialog *>(modal)) {
                chosenAt = clock.nsecsElapsed() / 1e6;
                QMetaObject::invokeMethod(dialog, "accept");
            } else if (auto *box = qobject_cast<QMessageBox *>(modal)) {
                std::fprintf(stderr, "message: %s %s\n", qPrintable(box->text()),
                             qPrintable(box->informativeText()));
                box->accept();
            }
        });
        timer.start(0);
    }
    double chosenAt = -1.0;

private:
    QTimer timer;
};

// Open DVD with `disc` the only disc mounted: the dialog starts in it and is
// answered at once.
void openDvd(CMainWnd &window, const QString &disc)
{
    QTemporaryDir root;
    QFile::link(QFileInfo(disc).absoluteFilePath(), root.filePath(QStringLiteral("cdrom0")));
    qputenv("KESTROVE_MEDIA_ROOTS", QFile::encodeName(root.path()));
    Logical::MediaImageReader *reader = Logical::MediaImageReader::instance();
    QMap<int, int> heard; // the placeholder, then the frame
    QElapsedTimer clock;
    double framesAt = -1.0;
    QEventLoop wait;
    QObject::connect(reader, qOverload<int>(&Logical::MediaImageReader::imageChanged), &wait, [&](int id) {
        ++heard[id];
        if (window.tasks()->count() == 12 && std::count(heard.begin(), heard.end(), 2) == 12) {
            framesAt = clock.nsecsElapsed() / 1e6;
            wait.quit();
        }
    });
    Answers answers(clock);
    clock.start();
    window.action(QStringLiteral("actionOpen_DVD"))->trigger();
    const double rowsAt = clock.nsecsElapsed() / 1e6;
    QTimer::singleShot(10000, &wait, &QEventLoop::quit);
    if (framesAt < 0)
        wait.exec();
    std::printf("Open DVD, twelve titles: the dialog up and answered at %.0f ms; from the answer to the rows "
                "%.0f ms, to all their thumbnails %.0f ms\n",
                answers.chosenAt, rowsAt - answers.chosenAt,
                framesAt < 0 ? -1.0 : framesAt - answers.chosenAt);
}

// 200 files of a second each, dropped on the window.
void drop200(CMainWnd &window)
{
    QTemporaryDir dir;
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"),
                 QStringLiteral("-nostdin -v error -f lavfi -i testsrc2=s=64x48:r=10:d=200 -f lavfi -i "
                                "sine=r=22050:d=200 -c:v mpeg4 -g 10 -c:a aac -b:a 16k -f segment -segment_time 1 "
                                "-reset_timestamps 1")
                         .split(QLatin1Char(' '))
                     << dir.filePath(QStringLiteral("f%03d.mkv")));
    if (!ffmpeg.waitForFinished(60000) || ffmpeg.exitCode() != 0) {
        std::fprintf(stderr, "ffmpeg failed: %s\n", ffmpeg.readAllStandardError().constData());
        return;
    }
    QList<QUrl> urls;
    for (const QString &name : QDir(dir.path()).entryList(QDir::Files, QDir::Name))
        urls << QUrl::fromLocalFile(dir.filePath(name));
    QMimeData mime;
    mime.setUrls(urls);
    QElapsedTimer clock;
    Answers answers(clock);
    LoopWatch watch;
    clock.start();
    QDragEnterEvent enter(QPoint(400, 300), Qt::CopyAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &enter);
    QDropEvent drop(QPointF(400, 300), Qt::CopyAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &drop);
    QCoreApplication::processEvents();
    const double rowsAt = clock.nsecsElapsed() / 1e6;
    std::printf("a drop of %d one-second files: %d rows in %.0f ms, the event loop still for %.0f ms at the "
                "most\n",
                int(urls.size()), window.treeTask->topLevelItemCount(), rowsAt, watch.longest);
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

    // Settings of its own: Open DVD stores its folder.
    QTemporaryDir home;
    qputenv("HOME", QFile::encodeName(home.path()));
    qunsetenv("XDG_CONFIG_HOME");
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

    window.ResetToEmpty();
    openDvd(window, QString::fromLocal8Bit(argv[1]) + QStringLiteral("/dvd-many"));
    window.ResetToEmpty();
    drop200(window);
    return 0;
}
