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

// The task ids of the list, in list order.
QList<int> order(const TaskList &list)
{
    QList<int> ids;
    for (int i = 0; i < list.count(); ++i)
        ids.append(list.at(i)->id);
    return ids;
}

QList<QPair<int, int>> ranges(const TaskList &list)
{
    QList<QPair<int, int>> result;
    for (const TaskList::DiscRange &range : list.ranges())
        result.append({range.start, range.end});
    return result;
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

    // Main disc (3 titles), a file, the NTSC disc: rows disc, file, disc.
    void fillMixed(TaskList &list)
    {
        for (int i = 0; i < 3; ++i)
            QVERIFY(list.addTitle(mp4, *mainDisc->titles[size_t(i)], i + 1, 1) >= 0);
        QVERIFY(list.addFile(mp4, fixture(fixtures, "clip.mp4")) >= 0);
        QVERIFY(list.addTitle(mp4, *ntscDisc->titles[0], 4, 2) >= 0);
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
        QVERIFY(task);
        QCOMPARE(task->state, Task::Idle);
        QVERIFY(task->checked);
        QVERIFY(task->name.isEmpty());
        QCOMPARE(task->output.profileKey, mp4);
        QCOMPARE(task->output.profileFile, QStringLiteral("mp4.xml"));
        QCOMPARE(task->output.fileName, QStringLiteral("movie.mp4"));
        QVERIFY(task->output.filePath.isEmpty());
        QCOMPARE(task->itemCount(), 1);
        const ChildTask *child = task->item(0);
        QCOMPARE(child->id, 0);
        QCOMPARE(child->owner, task);
        QCOMPARE(child->title, QStringLiteral("movie"));
        QCOMPARE(child->sourcePath, movie);
        QCOMPARE(child->pgcIndex, -1);
        QVERIFY(!child->isDiscTitle());
        QVERIFY(child->hasVideo);
        QCOMPARE(child->edit.zoomMode, QStringLiteral("Keep Original"));
        QCOMPARE(child->edit.trimStart, 0.0);
        QCOMPARE(child->edit.trimEnd, child->duration);
        QVERIFY(qAbs(child->duration - 3.0) < 0.2);
        // Two audio streams, the first selected; one subtitle stream.
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
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("not a video\n");
        file.close();

        TaskList list(&catalogue);
        QCOMPARE(list.addFile(mp4, dir.filePath(QStringLiteral("missing.mkv"))), -1);
        QCOMPARE(list.addFile(mp4, text), -1);
        QCOMPARE(list.count(), 0);
        // No id was used up.
        QCOMPARE(list.addFile(mp4, fixture(fixtures, "clip.mp4")), 0);

        DvdTitle empty; // no range, no disc
        QCOMPARE(list.addTitle(mp4, empty, 1, 1), -1);
        QCOMPARE(list.count(), 1);
        QVERIFY(list.ranges().empty());
    }

    void titles()
    {
        TaskList list(&catalogue);
        fillMixed(list);
        QCOMPARE(order(list), (QList<int>{0, 1, 2, 3, 4}));
        QCOMPARE(ranges(list), (QList<QPair<int, int>>{{0, 3}, {4, 5}}));

        const ChildTask *first = list.at(0)->item(0);
        QCOMPARE(first->title, QStringLiteral("Title_1"));
        QCOMPARE(list.at(0)->output.fileName, QStringLiteral("Title_1.mp4"));
        QCOMPARE(first->sourcePath, mainDisc->path);
        QCOMPARE(first->pgcIndex, 0);
        QVERIFY(first->isDiscTitle());
        QCOMPARE(first->id, 0);
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
        QCOMPARE(ntsc->sourcePath, ntscDisc->path);

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
        QCOMPARE(ranges(list), (QList<QPair<int, int>>{{0, 3}, {4, 5}, {5, 6}}));
    }

    void sameDiscAfterAFile()
    {
        // A title of the last disc behind a loose task starts a range of its
        // own rather than swallowing the task.
        TaskList list(&catalogue);
        list.addTitle(mp4, *mainDisc->titles[0], 1, 1);
        list.addFile(mp4, fixture(fixtures, "clip.mp4"));
        list.addTitle(mp4, *mainDisc->titles[1], 2, 1);
        QCOMPARE(ranges(list), (QList<QPair<int, int>>{{0, 1}, {2, 3}}));
    }

    void rows_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("range");
        QTest::addColumn<int>("position");
        QTest::newRow("first disc") << 0 << 0 << 0;
        QTest::newRow("loose file") << 1 << -1 << 3;
        QTest::newRow("second disc") << 2 << 1 << 4;
        QTest::newRow("behind the last") << 3 << -1 << -1;
        QTest::newRow("negative") << -1 << -1 << -1;
    }

    void rows()
    {
        QFETCH(int, row);
        QFETCH(int, range);
        QFETCH(int, position);
        TaskList list(&catalogue);
        fillMixed(list);
        QCOMPARE(list.rangeAtRow(row), range);
        QCOMPARE(list.positionAtRow(row), position);
    }

    void rowsOfLooseTasksBehindRanges()
    {
        TaskList list(&catalogue);
        list.addFile(mp4, fixture(fixtures, "clip.mp4"));
        list.addTitle(mp4, *mainDisc->titles[0], 1, 1);
        list.addTitle(mp4, *mainDisc->titles[1], 2, 1);
        list.addFile(mp4, fixture(fixtures, "tone.flac"));
        list.addFile(mp4, fixture(fixtures, "movie.mkv"));
        QCOMPARE(list.positionAtRow(0), 0);
        QCOMPARE(list.positionAtRow(1), 1);
        QCOMPARE(list.positionAtRow(2), 3);
        QCOMPARE(list.positionAtRow(3), 4);
        QCOMPARE(list.positionAtRow(4), -1);
        QCOMPARE(list.rangeAtRow(1), 0);
        QCOMPARE(list.rangeAtRow(2), -1);
    }

    void removeKeepsRanges()
    {
        TaskList list(&catalogue);
        fillMixed(list); // ranges (0,3) (4,5); the file at 3
        list.remove(42);
        QCOMPARE(list.count(), 5);
        list.remove(1); // inside the first range
        QCOMPARE(order(list), (QList<int>{0, 2, 3, 4}));
        QCOMPARE(ranges(list), (QList<QPair<int, int>>{{0, 2}, {3, 4}}));
        list.remove(3); // the loose file
        QCOMPARE(ranges(list), (QList<QPair<int, int>>{{0, 2}, {2, 3}}));
        list.remove(4); // the whole second range
        QCOMPARE(ranges(list), (QList<QPair<int, int>>{{0, 2}}));
        list.remove(0);
        QCOMPARE(ranges(list), (QList<QPair<int, int>>{{0, 1}}));
        list.remove(2);
        QVERIFY(list.ranges().empty());
        QCOMPARE(list.count(), 0);

        // Ids go on counting after a clear.
        fillMixed(list);
        list.clear();
        QCOMPARE(list.count(), 0);
        QVERIFY(list.ranges().empty());
        QCOMPARE(list.addFile(mp4, fixture(fixtures, "clip.mp4")), 10);
    }

    void moveRanges()
    {
        TaskList list(&catalogue);
        for (int i = 0; i < 3; ++i)
            list.addTitle(mp4, *mainDisc->titles[size_t(i)], i + 1, 1);
        list.addTitle(mp4, *ntscDisc->titles[0], 4, 2);
        list.addFile(mp4, fixture(fixtures, "clip.mp4"));

        list.moveRangeUp(2); // the file's row: nothing happens
        list.moveRangeUp(0);
        QCOMPARE(order(list), (QList<int>{0, 1, 2, 3, 4}));

        list.moveRangeUp(1);
        QCOMPARE(order(list), (QList<int>{3, 0, 1, 2, 4}));
        QCOMPARE(ranges(list), (QList<QPair<int, int>>{{0, 1}, {1, 4}}));
        list.moveRangeDown(0);
        QCOMPARE(order(list), (QList<int>{0, 1, 2, 3, 4}));
        QCOMPARE(ranges(list), (QList<QPair<int, int>>{{0, 3}, {3, 4}}));
    }

    void moveTasks()
    {
        TaskList list(&catalogue);
        list.addFile(mp4, fixture(fixtures, "clip.mp4"));
        list.addFile(mp4, fixture(fixtures, "tone.flac"));
        list.addFile(mp4, fixture(fixtures, "movie.mkv"));
        QCOMPARE(list.moveTaskUp(2), 0);
        QCOMPARE(order(list), (QList<int>{0, 2, 1}));
        QCOMPARE(list.moveTaskDown(0), 0);
        QCOMPARE(order(list), (QList<int>{2, 0, 1}));
        QCOMPARE(list.moveTaskUp(7), -1);
        QCOMPARE(list.moveTaskUp(2), -1); // already first
        QCOMPARE(list.moveTaskDown(1), -1);

        QVERIFY(!list.byId(9));
        QVERIFY(!list.at(3));
        QVERIFY(!list.firstInState(Task::Waiting));
        list.byId(0)->setState(Task::Waiting);
        list.byId(1)->setState(Task::Waiting);
        QCOMPARE(list.firstInState(Task::Waiting)->id, 0);
        QCOMPARE(list.firstInState(Task::Idle)->id, 2);
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
        QCOMPARE(ranges(list), (QList<QPair<int, int>>{{0, 1}}));

        Task *copy = list.byId(copyId);
        Task *original = list.byId(0);
        QCOMPARE(copy->state, Task::Idle);
        QCOMPARE(copy->output.fileName, QStringLiteral("Title_1.mp4"));
        QCOMPARE(copy->item(0)->pgcIndex, 0);
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
        QCOMPARE(merged->displayPath(), QStringLiteral("Merge 1"));
        QCOMPARE(merged->output.fileName, QStringLiteral("Merge 1.mp4"));
        QCOMPARE(merged->output.profileFile, QStringLiteral("mp4.xml"));
        QCOMPARE(merged->itemCount(), 0);
        QVERIFY(!merged->hasVideoInput());
        QCOMPARE(merged->totalDuration(false), 0.0);
        QCOMPARE(ranges(list), (QList<QPair<int, int>>{{1, 2}}));

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
        QCOMPARE(list.byId(file)->item(0)->id, 0);

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
