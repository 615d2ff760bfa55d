#include "fixturediscs.h"
#include "utils.h"

#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString mp4 = u"1,68"_s;

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

// The task ids in list order, then the disc ranges.
QString layout(const TaskList &list)
{
    QStringList ids, ranges;
    for (int i = 0; i < list.count(); ++i)
        ids << QString::number(list.at(i)->id);
    for (const TaskList::DiscRange &range : list.ranges())
        ranges << u"%1-%2"_s.arg(range.start).arg(range.end);
    return ids.join(u' ') + u'/' + ranges.join(u' ');
}

} // namespace

// Tasks, and the list that makes them from files and titles.
class TestTaskList : public QObject
{
    Q_OBJECT

private:
    FixtureDiscs discs;
    FixedCatalogue catalogue{
        {{u"1,68"_s, u"mp4.xml mp4"_s}, {u"0,1000"_s, u"user/Mine.xml mkv"_s}}};

    void fill(TaskList &list, const QString &names)
    {
        for (const QString &what : names.split(u' '))
            QVERIFY(discs.add(list, mp4, what) >= 0);
    }

private slots:
    void initTestCase() { discs.load(); }

    void prepareFrame_data()
    {
        // source (- for none), its display aspect (0: its pixels'), crop, zoom and
        // output size = bars and inner size; crop and bars left,top,right,bottom
        QTest::addColumn<QString>("frame");
        for (const char *row :
             {"720x480 0 8,8,8,8 Keep_Original 640*480 = 0|28|0|30|640|422",
              "720x480 0 0 Full_Screen 640*480 = 0|0|0|0|640|480",
              "720x480 0 0 Full_Screen 321*241 = 0|0|0|0|321|241",
              "720x576 0 0 16:9 640*480 = 0|60|0|60|640|360",
              "720x576 0 0 4:3 1280*720 = 160|0|160|0|960|720",
              "720x576 0 0 16:9 1280*720 = 0|0|0|0|1280|720",
              "640x480 0 0 Keep_Original 854*480 = 108|0|106|0|640|480",
              "640x360 0 0 Keep_Original 640*502 = 0|70|0|72|640|360",
              "640x480 0 0 Keep_Original 320*240 = 0|0|0|0|320|240",
              // the crop leaves less than 16 pixels
              "64x48 0 30,0,30,0 Keep_Original 640*480 = 240|0|240|0|160|480",
              "720x576 4/3 0 Keep_Original Auto(Same as source) = 0|0|0|0|768|576",
              // pixels that are not square keep the picture's shape
              "720x576 16/9 0 Keep_Original 640*480 = 0|60|0|60|640|360",
              "720x576 16/9 45,0,45,0 Keep_Original 640*480 = 0|34|0|34|640|412",
              "720x576 4/3 0 Keep_Original 1280*720 = 160|0|160|0|960|720",
              "- 0 0 Keep_Original 640*480 = 0|0|0|0|640|480",
              "- 0 0 Keep_Original 8*8 = 0|0|0|0|16|16"})
            QTest::newRow(row) << QString::fromLatin1(row);
    }

    void prepareFrame()
    {
        QFETCH(QString, frame);
        const QStringList in = frame.section(u" = "_s, 0, 0).split(u' ');
        const QStringList size = in[0].split(u'x'), aspect = in[1].split(u'/'),
                          crop = in[2].split(u',');
        Task task;
        task.output.settings.insert(u"s"_s, in.mid(4).join(u' '));
        auto child = videoInput(size.value(0).toInt(), size.value(1).toInt());
        child->hasVideo = size.size() == 2;
        child->displayAspect = aspect[0].toDouble() / aspect.value(1, u"1"_s).toDouble();
        EditParameters &edit = child->edit;
        int *sides[] = {&edit.cropLeft, &edit.cropTop, &edit.cropRight, &edit.cropBottom};
        for (int side = 0; side < 4; ++side)
            *sides[side] = crop.value(side).toInt();
        edit.zoomMode = QString(in[3]).replace(u'_', u' ');
        edit.padTop = edit.padBottom = edit.padLeft = 50; // bars of an earlier frame go
        task.items.push_back(std::move(child));
        task.prepareFrame(0);
        task.prepareFrame(5); // no such input: nothing happens
        QCOMPARE(joined(edit.padLeft, edit.padTop, edit.padRight, edit.padBottom, edit.innerWidth,
                        edit.innerHeight),
                 frame.section(u" = "_s, 1));
    }

    void outputSize_data()
    {
        // The profile's size (none: audio only) = the picture size; a size that
        // is no usable size gives no picture size at all rather than a wrong one.
        QTest::addColumn<QString>("size");
        for (const char *row :
             {" = 0x0", "640*480 = 640x480", "320*240(QVGA) = 320x240", "Auto = 1024x576",
              "Auto(Original) = 1024x576", " 320x240  = 320x240", "0*240 = 0x0", "-320x240 = 0x0",
              "99999999999x2 = 0x0", "20000x20000 = 0x0", "big = 0x0"})
            QTest::newRow(row) << QString::fromLatin1(row);
    }

    void outputSize()
    {
        QFETCH(QString, size);
        Task task;
        if (!size.startsWith(u" = "_s))
            task.output.settings.insert(u"s"_s, size.section(u" = "_s, 0, 0));
        task.items.push_back(videoInput(720, 576));
        task.items.back()->displayAspect = 16.0 / 9.0;
        const QSize got = task.outputSize();
        QCOMPARE(u"%1x%2"_s.arg(got.width()).arg(got.height()), size.section(u" = "_s, 1));
    }

    void durationsAndSize()
    {
        Task task;
        QCOMPARE(joined(task.totalDuration(false), task.hasVideoInput()), u"0|false"_s);
        task.items.push_back(videoInput(320, 240, 100.0));
        task.items.push_back(videoInput(320, 240, 20.0));
        task.items[0]->edit.trimStart = 10.0;
        task.items[0]->edit.trimEnd = 40.0;
        task.items[0]->edit.convertEnd = 30.0;
        task.items[1]->edit.convertEnd = 20.0;
        task.setChecked(false, 1);
        QCOMPARE(joined(task.totalDuration(false), task.totalDuration(true), task.trimmedDuration(),
                        task.convertDuration(), task.hasVideoInput(), task.trimmedDurationText()),
                 u"120|100|50|40|true|"_s + Utils::durationText(50.0));
        // The 50 s trimmed: both rates; the same quality (no video rate); no audio rate.
        QStringList sizes;
        for (const QString &rates : {u"1000 128"_s, u" 128"_s, u"800 "_s}) {
            task.output.settings.insert(u"b"_s, rates.section(u' ', 0, 0));
            task.output.settings.insert(u"ab"_s, rates.section(u' ', 1));
            sizes << QString::number(task.estimatedSize());
        }
        QCOMPARE(sizes.join(u' '), u"11400000 6400000 4000000"_s);
    }

    void children()
    {
        Task task;
        auto source = videoInput(320, 240);
        for (const char *path : {"/video/a.mkv", "/video/b.mkv", "/video/c.mkv"}) {
            source->sourcePath = QLatin1String(path);
            task.appendItem(*source);
        }
        QCOMPARE(task.item(0)->owner, &task);
        // Contents and ids move together.
        QCOMPARE(task.moveItemUp(2), 0);
        QCOMPARE(joined(task.item(1)->id, task.item(1)->sourcePath), u"1002|/video/c.mkv"_s);
        QCOMPARE(task.moveItemDown(0), 0);
        QCOMPARE(task.displayPath(0), u"/video/c.mkv"_s);
        QCOMPARE(task.moveItemUp(3) + task.moveItemDown(-1), -2);
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
        task.name = u"Merge 1"_s;
        QCOMPARE(task.displayPath() + task.displayPath(9), u"Merge 1"_s);
        task.output.profileKey = mp4;
        task.setOutputBaseName(u"holiday"_s, catalogue);
        const QString known = task.output.fileName;
        task.output.profileKey = u"9,9"_s;
        task.setOutputBaseName(u"holiday"_s, catalogue);
        QCOMPARE(known + u' ' + task.output.fileName, u"holiday.mp4 holiday"_s);
    }

    void stateResetsTheStopwatch()
    {
        Task task;
        task.start();
        task.setState(Task::Running);
        QVERIFY(!task.isRunning() && task.elapsedMs() == 0);
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
        child.edit.watermark().text = u"mark"_s;
        child.edit.addAudioFile(u"/a.mp3"_s);
        child.edit.clearAudioSelection();
        child.edit.selectAudio(1);
        child.resetEdit();
        // The trim stays; the tracks are the streams' again, the first chosen.
        const EditParameters &edit = child.edit;
        QCOMPARE(joined(edit.trimStart, edit.cropTop + edit.rotation, edit.hasWatermark(),
                        edit.audioTracks.size(), edit.subtitles.size(), edit.selectedAudioStream()),
                 u"3|0|false|2|1|0"_s);
    }

    void files()
    {
        QTemporaryDir dir;
        TaskList list(&catalogue);
        QCOMPARE(list.addFile(mp4, dir.filePath(u"missing.mkv"_s)), -1);
        QCOMPARE(list.addFile(mp4, writeFile(dir.filePath(u"notes.txt"_s), "not a video\n")), -1);
        DvdTitle empty; // no range, no disc
        QCOMPARE(list.addTitle(mp4, empty, 1, 1), -1);
        // No id was used up.
        const QString movie = discs.file("movie.mkv");
        QVERIFY(list.addFile(mp4, movie) == 0
                && list.addFile(u"0,1000"_s, discs.file("tone.flac")) == 1);
        const Task *task = list.byId(0), *tone = list.byId(1);
        const ChildTask *child = task->item(0);
        const EditParameters &edit = child->edit;
        QVERIFY(child->owner == task && !child->isDiscTitle() && child->hasVideo);
        QVERIFY(qAbs(child->duration - 3.0) < 0.2 && edit.trimEnd == child->duration);
        // Two audio streams, the first selected; one subtitle stream, not selected.
        QCOMPARE(joined(child->sourcePath, task->output.profileFile, task->output.fileName,
                        child->title, edit.zoomMode, edit.audioTracks[1]->text(),
                        edit.audioTracks.size(), edit.selectedAudioStream(), edit.subtitles.size(),
                        edit.anySubtitleSelected()),
                 movie + u"|mp4.xml|movie.mp4|movie|Keep Original|ac3 (fre)|2|0|1|false"_s);
        QCOMPARE(joined(tone->output.fileName, tone->output.profileFile, tone->hasVideoInput(),
                        layout(list)),
                 u"tone.mkv|user/Mine.xml|false|0 1/"_s);
        list.updateCommonRoot();
        QCOMPARE(list.commonRootPath(), QDir::cleanPath(discs.dir));
        // An added sound file is read; a picture has no sound to read.
        EditParameters &edited = list.byId(0)->item(0)->edit;
        auto &added = *edited.audioTracks[size_t(edited.addAudioFile(discs.file("tone.flac")))];
        AudioStreamInfo stream;
        QVERIFY(EditParameters::loadAudioInfo(added, stream));
        QCOMPARE(joined(stream.codec, stream.sampleRate, added.infoLoaded), u"flac|44100|true"_s);
        const int silent = edited.addAudioFile(discs.file("picture.png"));
        QVERIFY(!EditParameters::loadAudioInfo(*edited.audioTracks[size_t(silent)], stream));
        // Ids go on counting after a clear.
        list.clear();
        list.updateCommonRoot();
        QCOMPARE(layout(list) + list.commonRootPath(), u"/"_s);
        QCOMPARE(list.addFile(mp4, movie), 2);
    }

    void titles()
    {
        TaskList discOnly(&catalogue);
        fill(discOnly, u"m0 m1"_s);
        discOnly.updateCommonRoot();
        QCOMPARE(discOnly.commonRootPath(), QFileInfo(discs.main->path).path());

        TaskList list(&catalogue);
        fill(list, u"m0 m1 m2 clip.mp4 n"_s);
        list.updateCommonRoot();
        QCOMPARE(list.commonRootPath(), QDir::cleanPath(discs.dir));
        const ChildTask *first = list.at(0)->item(0), *ntsc = list.at(4)->item(0);
        const DvdTitle &title0 = *discs.main->titles[0];
        QVERIFY(first->isDiscTitle() && qAbs(first->edit.trimEnd - 4.8) < 0.05);
        QCOMPARE(joined(first->sourcePath, first->edit.audioTracks[0]->text(),
                        first->edit.subtitles[0]->text(), first->title, list.at(0)->output.fileName,
                        first->edit.zoomMode, list.at(2)->item(0)->title, ntsc->title,
                        ntsc->edit.zoomMode, first->edit.audioTracks.size(),
                        first->edit.subtitles.size(), list.at(1)->item(0)->pgcIndex,
                        list.at(2)->item(0)->pgcIndex),
                 joined(discs.main->path, u"AC3 (%1)"_s.arg(title0.audioNames[0]),
                        title0.subtitleNames[0])
                     + u"|Title_1|Title_1.mp4|4:3|Title_3|Title_1|16:9|2|1|1|6"_s);

        // A title of another aspect keeps the picture as it is.
        DvdDisc wide;
        wide.path = discs.main->path;
        wide.width = 720;
        wide.height = 576;
        wide.aspect = 1.85;
        DvdTitle title;
        title.disc = &wide;
        title.range = std::make_unique<DvdChapter>();
        title.range->end = 2.0;
        const int id = list.addTitle(mp4, title, 5, 3);
        QCOMPARE(list.byId(id)->item(0)->edit.zoomMode, u"Keep Original"_s);
        QCOMPARE(layout(list), u"0 1 2 3 4 5/0-3 4-5 5-6"_s);
    }

    // Edits by a script: r removes a task, u and d move a row's range up or
    // down, U and D a task; their answers follow the layout after "=", as do
    // R's rows: rangeAtRow and positionAtRow from row -1 to one past the end.
    void edits_data()
    {
        QTest::addColumn<QString>("script");
        // A disc's titles make one row, a loose task one.
        QTest::newRow("rows: disc, file, disc")
            << u"m0 m1 m2 clip.mp4 n: R = 0 1 2 3 4/0-3 4-5 -1,0,-1,1,-1 -1,0,3,4,-1"_s;
        // A title of the last disc behind a loose task starts a range of its own.
        QTest::newRow("rows: same disc after a file")
            << u"m0 clip.mp4 m1: R = 0 1 2/0-1 2-3 -1,0,-1,1,-1 -1,0,1,2,-1"_s;
        QTest::newRow("rows: loose tasks around a disc")
            << u"clip.mp4 m0 m1 tone.flac movie.mkv: R = 0 1 2 3 4/1-3 -1,-1,0,-1,-1,-1 "
               u"-1,0,1,3,4,-1"_s;
        QTest::newRow("removals keep the ranges")
            << u"m0 m1 m2 clip.mp4 n: r42 r1 = 0 2 3 4/0-2 3-4; r3 = 0 2 4/0-2 2-3; r4 = 0 2/0-2; "
               u"r0 = 2/0-1; r2 = /"_s;
        // The file's row is no range to move.
        QTest::newRow("range moves")
            << u"m0 m1 m2 n clip.mp4: u2 u0 = 0 1 2 3 4/0-3 3-4; u1 = 3 0 1 2 4/0-1 1-4; "
               u"d0 = 0 1 2 3 4/0-3 3-4"_s;
        // An unknown id, the first task up, the last one down.
        QTest::newRow("task moves")
            << u"clip.mp4 tone.flac movie.mkv: U2 = 0 2 1/ 0; D0 = 2 0 1/ 0; "
               u"U7 U2 D1 = 2 0 1/ -1 -1 -1"_s;
    }

    void edits()
    {
        QFETCH(QString, script);
        TaskList list(&catalogue);
        fill(list, script.section(u": "_s, 0, 0));
        for (const QString &step : script.section(u": "_s, 1).split(u"; "_s)) {
            QStringList got{layout(list)};
            for (const QString &op : step.section(u" = "_s, 0, 0).split(u' ')) {
                const int n = op.mid(1).toInt();
                if (op == u"R"_s) {
                    QStringList range, position;
                    for (int row = -1; row < 9 && (row < 1 || position.last() != u"-1"_s); ++row) {
                        range << QString::number(list.rangeAtRow(row));
                        position << QString::number(list.positionAtRow(row));
                    }
                    got << range.join(u',') << position.join(u',');
                } else if (op[0] == u'U' || op[0] == u'D')
                    got << QString::number(op[0] == u'U' ? list.moveTaskUp(n)
                                                         : list.moveTaskDown(n));
                else if (op[0] == u'r')
                    list.remove(n);
                else
                    op[0] == u'u' ? list.moveRangeUp(n) : list.moveRangeDown(n);
            }
            got[0] = layout(list);
            QCOMPARE(got.join(u' '), step.section(u" = "_s, 1));
        }
    }

    void clones()
    {
        TaskList list(&catalogue);
        fill(list, u"m0"_s);
        list.byId(0)->setState(Task::Succeed);
        list.byId(0)->item(0)->edit.watermark().text = u"mark"_s;
        QCOMPARE(list.clone(9), -1);
        const int copyId = list.clone(0);
        QCOMPARE(layout(list), u"0 1/0-1"_s);

        Task *copy = list.byId(copyId);
        Task *original = list.byId(0);
        QVERIFY(!list.firstInState(Task::Waiting));
        QCOMPARE(list.firstInState(Task::Idle), copy);
        QCOMPARE(list.firstInState(Task::Succeed), original);
        QCOMPARE(joined(copy->item(0)->owner == copy, copy->output.fileName,
                        copy->item(0)->edit.watermark().text),
                 u"true|Title_1.mp4|mark"_s);

        EditParameters &edit = copy->item(0)->edit;
        edit.cropLeft = 8;
        edit.zoomMode = u"Full Screen"_s;
        edit.watermark().text = u"other"_s;
        edit.subtitles[0]->color = Qt::yellow;
        edit.selectAudio(1);
        copy->output.settings.insert(u"s"_s, u"640*480"_s);
        const EditParameters &kept = original->item(0)->edit;
        QCOMPARE(joined(kept.cropLeft, kept.zoomMode, kept.watermark().text,
                        kept.subtitles[0]->color.name(), kept.audioTracks[1]->selected,
                        original->value(u"s"_s)),
                 u"0|4:3|mark|#ffffff|false|"_s);

        // Removing the original keeps the copy and the copy stays loose.
        list.remove(0);
        QCOMPARE(layout(list), u"1/"_s);
        QCOMPARE(list.byId(copyId)->item(0)->edit.watermark().text, u"other"_s);
    }

    void merges()
    {
        TaskList list(&catalogue);
        fill(list, u"clip.mp4 m1"_s);
        const int file = 0, title = 1, merge = list.addMerge(mp4);
        Task *merged = list.byId(merge);
        QCOMPARE(
            joined(merged->name, merged->output.fileName, layout(list), merged->hasVideoInput()),
            u"Merge 1|Merge 1.mp4|0 1 2/1-2|false"_s);

        QCOMPARE(list.addToMerge(file, merge), 1000);
        QCOMPARE(list.addToMerge(title, merge), 1001);
        QCOMPARE(list.addToMerge(77, merge) + list.addToMerge(file, 77), -2);
        // The sources stay.
        QCOMPARE(joined(list.count(), merged->itemCount(), merged->item(1)->pgcIndex,
                        merged->hasVideoInput()),
                 u"3|2|1|true"_s);
        QCOMPARE(merged->item(0)->owner, merged);
        QCOMPARE(merged->totalDuration(false),
                 list.byId(file)->totalDuration(false) + list.byId(title)->totalDuration(false));

        merged->item(0)->edit.trimStart = 1.0;
        merged->item(0)->edit.watermark().text = u"merged"_s;
        const EditParameters &source = list.byId(file)->item(0)->edit;
        QVERIFY(source.trimStart == 0.0 && !source.hasWatermark());

        merged->removeItem(1);
        QCOMPARE(list.addToMerge(title, merge), 1002);
        QCOMPARE(list.byId(list.addMerge(mp4))->name, u"Merge 2"_s);
        QCOMPARE(list.nextMergeName(), u"Merge 3"_s);
    }

    void applyToAll_data()
    {
        QTest::addColumn<QString>("parts"); // of crop, image, watermark
        for (const char *parts : {"crop", "image", "watermark", "crop image watermark"})
            QTest::newRow(parts) << QString::fromLatin1(parts);
    }

    void applyToAll()
    {
        QFETCH(QString, parts);
        const bool crop = parts.contains(u"crop"_s), image = parts.contains(u"image"_s),
                   watermark = parts.contains(u"watermark"_s);
        TaskList list(&catalogue);
        fill(list, u"m0 clip.mp4"_s); // 720x576 and 160x120
        const int merge = list.addMerge(mp4);
        list.addToMerge(0, merge);
        list.addToMerge(1, merge);

        ChildTask &edited = *list.byId(0)->item(0);
        EditParameters &values = edited.edit;
        values.cropLeft = 100;
        values.cropRight = 50;
        values.cropTop = values.cropBottom = 20;
        values.zoomMode = u"Full Screen"_s;
        values.brightness = 25;
        values.setEffectEnabled(5, true);
        values.watermark().text = u"mark"_s;
        const QUuid editedId = values.watermark().id;
        list.applyToAll(edited, crop, image, watermark);

        // The small clip keeps its left and right edges, not its top and bottom.
        const QString rest = joined(image ? 25 : 0, 0, watermark ? u"mark"_s : QString());
        const QString clip = crop ? u"0|0|20|true|"_s : u"0|0|0|false|"_s;
        QStringList got;
        for (const ChildTask *child :
             {list.byId(1)->item(0), list.byId(merge)->item(0), list.byId(merge)->item(1)}) {
            const EditParameters &edit = child->edit;
            got << joined(edit.cropLeft, edit.cropRight, edit.cropTop,
                          edit.zoomMode == u"Full Screen"_s, edit.brightness,
                          edit.enabledEffects().size(), edit.watermark().text);
            if (watermark) // a copy of the entry, under a new identity
                QVERIFY(edit.watermark().id != editedId);
        }
        QCOMPARE(got,
                 QStringList({clip + rest, (crop ? u"100|50|20|true|"_s : u"0|0|0|false|"_s) + rest,
                              clip + rest}));
        QCOMPARE(values.watermark().id, editedId);
        QCOMPARE(values.enabledEffects(), std::vector<int>{6});
    }
};

QTEST_MAIN(TestTaskList)
#include "tst_tasklist.moc"
