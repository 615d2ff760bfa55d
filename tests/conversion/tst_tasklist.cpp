#include "dvddisc.h"
#include "mediafixtures.h"
#include "profilelookup.h"
#include "tasklist.h"
#include "utils.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

// Two profiles, as the catalogue would answer for them.
class FakeCatalogue : public ProfileLookup
{
public:
    QString profileFileName(const QString &groupId, const QString &id) const override
    {
        return entry(groupId, id).value(0);
    }
    QString profileExtName(const QString &groupId, const QString &id) const override
    {
        return entry(groupId, id).value(1);
    }

private:
    static QStringList entry(const QString &groupId, const QString &id)
    {
        const QString key = groupId + QLatin1Char(',') + id;
        return key == QLatin1String("1,68") ? QStringLiteral("mp4.xml mp4").split(QLatin1Char(' '))
               : key == QLatin1String("0,1000")
                   ? QStringLiteral("user/Mine.xml mkv").split(QLatin1Char(' '))
                   : QStringList();
    }
};

const QString mp4 = QStringLiteral("1,68");

std::unique_ptr<ChildTask> videoInput(int width, int height, double duration = 10.0)
{
    auto child = std::make_unique<ChildTask>();
    child->hasVideo = true;
    child->width = width;
    child->height = height;
    child->duration = duration;
    child->edit.trimEnd = duration;
    return child;
}

// The task ids of the list in list order, and its disc ranges, as text.
QString order(const TaskList &list)
{
    QStringList ids;
    for (int i = 0; i < list.count(); ++i)
        ids << QString::number(list.at(i)->id);
    return ids.join(QLatin1Char(' '));
}

QString ranges(const TaskList &list)
{
    QStringList result;
    for (const TaskList::DiscRange &range : list.ranges())
        result << QStringLiteral("%1-%2").arg(range.start).arg(range.end);
    return result.join(QLatin1Char(' '));
}

} // namespace

// Tasks, and the list that makes them from files and titles.
class TestTaskList : public QObject
{
    Q_OBJECT

private:
    QString fixtures;
    std::unique_ptr<DvdDisc> mainDisc; // titles of PGC 0 (4.8 s), 1 (2.4 s) and 6
    std::unique_ptr<DvdDisc> ntscDisc; // one 16:9 title of 3 s
    FakeCatalogue catalogue;

    // Adds by letters: m0..m2 the main disc's titles, n the NTSC title,
    // c, t, v the clip, the tone and the movie.
    void fill(TaskList &list, const QString &layout)
    {
        for (const QString &what : layout.split(QLatin1Char(' '))) {
            int id = -1;
            if (what.startsWith(QLatin1Char('m'))) {
                const int i = what.mid(1).toInt();
                id = list.addTitle(mp4, *mainDisc->titles[size_t(i)], i + 1, 1);
            } else if (what == QLatin1String("n")) {
                id = list.addTitle(mp4, *ntscDisc->titles[0], 4, 2);
            } else {
                const char *name = what == QLatin1String("c")   ? "clip.mp4"
                                   : what == QLatin1String("t") ? "tone.flac"
                                                                : "movie.mkv";
                id = list.addFile(mp4, fixture(fixtures, name));
            }
            QVERIFY(id >= 0);
        }
    }

private slots:
    void initTestCase()
    {
        fixtures = mediaFixtures();
        QVERIFY2(!fixtures.isEmpty(), "the media fixtures could not be made");
        mainDisc = LoadDvdDisc(fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO"), false);
        ntscDisc = LoadDvdDisc(fixture(fixtures, "dvd-ntsc/VIDEO_TS/VTS_01_0.IFO"), false);
        QVERIFY(mainDisc && mainDisc->titles.size() == 3);
        QVERIFY(ntscDisc && ntscDisc->titles.size() == 1);
    }

    void prepareFrame_data()
    {
        QTest::addColumn<QSize>("source");  // 0x0: no video input
        QTest::addColumn<double>("aspect"); // display aspect of the source, 0: its pixels
        QTest::addColumn<QRect>("crop");    // left, top, right, bottom
        QTest::addColumn<QString>("zoom");
        QTest::addColumn<QString>("size");
        QTest::addColumn<QRect>("pads"); // left, top, right, bottom
        QTest::addColumn<QSize>("inner");
        const QRect no;
        const QString keep = QStringLiteral("Keep Original"), full = QStringLiteral("Full Screen");
        QTest::newRow("keep, bars above and below")
            << QSize(720, 480) << 0.0 << QRect(8, 8, 8, 8) << keep << "640*480"
            << QRect(0, 28, 0, 30) << QSize(640, 422);
        QTest::newRow("full screen")
            << QSize(720, 480) << 0.0 << no << full << "640*480" << no << QSize(640, 480);
        QTest::newRow("full screen, odd output")
            << QSize(720, 480) << 0.0 << no << full << "321*241" << no << QSize(321, 241);
        QTest::newRow("16:9 into 4:3") << QSize(720, 576) << 0.0 << no << "16:9"
                                       << "640*480" << QRect(0, 60, 0, 60) << QSize(640, 360);
        QTest::newRow("4:3 into 16:9") << QSize(720, 576) << 0.0 << no << "4:3"
                                       << "1280*720" << QRect(160, 0, 160, 0) << QSize(960, 720);
        QTest::newRow("16:9 filling 16:9") << QSize(720, 576) << 0.0 << no << "16:9"
                                           << "1280*720" << no << QSize(1280, 720);
        QTest::newRow("odd bars left and right")
            << QSize(640, 480) << 0.0 << no << keep << "854*480" << QRect(108, 0, 106, 0)
            << QSize(640, 480);
        QTest::newRow("odd bars above and below")
            << QSize(640, 360) << 0.0 << no << keep << "640*502" << QRect(0, 70, 0, 72)
            << QSize(640, 360);
        QTest::newRow("ratio of the output")
            << QSize(640, 480) << 0.0 << no << keep << "320*240" << no << QSize(320, 240);
        QTest::newRow("crop leaves less than 16 pixels")
            << QSize(64, 48) << 0.0 << QRect(30, 0, 30, 0) << keep << "640*480"
            << QRect(240, 0, 240, 0) << QSize(160, 480);
        QTest::newRow("size from the source") << QSize(720, 576) << 4.0 / 3.0 << no << keep
                                              << "Auto(Same as source)" << no << QSize(768, 576);
        // Pixels that are not square keep the picture's shape, cropped too.
        QTest::newRow("wide pixels") << QSize(720, 576) << 16.0 / 9.0 << no << keep << "640*480"
                                     << QRect(0, 60, 0, 60) << QSize(640, 360);
        QTest::newRow("wide pixels cropped")
            << QSize(720, 576) << 16.0 / 9.0 << QRect(45, 0, 45, 0) << keep << "640*480"
            << QRect(0, 34, 0, 34) << QSize(640, 412);
        QTest::newRow("narrow pixels") << QSize(720, 576) << 4.0 / 3.0 << no << keep << "1280*720"
                                       << QRect(160, 0, 160, 0) << QSize(960, 720);
        QTest::newRow("no video input")
            << QSize() << 0.0 << no << keep << "640*480" << no << QSize(640, 480);
        QTest::newRow("no video, tiny output")
            << QSize() << 0.0 << no << keep << "8*8" << no << QSize(16, 16);
    }

    void prepareFrame()
    {
        QFETCH(QSize, source);
        QFETCH(double, aspect);
        QFETCH(QRect, crop);
        QFETCH(QString, zoom);
        QFETCH(QString, size);
        QFETCH(QRect, pads);
        QFETCH(QSize, inner);
        Task task;
        task.output.settings.insert(QStringLiteral("s"), size);
        auto child = videoInput(source.width(), source.height());
        child->hasVideo = source.isValid();
        child->displayAspect = aspect;
        EditParameters &edit = child->edit;
        edit.cropLeft = crop.x();
        edit.cropTop = crop.y();
        edit.cropRight = crop.width();
        edit.cropBottom = crop.height();
        edit.zoomMode = zoom;
        edit.padTop = edit.padBottom = edit.padLeft = 50; // bars of an earlier frame go
        task.items.push_back(std::move(child));
        task.prepareFrame(0);
        task.prepareFrame(5); // no such input: nothing happens
        QCOMPARE(QRect(edit.padLeft, edit.padTop, edit.padRight, edit.padBottom), pads);
        QCOMPARE(QSize(edit.innerWidth, edit.innerHeight), inner);
        QCOMPARE(edit.padLeft % 2 + edit.padTop % 2, 0);
        if (source.isValid() && zoom != QLatin1String("Full Screen")) {
            QCOMPARE(edit.padLeft + edit.innerWidth + edit.padRight, task.outputSize().width());
            QCOMPARE(edit.padTop + edit.innerHeight + edit.padBottom, task.outputSize().height());
        }
    }

    void outputSize_data()
    {
        QTest::addColumn<QString>("size");
        QTest::addColumn<QSize>("expected");
        const QSize none(0, 0);
        QTest::newRow("audio only") << QString() << none;
        QTest::newRow("plain") << "640*480" << QSize(640, 480);
        QTest::newRow("with a label") << "320*240(QVGA)" << QSize(320, 240);
        QTest::newRow("auto, 16:9 source") << "Auto" << QSize(1024, 576);
        QTest::newRow("auto with a label") << "Auto(Original)" << QSize(1024, 576);
        QTest::newRow("x between the sides") << " 320x240 " << QSize(320, 240);
        // No usable size: no picture size at all rather than a wrong one.
        for (const char *bad : {"0*240", "-320x240", "99999999999x2", "20000x20000", "big"})
            QTest::newRow(bad) << bad << none;
    }

    void outputSize()
    {
        QFETCH(QString, size);
        QFETCH(QSize, expected);
        Task task;
        if (!size.isEmpty())
            task.output.settings.insert(QStringLiteral("s"), size);
        task.items.push_back(videoInput(720, 576));
        task.items.back()->displayAspect = 16.0 / 9.0;
        QCOMPARE(task.outputSize(), expected);
    }

    void estimatedSize_data()
    {
        QTest::addColumn<QString>("video");
        QTest::addColumn<QString>("audio");
        QTest::addColumn<qint64>("expected");
        // 12.5 s trimmed over two inputs.
        QTest::newRow("both") << "1000"
                              << "128" << qint64(1250000 + 1600000);
        QTest::newRow("same quality") << QString() << "128" << qint64(1600000);
        QTest::newRow("no audio rate") << "800" << QString() << qint64(1000000);
    }

    void estimatedSize()
    {
        QFETCH(QString, video);
        QFETCH(QString, audio);
        QFETCH(qint64, expected);
        Task task;
        task.output.settings.insert(QStringLiteral("b"), video);
        task.output.settings.insert(QStringLiteral("ab"), audio);
        task.items.push_back(videoInput(320, 240, 10.0));
        task.items.back()->edit.trimStart = 2.5;
        task.items.push_back(videoInput(320, 240, 5.0));
        QCOMPARE(task.estimatedSize(), expected);
    }

    void durations()
    {
        Task task;
        QCOMPARE(task.totalDuration(false), 0.0);
        QVERIFY(!task.hasVideoInput());
        task.items.push_back(videoInput(320, 240, 100.0));
        task.items.push_back(videoInput(320, 240, 20.0));
        task.items[0]->edit.trimStart = 10.0;
        task.items[0]->edit.trimEnd = 40.0;
        task.items[0]->edit.convertEnd = 30.0;
        task.items[1]->edit.convertEnd = 20.0;
        task.setChecked(false, 1);
        QCOMPARE(task.totalDuration(false), 120.0);
        QCOMPARE(task.totalDuration(true), 100.0);
        QCOMPARE(task.trimmedDuration(), 50.0);
        QCOMPARE(task.trimmedDurationText(), Utils::durationText(50.0));
        QCOMPARE(task.convertDuration(), 40.0);
        QVERIFY(task.hasVideoInput());
    }

    void children()
    {
        Task task;
        auto source = videoInput(320, 240);
        for (const char *path : {"/video/a.mkv", "/video/b.mkv", "/video/c.mkv"}) {
            source->sourcePath = QLatin1String(path);
            task.appendItem(*source);
        }
        QCOMPARE(task.item(2)->id, 1002);
        QCOMPARE(task.item(0)->owner, &task);
        // Contents and ids move together.
        QCOMPARE(task.moveItemUp(2), 0);
        QCOMPARE(task.item(1)->id, 1002);
        QCOMPARE(task.item(1)->sourcePath, QStringLiteral("/video/c.mkv"));
        QCOMPARE(task.moveItemDown(0), 0);
        QCOMPARE(task.displayPath(0), QStringLiteral("/video/c.mkv"));
        QCOMPARE(task.moveItemUp(3), -1);
        QCOMPARE(task.moveItemDown(-1), -1);
        QCOMPARE(task.indexOfItem(task.itemById(1001)), 2);
        // Ids are not given twice.
        task.removeItem(2);
        task.removeItem(9);
        QCOMPARE(task.itemCount(), 2);
        QCOMPARE(task.appendItem(*source), 1003);

        task.setChecked(false, 1);
        QVERIFY(!task.isChecked(1) && task.isChecked(0) && task.isChecked() && !task.isChecked(8));
        task.setChecked(false);
        QVERIFY(!task.isChecked());
        task.name = QStringLiteral("Merge 1");
        QCOMPARE(task.displayPath(), QStringLiteral("Merge 1"));
        QCOMPARE(task.displayPath(9), QString());
    }

    void outputName()
    {
        Task task;
        task.output.profileKey = mp4;
        task.setOutputBaseName(QStringLiteral("holiday"), catalogue);
        QCOMPARE(task.output.fileName, QStringLiteral("holiday.mp4"));
        task.output.profileKey = QStringLiteral("9,9");
        task.setOutputBaseName(QStringLiteral("holiday"), catalogue);
        QCOMPARE(task.output.fileName, QStringLiteral("holiday"));
    }

    void stateResetsTheStopwatch()
    {
        Task task;
        task.start();
        task.setState(Task::Running);
        QVERIFY(!task.isRunning());
        QCOMPARE(task.elapsedMs(), qint64(0));
        task.start();
        QTest::qSleep(30);
        task.setState(Task::Running); // unchanged: the clock runs on
        QVERIFY(task.elapsedMs() >= 30);
        task.setState(Task::Paused);
        QVERIFY(task.isRunning());
        task.setState(Task::Running); // a resume counts afresh too
        QCOMPARE(task.elapsedMs(), qint64(0));
    }

    void resetEdit()
    {
        ChildTask child;
        child.audioStreams.resize(2);
        child.subtitleStreams.resize(1);
        child.addAudioTracks();
        child.addSubtitleTracks();
        child.edit.trimStart = 3.0;
        child.edit.cropTop = 10;
        child.edit.rotation = 90;
        child.edit.watermark().text = QStringLiteral("mark");
        child.edit.addAudioFile(QStringLiteral("/a.mp3"));
        child.edit.clearAudioSelection();
        child.edit.selectAudio(1);
        child.resetEdit();
        QCOMPARE(child.edit.trimStart, 3.0); // the trim stays
        QCOMPARE(child.edit.cropTop + child.edit.rotation, 0);
        QVERIFY(!child.edit.hasWatermark());
        QCOMPARE(child.edit.audioTracks.size(), size_t(2));
        QCOMPARE(child.edit.subtitles.size(), size_t(1));
        QCOMPARE(child.edit.selectedAudioStream(), 0);
    }

    void files()
    {
        TaskList list(&catalogue);
        const QString movie = fixture(fixtures, "movie.mkv");
        QCOMPARE(list.addFile(mp4, movie), 0);
        QCOMPARE(list.addFile(QStringLiteral("0,1000"), fixture(fixtures, "tone.flac")), 1);
        const Task *task = list.byId(0);
        const ChildTask *child = task->item(0);
        QCOMPARE(child->owner, task);
        QCOMPARE(child->sourcePath, movie);
        QVERIFY(!child->isDiscTitle() && child->hasVideo && !child->edit.anySubtitleSelected());
        QCOMPARE(child->edit.trimEnd, child->duration);
        QVERIFY(qAbs(child->duration - 3.0) < 0.2);
        // Two audio streams, the first selected; one subtitle stream.
        QCOMPARE(QStringList({task->output.profileFile, task->output.fileName, child->title,
                              child->edit.zoomMode, child->edit.audioTracks[1]->text()})
                         .join(QLatin1Char('|'))
                     + QStringLiteral("|%1 %2 %3")
                           .arg(child->edit.audioTracks.size())
                           .arg(child->edit.selectedAudioStream())
                           .arg(child->edit.subtitles.size()),
                 QStringLiteral("mp4.xml|movie.mp4|movie|Keep Original|ac3 (fre)|2 0 1"));

        const Task *tone = list.byId(1);
        QCOMPARE(tone->output.fileName + tone->output.profileFile,
                 QStringLiteral("tone.mkvuser/Mine.xml"));
        QVERIFY(!tone->hasVideoInput());
        QVERIFY(list.ranges().empty());
    }

    void unusableInputs()
    {
        QTemporaryDir dir;
        const QString text = dir.filePath(QStringLiteral("notes.txt"));
        QFile file(text);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("not a video\n") > 0);
        file.close();
        TaskList list(&catalogue);
        QCOMPARE(list.addFile(mp4, dir.filePath(QStringLiteral("missing.mkv"))), -1);
        QCOMPARE(list.addFile(mp4, text), -1);
        DvdTitle empty; // no range, no disc
        QCOMPARE(list.addTitle(mp4, empty, 1, 1), -1);
        QCOMPARE(list.count(), 0);
        // No id was used up.
        QCOMPARE(list.addFile(mp4, fixture(fixtures, "clip.mp4")), 0);
    }

    void titles()
    {
        TaskList list(&catalogue);
        fill(list, QStringLiteral("m0 m1 m2 c n"));
        const ChildTask *first = list.at(0)->item(0);
        const ChildTask *ntsc = list.at(4)->item(0);
        QCOMPARE(first->sourcePath, mainDisc->path);
        QVERIFY(first->isDiscTitle());
        QVERIFY(qAbs(first->edit.trimEnd - 4.8) < 0.05);
        QCOMPARE(first->edit.audioTracks[0]->text(),
                 QStringLiteral("AC3 (%1)").arg(mainDisc->titles[0]->audioNames[0]));
        QCOMPARE(first->edit.subtitles[0]->text(), mainDisc->titles[0]->subtitleNames[0]);
        QCOMPARE(QStringList({first->title, list.at(0)->output.fileName, first->edit.zoomMode,
                              list.at(2)->item(0)->title, ntsc->title, ntsc->edit.zoomMode})
                         .join(QLatin1Char('|'))
                     + QStringLiteral("|%1 %2 %3 %4")
                           .arg(first->edit.audioTracks.size())
                           .arg(first->edit.subtitles.size())
                           .arg(list.at(1)->item(0)->pgcIndex)
                           .arg(list.at(2)->item(0)->pgcIndex),
                 QStringLiteral("Title_1|Title_1.mp4|4:3|Title_3|Title_4|16:9|2 1 1 6"));

        // A title of another aspect keeps the picture as it is.
        DvdDisc wide;
        wide.path = mainDisc->path;
        wide.width = 720;
        wide.height = 576;
        wide.aspect = 1.85;
        DvdTitle title;
        title.disc = &wide;
        title.range = std::make_unique<DvdChapter>();
        title.range->end = 2.0;
        const int id = list.addTitle(mp4, title, 5, 3);
        QCOMPARE(list.byId(id)->item(0)->edit.zoomMode, QStringLiteral("Keep Original"));
        QCOMPARE(ranges(list), QStringLiteral("0-3 4-5 5-6"));
    }

    // The rows of the list: a disc's titles make one row, a loose task one.
    void rows_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<QString>("ranges");
        QTest::addColumn<QString>("rowRanges"); // rangeAtRow of rows 0, 1, ...
        QTest::addColumn<QString>("positions"); // positionAtRow of rows 0, 1, ...
        QTest::newRow("disc, file, disc") << "m0 m1 m2 c n"
                                          << "0-3 4-5"
                                          << "0 -1 1 -1"
                                          << "0 3 4 -1";
        // A title of the last disc behind a loose task starts a range of its own.
        QTest::newRow("same disc after a file") << "m0 c m1"
                                                << "0-1 2-3"
                                                << "0 -1 1 -1"
                                                << "0 1 2 -1";
        QTest::newRow("loose tasks around a disc") << "c m0 m1 t v"
                                                   << "1-3"
                                                   << "-1 0 -1 -1 -1"
                                                   << "0 1 3 4 -1";
    }

    void rows()
    {
        QFETCH(QString, layout);
        QFETCH(QString, ranges);
        QFETCH(QString, rowRanges);
        QFETCH(QString, positions);
        TaskList list(&catalogue);
        fill(list, layout);
        QCOMPARE(::ranges(list), ranges);
        QStringList range, position;
        for (int row = 0; row < rowRanges.count(QLatin1Char(' ')) + 1; ++row) {
            range << QString::number(list.rangeAtRow(row));
            position << QString::number(list.positionAtRow(row));
        }
        QCOMPARE(range.join(QLatin1Char(' ')), rowRanges);
        QCOMPARE(position.join(QLatin1Char(' ')), positions);
        QCOMPARE(list.rangeAtRow(-1) + list.positionAtRow(-1), -2);
    }

    void removeKeepsRanges()
    {
        TaskList list(&catalogue);
        fill(list, QStringLiteral("m0 m1 m2 c n")); // ranges 0-3 4-5; the file at 3
        list.remove(42);
        QCOMPARE(list.count(), 5);
        list.remove(1); // inside the first range
        QCOMPARE(order(list), QStringLiteral("0 2 3 4"));
        QCOMPARE(ranges(list), QStringLiteral("0-2 3-4"));
        list.remove(3); // the loose file
        QCOMPARE(ranges(list), QStringLiteral("0-2 2-3"));
        list.remove(4); // the whole second range
        QCOMPARE(ranges(list), QStringLiteral("0-2"));
        list.remove(0);
        QCOMPARE(ranges(list), QStringLiteral("0-1"));
        list.remove(2);
        QCOMPARE(ranges(list) + order(list), QString());
        // Ids go on counting after a clear.
        fill(list, QStringLiteral("m0 m1 m2 c n"));
        list.clear();
        QCOMPARE(ranges(list) + order(list), QString());
        QCOMPARE(list.addFile(mp4, fixture(fixtures, "clip.mp4")), 10);
    }

    void moves()
    {
        TaskList list(&catalogue);
        fill(list, QStringLiteral("m0 m1 m2 n c"));
        list.moveRangeUp(2); // the file's row: nothing happens
        list.moveRangeUp(0);
        QCOMPARE(order(list), QStringLiteral("0 1 2 3 4"));
        list.moveRangeUp(1);
        QCOMPARE(order(list), QStringLiteral("3 0 1 2 4"));
        QCOMPARE(ranges(list), QStringLiteral("0-1 1-4"));
        list.moveRangeDown(0);
        QCOMPARE(order(list), QStringLiteral("0 1 2 3 4"));
        QCOMPARE(ranges(list), QStringLiteral("0-3 3-4"));

        TaskList files(&catalogue);
        fill(files, QStringLiteral("c t v"));
        QCOMPARE(files.moveTaskUp(2), 0);
        QCOMPARE(order(files), QStringLiteral("0 2 1"));
        QCOMPARE(files.moveTaskDown(0), 0);
        QCOMPARE(order(files), QStringLiteral("2 0 1"));
        QCOMPARE(files.moveTaskUp(7), -1);
        QCOMPARE(files.moveTaskUp(2), -1); // already first
        QCOMPARE(files.moveTaskDown(1), -1);
        QVERIFY(!files.firstInState(Task::Waiting));
        files.byId(0)->setState(Task::Waiting);
        files.byId(1)->setState(Task::Waiting);
        QCOMPARE(files.firstInState(Task::Waiting)->id, 0);
        QCOMPARE(files.firstInState(Task::Idle)->id, 2);
    }

    void clones()
    {
        TaskList list(&catalogue);
        list.addTitle(mp4, *mainDisc->titles[0], 1, 1);
        list.byId(0)->setState(Task::Succeed);
        list.byId(0)->item(0)->edit.watermark().text = QStringLiteral("mark");
        QCOMPARE(list.clone(9), -1);
        const int copyId = list.clone(0);
        QCOMPARE(copyId, 1);
        QCOMPARE(ranges(list), QStringLiteral("0-1"));

        Task *copy = list.byId(copyId);
        Task *original = list.byId(0);
        QCOMPARE(copy->state, Task::Idle);
        QCOMPARE(copy->item(0)->owner, copy);
        QCOMPARE(copy->output.fileName + copy->item(0)->edit.watermark().text,
                 QStringLiteral("Title_1.mp4mark"));

        EditParameters &edit = copy->item(0)->edit;
        edit.cropLeft = 8;
        edit.zoomMode = QStringLiteral("Full Screen");
        edit.watermark().text = QStringLiteral("other");
        edit.subtitles[0]->color = Qt::yellow;
        edit.selectAudio(1);
        copy->output.settings.insert(QStringLiteral("s"), QStringLiteral("640*480"));
        const EditParameters &kept = original->item(0)->edit;
        QCOMPARE(QStringLiteral("%1 %2 %3 %4 %5 [%6]")
                     .arg(kept.cropLeft)
                     .arg(kept.zoomMode, kept.watermark().text, kept.subtitles[0]->color.name())
                     .arg(int(kept.audioTracks[1]->selected))
                     .arg(original->value(QStringLiteral("s"))),
                 QStringLiteral("0 4:3 mark #ffffff 0 []"));

        // Removing the original keeps the copy and the copy stays loose.
        list.remove(0);
        QVERIFY(list.ranges().empty());
        QCOMPARE(list.byId(copyId)->item(0)->edit.watermark().text, QStringLiteral("other"));
    }

    void merges()
    {
        TaskList list(&catalogue);
        const int file = list.addFile(mp4, fixture(fixtures, "clip.mp4"));
        const int title = list.addTitle(mp4, *mainDisc->titles[1], 1, 1);
        const int merge = list.addMerge(mp4);
        Task *merged = list.byId(merge);
        QCOMPARE(QStringList({merged->name, merged->output.fileName, ranges(list)}),
                 QStringLiteral("Merge 1|Merge 1.mp4|1-2").split(QLatin1Char('|')));
        QVERIFY(merged->itemCount() == 0 && !merged->hasVideoInput());

        QCOMPARE(list.addToMerge(file, merge), 1000);
        QCOMPARE(list.addToMerge(title, merge), 1001);
        QCOMPARE(list.addToMerge(77, merge), -1);
        QCOMPARE(list.addToMerge(file, 77), -1);
        QCOMPARE(list.count(), 3); // the sources stay
        QCOMPARE(merged->itemCount(), 2);
        QCOMPARE(merged->item(0)->owner, merged);
        QCOMPARE(merged->item(1)->pgcIndex, 1);
        QVERIFY(merged->hasVideoInput());
        QCOMPARE(merged->totalDuration(false),
                 list.byId(file)->totalDuration(false) + list.byId(title)->totalDuration(false));

        merged->item(0)->edit.trimStart = 1.0;
        merged->item(0)->edit.watermark().text = QStringLiteral("merged");
        QCOMPARE(list.byId(file)->item(0)->edit.trimStart, 0.0);
        QVERIFY(!list.byId(file)->item(0)->edit.hasWatermark());

        merged->removeItem(1);
        QCOMPARE(list.addToMerge(title, merge), 1002);
        QCOMPARE(list.byId(list.addMerge(mp4))->name, QStringLiteral("Merge 2"));
        QCOMPARE(list.nextMergeName(), QStringLiteral("Merge 3"));
    }

    void applyToAll_data()
    {
        QTest::addColumn<bool>("crop");
        QTest::addColumn<bool>("image");
        QTest::addColumn<bool>("watermark");
        QTest::newRow("crop") << true << false << false;
        QTest::newRow("image") << false << true << false;
        QTest::newRow("watermark") << false << false << true;
        QTest::newRow("all three") << true << true << true;
    }

    void applyToAll()
    {
        QFETCH(bool, crop);
        QFETCH(bool, image);
        QFETCH(bool, watermark);
        TaskList list(&catalogue);
        const int title = list.addTitle(mp4, *mainDisc->titles[0], 1, 1);   // 720x576
        const int small = list.addFile(mp4, fixture(fixtures, "clip.mp4")); // 160x120
        const int merge = list.addMerge(mp4);
        list.addToMerge(title, merge);
        list.addToMerge(small, merge);

        ChildTask &edited = *list.byId(title)->item(0);
        EditParameters &values = edited.edit;
        values.cropLeft = 100;
        values.cropRight = 50;
        values.cropTop = 20;
        values.cropBottom = 20;
        values.zoomMode = QStringLiteral("Full Screen");
        values.brightness = 25;
        values.setEffectEnabled(5, true);
        values.watermark().text = QStringLiteral("mark");
        const QUuid editedId = values.watermark().id;
        list.applyToAll(edited, crop, image, watermark);

        const std::vector<const ChildTask *> others{
            list.byId(small)->item(0), list.byId(merge)->item(0), list.byId(merge)->item(1)};
        for (const ChildTask *child : others) {
            const EditParameters &edit = child->edit;
            const bool wide = child->width > 166; // wider than the cut and 16
            const bool high = child->height > 56; // higher than the cut and 16
            QCOMPARE(edit.cropLeft, crop && wide ? 100 : 0);
            QCOMPARE(edit.cropRight, crop && wide ? 50 : 0);
            QCOMPARE(edit.cropTop, crop && high ? 20 : 0);
            QCOMPARE(edit.zoomMode == QLatin1String("Full Screen"), crop);
            QCOMPARE(edit.brightness, image ? 25 : 0);
            QVERIFY(edit.enabledEffects().empty());
            QCOMPARE(edit.watermark().text, watermark ? QStringLiteral("mark") : QString());
            if (watermark) // a copy of the entry, under a new identity
                QVERIFY(edit.watermark().id != editedId);
        }
        // The small clip keeps its left and right edges, not its top and bottom.
        QCOMPARE(list.byId(small)->item(0)->edit.cropTop, crop ? 20 : 0);
        QCOMPARE(list.byId(small)->item(0)->edit.cropLeft, 0);
        QCOMPARE(values.watermark().id, editedId);
        QCOMPARE(values.enabledEffects(), std::vector<int>{6});
    }

    void commonRoot()
    {
        TaskList list(&catalogue);
        list.addFile(mp4, fixture(fixtures, "clip.mp4"));
        list.updateCommonRoot();
        QCOMPARE(list.commonRootPath(), QDir::cleanPath(fixtures));
        list.addTitle(mp4, *mainDisc->titles[0], 1, 1);
        list.updateCommonRoot();
        QCOMPARE(list.commonRootPath(), QDir::cleanPath(fixtures));

        TaskList discOnly(&catalogue);
        discOnly.addTitle(mp4, *mainDisc->titles[0], 1, 1);
        discOnly.addTitle(mp4, *mainDisc->titles[1], 2, 1);
        discOnly.updateCommonRoot();
        QCOMPARE(discOnly.commonRootPath(), QFileInfo(mainDisc->path).path());
        discOnly.clear();
        discOnly.updateCommonRoot();
        QVERIFY(discOnly.commonRootPath().isEmpty());
    }

    void addedAudioFile()
    {
        TaskList list(&catalogue);
        const int id = list.addFile(mp4, fixture(fixtures, "clip.mp4"));
        EditParameters &edit = list.byId(id)->item(0)->edit;
        const int added = edit.addAudioFile(fixture(fixtures, "tone.flac"));
        AudioStreamInfo stream;
        QVERIFY(EditParameters::loadAudioInfo(*edit.audioTracks[size_t(added)], stream));
        QCOMPARE(stream.codec, QStringLiteral("flac"));
        QCOMPARE(stream.sampleRate, 44100);
        QVERIFY(edit.audioTracks[size_t(added)]->infoLoaded);
        // A file without sound is not taken.
        const int silent = edit.addAudioFile(fixture(fixtures, "picture.png"));
        QVERIFY(!EditParameters::loadAudioInfo(*edit.audioTracks[size_t(silent)], stream));
    }
};

QTEST_MAIN(TestTaskList)
#include "tst_tasklist.moc"
