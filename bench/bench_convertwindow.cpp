// The same DVD title converted from the window and by kestrove-cli with the
// same profile: wall times side by side, and the longest stall of the
// window's event loop during its batch.

#include "cmainwnd.h"
#include "controls.h"
#include "cprofilecombo.h"
#include "dvddisc.h"
#include "settings.h"
#include "settingswindow.h"
#include "tasklist.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

const QString profile = QStringLiteral("15,45"); // iPhone H.264 Video

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

bool run(const QString &program, const QStringList &arguments, int timeoutMs = 600000)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    return process.waitForFinished(timeoutMs) && process.exitStatus() == QProcess::NormalExit
           && process.exitCode() == 0;
}

// A PAL title of a minute of moving picture and sound, authored as a disc.
bool makeDisc(const QString &folder)
{
    const QString mpg = folder + QStringLiteral("/title.mpg");
    return run(QStringLiteral("ffmpeg"),
               {QStringLiteral("-nostdin"), QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
                QStringLiteral("lavfi"), QStringLiteral("-i"),
                QStringLiteral("testsrc2=s=720x576:r=25:d=60,noise=alls=20:allf=t"), QStringLiteral("-f"),
                QStringLiteral("lavfi"), QStringLiteral("-i"), QStringLiteral("sine=f=440:r=48000:d=60"),
                QStringLiteral("-target"), QStringLiteral("pal-dvd"), QStringLiteral("-aspect"),
                QStringLiteral("16:9"), mpg})
           && run(QStringLiteral("bash"),
                  {QStringLiteral("-c"),
                   QStringLiteral("VIDEO_FORMAT=PAL dvdauthor -o '%1/disc' -t '%2' 2>/dev/null && "
                                  "VIDEO_FORMAT=PAL dvdauthor -o '%1/disc' -T 2>/dev/null")
                       .arg(folder, mpg)});
}

// The longest time between two ticks of a 10 ms timer.
class LoopWatch : public QObject
{
public:
    LoopWatch()
    {
        timer.setInterval(10);
        QObject::connect(&timer, &QTimer::timeout, this, [this] {
            const double now = clock.nsecsElapsed() / 1e6;
            longest = std::max(longest, now - last);
            last = now;
        });
        clock.start();
        timer.start();
    }
    double longest = 0.0;

private:
    QTimer timer;
    QElapsedTimer clock;
    double last = 0.0;
};

double fromWindow(const DvdDisc &disc, const QString &out, double &stall)
{
    QDir(out).removeRecursively();
    overrideSetting(QStringLiteral("OutputDir"), out);
    CMainWnd window;
    window.resize(1000, 640);
    window.show();
    // Chosen before the import, as a user does; the title takes the panel's values.
    window.comboProfile->selectProfile(profile.section(QLatin1Char(','), 0, 0), profile.section(QLatin1Char(','), 1));
    const int id = window.tasks()->addTitle(profile, *disc.titles[0], 1, 1);
    if (id < 0)
        return -1;
    window.settingsPanel()->values(window.tasks()->byId(id)->output.settings);
    window.addTaskRows();
    QTest::qWait(200);
    LoopWatch watch;
    QElapsedTimer clock;
    clock.start();
    QTest::mouseClick(window.btnStart, Qt::LeftButton);
    QTest::qWait(100);
    while (!window.tasks()->allAtRest())
        QTest::qWait(20);
    const double seconds = clock.nsecsElapsed() / 1e9;
    stall = watch.longest;
    return window.tasks()->at(0)->state == Task::Succeed ? seconds : -1;
}

double fromCli(const QString &cli, const QString &disc, const QString &out)
{
    QDir(out).removeRecursively();
    QElapsedTimer clock;
    clock.start();
    const bool ok = run(cli, {QStringLiteral("convert"), disc, QStringLiteral("--profile"), profile,
                              QStringLiteral("--titles"), QStringLiteral("1"), QStringLiteral("--output-dir"), out});
    return ok ? clock.nsecsElapsed() / 1e9 : -1;
}

} // namespace

int main(int argc, char **argv)
{
    QTemporaryDir home;
    qputenv("HOME", QFile::encodeName(home.path()));
    qunsetenv("XDG_CONFIG_HOME");
    QApplication app(argc, argv);
    QTemporaryDir work;
    if (!makeDisc(work.path())) {
        std::fprintf(stderr, "making the disc failed (ffmpeg, dvdauthor?)\n");
        return 1;
    }
    const QString discPath = work.filePath(QStringLiteral("disc"));
    const auto disc = LoadDvdDisc(discPath + QStringLiteral("/VIDEO_TS/VTS_01_0.IFO"), false);
    if (!disc || disc->titles.empty())
        return 1;
    const QString cli = QCoreApplication::applicationDirPath() + QStringLiteral("/kestrove-cli");
    std::vector<double> window, command;
    double stall = 0.0;
    for (int i = 0; i < 3; ++i) {
        double longest = 0.0;
        window.push_back(fromWindow(*disc, work.filePath(QStringLiteral("w")), longest));
        stall = std::max(stall, longest);
        command.push_back(fromCli(cli, discPath, work.filePath(QStringLiteral("c"))));
        if (window.back() < 0 || command.back() < 0) {
            std::fprintf(stderr, "a conversion failed\n");
            return 1;
        }
    }
    const double w = median(window), c = median(command);
    std::printf("a 60 s PAL title to iPhone H.264, medians of 3: window %.2f s, kestrove-cli %.2f s "
                "(window %+.1f%%); the window's event loop still for %.0f ms at the most\n",
                w, c, (w / c - 1.0) * 100.0, stall);
    return 0;
}
