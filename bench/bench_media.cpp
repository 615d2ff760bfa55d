// Times the DVD scan and
// the media probe, on the media that the tests use.

#include "dvddisc.h"
#include "mediainfo.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

// Milliseconds per run.
std::vector<double> timeRuns(int runs, const std::function<bool()> &run)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        if (!run()) {
            std::fprintf(stderr, "run %d failed\n", i);
            return {};
        }
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    return times;
}

bool makeFixtures(const QString &dir)
{
    QProcess script;
    script.setProcessChannelMode(QProcess::ForwardedChannels);
    script.start(QStringLiteral(KESTROVE_MEDIA_FIXTURE_SCRIPT), {dir});
    return script.waitForFinished(120000) && script.exitCode() == 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QString dir = QStringLiteral(KESTROVE_MEDIA_FIXTURES);
    if (!makeFixtures(dir)) {
        std::fprintf(stderr, "the fixture script failed\n");
        return 1;
    }
    const QString disc = QDir(dir).filePath(QStringLiteral("dvd-many"));
    const QString ifo = disc + QStringLiteral("/VIDEO_TS/VTS_01_0.IFO");

    size_t titles = 0;
    const std::vector<double> scan = timeRuns(50, [&] {
        const std::unique_ptr<DvdDisc> result = LoadDvdDisc(ifo, false);
        titles = result ? result->titles.size() : 0;
        return titles > 0;
    });
    if (scan.empty())
        return 1;
    std::printf("scan of %s: %zu titles, median %.3f ms, min %.3f ms (50 runs)\n",
                qPrintable(QDir::toNativeSeparators(ifo)), titles, median(scan),
                *std::min_element(scan.begin(), scan.end()));
    const std::vector<double> discScan
        = timeRuns(50, [&] { return bool(LoadDvdDisc(disc, false)); });
    std::printf("scan of the disc folder (all title sets): median %.3f ms\n", median(discScan));

    const QStringList files
        = {QStringLiteral("movie.mkv"), QStringLiteral("clip.mp4"), QStringLiteral("tone.flac")};
    std::vector<double> all;
    for (const QString &file : files) {
        const QString path = QDir(dir).filePath(file);
        const std::vector<double> probes = timeRuns(200, [&] {
            MediaInfo info;
            return info.Load(path) == 0;
        });
        if (probes.empty())
            return 1;
        all.insert(all.end(), probes.begin(), probes.end());
        std::printf("probe of %s: median %.3f ms (200 runs)\n", qPrintable(file), median(probes));
    }
    std::printf("probe, all files: median %.3f ms per file\n", median(all));

    const std::vector<double> stills
        = timeRuns(50, [&] { return !GetPictureFromVideo(ifo, 0, 1.0).isNull(); });
    if (!stills.empty())
        std::printf("still of DVD title 0 through the title reader: median %.3f ms (50 runs)\n",
                    median(stills));
    return 0;
}
