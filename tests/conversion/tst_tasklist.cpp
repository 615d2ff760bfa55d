#include "dvddisc.h"
#include "mediafixtures.h"
#include "profilelookup.h"
#include "tasklist.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

// Two profiles, as the catalogue would answer for them.
class FakeCatalogue : public ProfileLookup
{
public:
    QString profileFileName(const QString &groupId, const QString &id) const override
    {
        return entry(groupId, id, 0);
    }
    QString profileExtName(const QString &groupId, const QString &id) const override
    {
        return entry(groupId, id, 1);
    }

private:
    static QString entry(const QString &groupId, const QString &id, int field)
    {
        const QString key = groupId + QLatin1Char(',') + id;
        if (key == QLatin1String("1,68"))
            return field ? QStringLiteral("mp4") : QStringLiteral("mp4.xml");
        if (key == QLatin1String("0,1000"))
            return field ? QStringLiteral("mkv") : QStringLiteral("user/Mine.xml");
        return {};
    }
};

const QString mp4 = QStringLiteral("1,68");

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

    void files()
    {
        TaskList list(&catalogue);
        const QString movie = fixture(fixtures, "movie.mkv");
        QCOMPARE(list.addFile(mp4, movie), 0);
        QCOMPARE(list.addFile(QStringLiteral("0,1000"), fixture(fixtures, "tone.flac")), 1);
        const Task *task = list.byId(0);
        QCOMPARE(task->output.profileFile, QStringLiteral("mp4.xml"));
        QCOMPARE(task->output.fileName, QStringLiteral("movie.mp4"));
        const ChildTask *child = task->item(0);
        QCOMPARE(child->owner, task);
        QCOMPARE(child->title, QStringLiteral("movie"));
        QCOMPARE(child->sourcePath, movie);
        QVERIFY(!child->isDiscTitle() && child->hasVideo);
        QCOMPARE(child->edit.zoomMode, QStringLiteral("Keep Original"));
        QCOMPARE(child->edit.trimEnd, child->duration);
        QVERIFY(qAbs(child->duration - 3.0) < 0.2);
        // Two audio streams, the first selected; one subtitle stream, none selected.
        QCOMPARE(child->edit.audioTracks.size(), size_t(2));
        QCOMPARE(child->edit.selectedAudioStream(), 0);
        QCOMPARE(child->edit.audioTracks[1]->text(), QStringLiteral("ac3 (fre)"));
        QCOMPARE(child->edit.subtitles.size(), size_t(1));
        QVERIFY(!child->edit.anySubtitleSelected());

        const Task *tone = list.byId(1);
        QCOMPARE(tone->output.fileName, QStringLiteral("tone.mkv"));
        QCOMPARE(tone->output.profileFile, QStringLiteral("user/Mine.xml"));
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
        QCOMPARE(first->title, QStringLiteral("Title_1"));
        QCOMPARE(list.at(0)->output.fileName, QStringLiteral("Title_1.mp4"));
        QCOMPARE(first->sourcePath, mainDisc->path);
        QVERIFY(first->isDiscTitle());
        QCOMPARE(first->edit.zoomMode, QStringLiteral("4:3"));
        QVERIFY(qAbs(first->edit.trimEnd - 4.8) < 0.05);
        QCOMPARE(first->edit.audioTracks.size(), size_t(2));
        QCOMPARE(first->edit.audioTracks[0]->text(),
                 QStringLiteral("AC3 (%1)").arg(mainDisc->titles[0]->audioNames[0]));
        QCOMPARE(first->edit.subtitles.size(), size_t(1));
        QCOMPARE(first->edit.subtitles[0]->text(), mainDisc->titles[0]->subtitleNames[0]);
        QCOMPARE(list.at(1)->item(0)->pgcIndex, 1);
        QCOMPARE(list.at(2)->item(0)->pgcIndex, 6);
        QCOMPARE(list.at(2)->item(0)->title, QStringLiteral("Title_3"));
        const ChildTask *ntsc = list.at(4)->item(0);
        QCOMPARE(ntsc->title, QStringLiteral("Title_4"));
        QCOMPARE(ntsc->edit.zoomMode, QStringLiteral("16:9"));

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
        QCOMPARE(copy->output.fileName, QStringLiteral("Title_1.mp4"));
        QCOMPARE(copy->item(0)->owner, copy);
        QCOMPARE(copy->item(0)->edit.watermark().text, QStringLiteral("mark"));

        EditParameters &edit = copy->item(0)->edit;
        edit.cropLeft = 8;
        edit.zoomMode = QStringLiteral("Full Screen");
        edit.watermark().text = QStringLiteral("other");
        edit.subtitles[0]->color = Qt::yellow;
        edit.selectAudio(1);
        copy->output.settings.insert(QStringLiteral("s"), QStringLiteral("640*480"));
        const EditParameters &kept = original->item(0)->edit;
        QCOMPARE(kept.cropLeft, 0);
        QCOMPARE(kept.zoomMode, QStringLiteral("4:3"));
        QCOMPARE(kept.watermark().text, QStringLiteral("mark"));
        QCOMPARE(kept.subtitles[0]->color, QColor(Qt::white));
        QVERIFY(!kept.audioTracks[1]->selected);
        QVERIFY(original->value(QStringLiteral("s")).isEmpty());

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
        QCOMPARE(merged->name, QStringLiteral("Merge 1"));
        QCOMPARE(merged->output.fileName, QStringLiteral("Merge 1.mp4"));
        QCOMPARE(merged->itemCount(), 0);
        QVERIFY(!merged->hasVideoInput());
        QCOMPARE(ranges(list), QStringLiteral("1-2"));

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
