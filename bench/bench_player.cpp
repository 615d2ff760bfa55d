// Plays a PAL DVD title and a 1080p H.264 file in real time and reports the
// engine's processor use beside `ffmpeg -re -i SOURCE -f null -`, the time
// from a seek to its first picture, and the memory the 1080p file takes;
// then what one edited picture costs (picture values, two effects and a
// subtitle burnt in) on a PAL picture and a 1080p one.

#include "ffplayer.h"
#include "playerengine.h"

#include <QGuiApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFont>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <sys/resource.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <vector>

namespace {

constexpr int playSeconds = 10;

double cpuSeconds(int who)
{
    rusage usage{};
    getrusage(who, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec
           + (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

long residentKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    return 0;
}

bool run(const QString &program, const QStringList &arguments, const QString &dir = {})
{
    QProcess process;
    process.setWorkingDirectory(dir);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    return process.waitForFinished(-1) && process.exitCode() == 0;
}

struct Figures
{
    double cpuPercent = 0.0;
    double seekMs = 0.0;
    long peakKiB = 0;
    int pictures = 0;
};

Figures play(const QString &path, const TitleSelection &title)
{
    PlayerEngine engine;
    std::atomic<int> pictures{0};
    engine.setFrameCallback([&](const PlayerPicture &) {
        ++pictures;
        return 0;
    });
    Figures figures;
    if (!engine.open(path, title)) {
        std::fprintf(stderr, "%s\n", qPrintable(engine.errorString()));
        return figures;
    }
    engine.play();
    QThread::msleep(500); // past the start
    const double cpuStart = cpuSeconds(RUSAGE_SELF);
    QElapsedTimer wall;
    wall.start();
    while (wall.elapsed() < playSeconds * 1000) {
        QThread::msleep(100);
        figures.peakKiB = std::max(figures.peakKiB, residentKiB());
    }
    figures.cpuPercent = 100.0 * (cpuSeconds(RUSAGE_SELF) - cpuStart) / (wall.nsecsElapsed() / 1e9);
    figures.pictures = pictures;

    std::vector<double> seeks;
    for (double target : {2.0, 8.0, 4.5, 11.0, 1.0}) {
        const int before = pictures;
        QElapsedTimer timer;
        timer.start();
        engine.seek(target);
        while (pictures == before && timer.elapsed() < 5000)
            QThread::usleep(200);
        seeks.push_back(timer.nsecsElapsed() / 1e6);
        QThread::msleep(300);
    }
    std::sort(seeks.begin(), seeks.end());
    figures.seekMs = seeks[seeks.size() / 2];
    engine.stop();
    return figures;
}

double ffmpegPercent(const QString &source)
{
    const double before = cpuSeconds(RUSAGE_CHILDREN);
    QElapsedTimer wall;
    wall.start();
    run(QStringLiteral("ffmpeg"), {QStringLiteral("-v"), QStringLiteral("error"),
                                   QStringLiteral("-re"), QStringLiteral("-t"),
                                   QString::number(playSeconds), QStringLiteral("-i"), source,
                                   QStringLiteral("-f"), QStringLiteral("null"), QStringLiteral("-")});
    return 100.0 * (cpuSeconds(RUSAGE_CHILDREN) - before) / (wall.nsecsElapsed() / 1e9);
}

// Milliseconds per edited picture, median of 50, on the player's picture at 5 s.
double editedMs(const QString &path, const TitleSelection &title, const QString &subtitle)
{
    FFPlayer *player = FFPlayer::instance();
    bool shown = false;
    const auto connection = QObject::connect(player, &FFPlayer::videoChanged, [&] { shown = true; });
    if (title.pgc >= 0)
        player->setAudioTrack(0);
    player->open(path, QString(), title.pgc);
    player->seek(5.0);
    player->playPause();
    QElapsedTimer wait;
    wait.start();
    while (!shown && wait.elapsed() < 10000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    player->playPause();
    QThread::msleep(200);
    QObject::disconnect(connection);
    player->setPictureAdjust(10, 20, 30);
    player->setEffects({2, 18});
    player->setSubtitleStyle(-1, subtitle, QFont(QStringLiteral("DejaVu Sans"), 24), Qt::white,
                             0, 90);
    std::vector<double> times;
    for (int i = 0; i < 50; ++i) {
        QElapsedTimer timer;
        timer.start();
        if (player->outputImage().isNull())
            return -1.0;
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    player->stop();
    player->setPictureAdjust(0, 0, 0);
    player->setEffects({});
    player->setSubtitle(-1, QString());
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

int main(int argc, char **argv)
{
    // Fonts want the GUI side, though nothing is shown.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QTemporaryDir dir;
    const QString mpeg = dir.filePath(QStringLiteral("title.mpg"));
    const QString hd = dir.filePath(QStringLiteral("hd.mp4"));
    std::printf("making the sources...\n");
    // A moving, noisy picture, so that the decoders have real work.
    if (!run(QStringLiteral("ffmpeg"),
             {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
              QStringLiteral("lavfi"), QStringLiteral("-i"),
              QStringLiteral("testsrc2=s=720x576:r=25:d=20,noise=alls=12:allf=t"),
              QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
              QStringLiteral("sine=f=440:r=48000:d=20"), QStringLiteral("-target"),
              QStringLiteral("pal-dvd"), QStringLiteral("-b:v"), QStringLiteral("6000k"), mpeg})
        || !run(QStringLiteral("ffmpeg"),
                {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
                 QStringLiteral("lavfi"), QStringLiteral("-i"),
                 QStringLiteral("testsrc2=s=1920x1080:r=25:d=20,noise=alls=12:allf=t"),
                 QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                 QStringLiteral("sine=f=440:r=48000:d=20"), QStringLiteral("-c:v"),
                 QStringLiteral("libx264"), QStringLiteral("-preset"), QStringLiteral("veryfast"),
                 QStringLiteral("-b:v"), QStringLiteral("8000k"), QStringLiteral("-c:a"),
                 QStringLiteral("aac"), hd})) {
        std::fprintf(stderr, "ffmpeg could not make the sources\n");
        return 1;
    }
    QFile xml(dir.filePath(QStringLiteral("disc.xml")));
    xml.open(QIODevice::WriteOnly);
    xml.write("<dvdauthor dest=\"disc\"><vmgm/><titleset><titles><video format=\"pal\"/>"
              "<pgc><vob file=\"title.mpg\"/></pgc></titles></titleset></dvdauthor>");
    xml.close();
    QProcess dvdauthor;
    dvdauthor.setWorkingDirectory(dir.path());
    dvdauthor.setProcessEnvironment([] {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("VIDEO_FORMAT"), QStringLiteral("PAL"));
        return environment;
    }());
    dvdauthor.start(QStringLiteral("dvdauthor"), {QStringLiteral("-x"), xml.fileName()});
    if (!dvdauthor.waitForFinished(-1) || dvdauthor.exitCode() != 0) {
        std::fprintf(stderr, "dvdauthor failed\n");
        return 1;
    }
    TitleSelection title;
    title.pgc = 0;
    title.audioTrack = 0;
    const QString ifo = dir.filePath(QStringLiteral("disc/VIDEO_TS/VTS_01_0.IFO"));

    struct Row
    {
        const char *name;
        QString path;
        TitleSelection title;
        QString plain; // what ffmpeg reads for the comparison
    };
    for (const Row &row : {Row{"PAL DVD title", ifo, title, mpeg}, Row{"1080p H.264", hd, {}, hd}}) {
        const Figures figures = play(row.path, row.title);
        std::printf("%-14s engine %5.1f%% of a core (%d pictures in %d s), ffmpeg -re %5.1f%%, "
                    "seek to first picture %.0f ms (median of 5), peak resident %ld MB\n",
                    row.name, figures.cpuPercent, figures.pictures, playSeconds,
                    ffmpegPercent(row.plain), figures.seekMs, figures.peakKiB / 1024);
    }
    QFile words(dir.filePath(QStringLiteral("words.srt")));
    words.open(QIODevice::WriteOnly);
    words.write("1\n00:00:01,000 --> 00:00:19,000\nA line of subtitle text\n\n");
    words.close();
    std::printf("edited picture (values, oil painting and soften, a subtitle): PAL %.1f ms, "
                "1080p %.1f ms (median of 50)\n",
                editedMs(ifo, title, words.fileName()), editedMs(hd, {}, words.fileName()));
    return 0;
}
