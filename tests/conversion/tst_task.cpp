#include "profilelookup.h"
#include "task.h"
#include "utils.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

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

class OneProfile : public ProfileLookup
{
public:
    QString profileFileName(const QString &groupId, const QString &id) const override
    {
        return groupId == QLatin1String("3") && id == QLatin1String("7") ? QStringLiteral("avi.xml")
                                                                         : QString();
    }
    QString profileExtName(const QString &groupId, const QString &id) const override
    {
        return groupId == QLatin1String("3") && id == QLatin1String("7") ? QStringLiteral("avi")
                                                                         : QString();
    }
};

} // namespace

class TestTask : public QObject
{
    Q_OBJECT

private slots:
    void prepareFrame_data()
    {
        QTest::addColumn<QSize>("source");
        QTest::addColumn<bool>("hasVideo");
        QTest::addColumn<double>("aspect"); // display aspect of the source, 0: its pixels
        QTest::addColumn<QRect>("crop");    // left, top, right, bottom
        QTest::addColumn<QString>("zoom");
        QTest::addColumn<QString>("size");
        QTest::addColumn<QRect>("pads"); // left, top, right, bottom
        QTest::addColumn<QSize>("inner");

        const QRect none(0, 0, 0, 0);
        QTest::newRow("keep original, bars above and below")
            << QSize(720, 480) << true << 0.0 << QRect(8, 8, 8, 8) << "Keep Original"
            << "640*480" << QRect(0, 28, 0, 30) << QSize(640, 422);
        QTest::newRow("full screen") << QSize(720, 480) << true << 0.0 << none << "Full Screen"
                                     << "640*480" << none << QSize(640, 480);
        QTest::newRow("full screen, odd output")
            << QSize(720, 480) << true << 0.0 << none << "Full Screen"
            << "321*241" << none << QSize(321, 241);
        QTest::newRow("16:9 into 4:3") << QSize(720, 576) << true << 0.0 << none << "16:9"
                                       << "640*480" << QRect(0, 60, 0, 60) << QSize(640, 360);
        QTest::newRow("4:3 into 16:9") << QSize(720, 576) << true << 0.0 << none << "4:3"
                                       << "1280*720" << QRect(160, 0, 160, 0) << QSize(960, 720);
        QTest::newRow("odd bars left and right")
            << QSize(640, 480) << true << 0.0 << none << "Keep Original"
            << "854*480" << QRect(108, 0, 106, 0) << QSize(640, 480);
        QTest::newRow("odd bars above and below")
            << QSize(640, 360) << true << 0.0 << none << "Keep Original"
            << "640*502" << QRect(0, 70, 0, 72) << QSize(640, 360);
        QTest::newRow("ratio equal to the output's")
            << QSize(640, 480) << true << 0.0 << none << "Keep Original"
            << "320*240" << none << QSize(320, 240);
        QTest::newRow("crop leaves less than 16 pixels")
            << QSize(64, 48) << true << 0.0 << QRect(30, 0, 30, 0) << "Keep Original"
            << "640*480" << QRect(240, 0, 240, 0) << QSize(160, 480);
        QTest::newRow("size from the source")
            << QSize(720, 576) << true << 4.0 / 3.0 << none << "Keep Original"
            << "Auto(Same as source)" << none << QSize(768, 576);
        // Pixels that are not square keep the picture's shape, cropped too.
        QTest::newRow("wide pixels, bars above and below")
            << QSize(720, 576) << true << 16.0 / 9.0 << none << "Keep Original"
            << "640*480" << QRect(0, 60, 0, 60) << QSize(640, 360);
        QTest::newRow("wide pixels cropped")
            << QSize(720, 576) << true << 16.0 / 9.0 << QRect(45, 0, 45, 0) << "Keep Original"
            << "640*480" << QRect(0, 34, 0, 34) << QSize(640, 412);
        QTest::newRow("narrow pixels, bars left and right")
            << QSize(720, 576) << true << 4.0 / 3.0 << none << "Keep Original"
            << "1280*720" << QRect(160, 0, 160, 0) << QSize(960, 720);
        QTest::newRow("no video input") << QSize(0, 0) << false << 0.0 << none << "Keep Original"
                                        << "640*480" << none << QSize(640, 480);
        QTest::newRow("no video input, tiny output")
            << QSize(0, 0) << false << 0.0 << none << "Keep Original"
            << "8*8" << none << QSize(16, 16);
    }

    void prepareFrame()
    {
        QFETCH(QSize, source);
        QFETCH(bool, hasVideo);
        QFETCH(double, aspect);
        QFETCH(QRect, crop);
        QFETCH(QString, zoom);
        QFETCH(QString, size);
        QFETCH(QRect, pads);
        QFETCH(QSize, inner);

        Task task;
        task.output.settings.insert(QStringLiteral("s"), size);
        auto child = videoInput(source.width(), source.height());
        child->hasVideo = hasVideo;
        child->displayAspect = aspect;
        EditParameters &edit = child->edit;
        edit.cropLeft = crop.x();
        edit.cropTop = crop.y();
        edit.cropRight = crop.width();
        edit.cropBottom = crop.height();
        edit.zoomMode = zoom;
        task.items.push_back(std::move(child));

        task.prepareFrame(0);
        QCOMPARE(QRect(edit.padLeft, edit.padTop, edit.padRight, edit.padBottom), pads);
        QCOMPARE(QSize(edit.innerWidth, edit.innerHeight), inner);
        QCOMPARE(edit.padLeft % 2, 0);
        QCOMPARE(edit.padTop % 2, 0);
        if (hasVideo && zoom != QLatin1String("Full Screen")) {
            QCOMPARE(edit.padLeft + edit.innerWidth + edit.padRight, task.outputSize().width());
            QCOMPARE(edit.padTop + edit.innerHeight + edit.padBottom, task.outputSize().height());
        }
    }

    void prepareFrameReplacesOldBars()
    {
        Task task;
        task.output.settings.insert(QStringLiteral("s"), QStringLiteral("1280*720"));
        task.items.push_back(videoInput(720, 576));
        EditParameters &edit = task.items[0]->edit;
        edit.zoomMode = QStringLiteral("16:9");
        edit.padTop = edit.padBottom = 50;
        task.prepareFrame(0);
        QCOMPARE(QRect(edit.padLeft, edit.padTop, edit.padRight, edit.padBottom), QRect());
        QCOMPARE(QSize(edit.innerWidth, edit.innerHeight), QSize(1280, 720));
        task.prepareFrame(5); // no such input: nothing happens
    }

    void outputSize_data()
    {
        QTest::addColumn<QString>("size");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("audio only") << QString() << QSize(0, 0);
        QTest::newRow("plain") << "640*480" << QSize(640, 480);
        QTest::newRow("with a label") << "320*240(QVGA)" << QSize(320, 240);
        QTest::newRow("auto, 16:9 source") << "Auto" << QSize(1024, 576);
        QTest::newRow("auto with a label") << "Auto(Original)" << QSize(1024, 576);
        QTest::newRow("x between the sides") << " 320x240 " << QSize(320, 240);
        // No usable size: no picture size at all rather than a wrong one.
        QTest::newRow("zero") << "0*240" << QSize(0, 0);
        QTest::newRow("negative") << "-320x240" << QSize(0, 0);
        QTest::newRow("beyond an integer") << "99999999999x2" << QSize(0, 0);
        QTest::newRow("larger than any screen") << "20000x20000" << QSize(0, 0);
        QTest::newRow("not a size") << "big" << QSize(0, 0);
    }

    void outputSize()
    {
        QFETCH(QString, size);
        QFETCH(QSize, expected);
        Task task;
        if (!size.isEmpty())
            task.output.settings.insert(QStringLiteral("s"), size);
        auto child = videoInput(720, 576);
        child->displayAspect = 16.0 / 9.0;
        task.items.push_back(std::move(child));
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
        QCOMPARE(task.value(QStringLiteral("missing")), QString());
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
        QCOMPARE(task.totalDurationText(true), Utils::durationText(100.0));
        QCOMPARE(task.trimmedDuration(), 50.0);
        QCOMPARE(task.trimmedDurationText(), Utils::durationText(50.0));
        QCOMPARE(task.convertDuration(), 40.0);
        QCOMPARE(task.items[0]->trimmedText(), Utils::durationText(30.0));
        QVERIFY(task.hasVideoInput());
    }

    void children()
    {
        Task task;
        auto source = videoInput(320, 240);
        source->sourcePath = QStringLiteral("/video/a.mkv");
        QCOMPARE(task.appendItem(*source), 1000);
        source->sourcePath = QStringLiteral("/video/b.mkv");
        QCOMPARE(task.appendItem(*source), 1001);
        source->sourcePath = QStringLiteral("/video/c.mkv");
        QCOMPARE(task.appendItem(*source), 1002);
        QCOMPARE(task.item(0)->owner, &task);
        QVERIFY(task.item(0) != source.get());

        // Contents and ids move together.
        QCOMPARE(task.moveItemUp(2), 0);
        QCOMPARE(task.item(1)->id, 1002);
        QCOMPARE(task.item(1)->sourcePath, QStringLiteral("/video/c.mkv"));
        QCOMPARE(task.item(2)->id, 1001);
        QCOMPARE(task.moveItemDown(0), 0);
        QCOMPARE(task.displayPath(0), QStringLiteral("/video/c.mkv"));
        QCOMPARE(task.moveItemUp(3), -1);
        QCOMPARE(task.moveItemDown(-1), -1);

        QCOMPARE(task.indexOfItem(task.itemById(1001)), 2);
        QVERIFY(!task.itemById(7));
        QCOMPARE(task.indexOfItem(source.get()), -1);

        // Ids are not given twice.
        task.removeItem(2);
        task.removeItem(9);
        QCOMPARE(task.itemCount(), 2);
        QCOMPARE(task.appendItem(*source), 1003);

        QVERIFY(task.isChecked());
        task.setChecked(false, 1);
        QVERIFY(!task.isChecked(1));
        QVERIFY(task.isChecked(0));
        QVERIFY(task.isChecked());
        QVERIFY(!task.isChecked(8));
        task.setChecked(false);
        QVERIFY(!task.isChecked());
        task.name = QStringLiteral("Merge 1");
        QCOMPARE(task.displayPath(), QStringLiteral("Merge 1"));
        QCOMPARE(task.displayPath(9), QString());
    }

    void outputName()
    {
        Task task;
        task.output.profileKey = QStringLiteral("3,7");
        task.setOutputBaseName(QStringLiteral("holiday"), OneProfile());
        QCOMPARE(task.output.fileName, QStringLiteral("holiday.avi"));
        task.output.profileKey = QStringLiteral("9,9");
        task.setOutputBaseName(QStringLiteral("holiday"), OneProfile());
        QCOMPARE(task.output.fileName, QStringLiteral("holiday"));
    }

    void thumbnails()
    {
        Task task;
        QVERIFY(task.thumbnail(1000).isNull());
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(Qt::red);
        task.setThumbnail(0, image);
        QCOMPARE(task.thumbnail(0), image);
    }

    void stateResetsTheStopwatch()
    {
        Task task;
        QCOMPARE(task.state, Task::Idle);
        task.start();
        QTest::qSleep(30);
        task.setState(Task::Running);
        QCOMPARE(task.state, Task::Running);
        QVERIFY(!task.isRunning());
        QCOMPARE(task.elapsedMs(), qint64(0));

        task.start();
        QTest::qSleep(30);
        task.setState(Task::Running); // unchanged: the clock runs on
        QVERIFY(task.isRunning());
        QVERIFY(task.elapsedMs() >= 30);
        task.setState(Task::Paused);
        QVERIFY(task.isRunning());
        task.setState(Task::Running); // a resume counts afresh too
        QCOMPARE(task.elapsedMs(), qint64(0));
    }

    void stopwatchFoldsRuns()
    {
        RunTimer timer;
        QCOMPARE(timer.elapsedMs(), qint64(0));
        timer.start();
        QTest::qSleep(20);
        timer.pause();
        const qint64 first = timer.elapsedMs();
        QVERIFY(first >= 20);
        QTest::qSleep(20);
        QCOMPARE(timer.elapsedMs(), first);
        timer.start();
        QTest::qSleep(20);
        QVERIFY(timer.elapsedMs() >= first + 20);
        timer.reset();
        QCOMPARE(timer.elapsedMs(), qint64(0));
        QVERIFY(!timer.isRunning());
    }

    void cloneIsDeep()
    {
        Task task;
        task.id = 4;
        task.state = Task::Succeed;
        task.output.settings.insert(QStringLiteral("b"), QStringLiteral("800"));
        task.appendItem(*videoInput(320, 240));
        task.item(0)->edit.watermark().text = QStringLiteral("mark");
        task.item(0)->edit.addAudioFile(QStringLiteral("/music/a.mp3"));

        const std::unique_ptr<Task> copy = task.clone();
        QCOMPARE(copy->state, Task::Idle);
        QCOMPARE(copy->itemCount(), 1);
        QCOMPARE(copy->item(0)->owner, copy.get());
        QCOMPARE(copy->item(0)->id, 1000);
        QCOMPARE(copy->nextChildId, 1001);
        QCOMPARE(copy->value(QStringLiteral("b")), QStringLiteral("800"));

        EditParameters &edit = copy->item(0)->edit;
        edit.cropLeft = 16;
        edit.watermark().text = QStringLiteral("changed");
        edit.audioTracks[0]->loop = true;
        copy->output.settings.insert(QStringLiteral("b"), QStringLiteral("2000"));
        const EditParameters &original = task.item(0)->edit;
        QCOMPARE(original.cropLeft, 0);
        QCOMPARE(original.watermark().text, QStringLiteral("mark"));
        QVERIFY(!original.audioTracks[0]->loop);
        QCOMPARE(task.value(QStringLiteral("b")), QStringLiteral("800"));
    }

    void resetEdit()
    {
        ChildTask child;
        child.audioStreams.resize(2);
        child.subtitleStreams.resize(1);
        child.addAudioTracks();
        child.addSubtitleTracks();
        QCOMPARE(child.edit.selectedAudioStream(), 0);
        child.edit.trimStart = 3.0;
        child.edit.trimEnd = 8.0;
        child.edit.cropTop = 10;
        child.edit.rotation = 90;
        child.edit.watermark().text = QStringLiteral("mark");
        child.edit.addAudioFile(QStringLiteral("/a.mp3"));
        child.edit.clearAudioSelection();
        child.edit.selectAudio(1);

        child.resetEdit();
        QCOMPARE(child.edit.trimStart, 3.0);
        QCOMPARE(child.edit.trimEnd, 8.0);
        QCOMPARE(child.edit.cropTop, 0);
        QCOMPARE(child.edit.rotation, 0);
        QVERIFY(!child.edit.hasWatermark());
        QCOMPARE(child.edit.audioTracks.size(), size_t(2));
        QCOMPARE(child.edit.subtitles.size(), size_t(1));
        QCOMPARE(child.edit.selectedAudioStream(), 0);
    }

    void removeWatermarkFiles()
    {
        QTemporaryDir temp;
        QVERIFY(temp.isValid());
        const QByteArray oldTemp = qgetenv("TMPDIR");
        qputenv("TMPDIR", QFile::encodeName(temp.path()));

        Task task;
        task.output.settings.insert(QStringLiteral("s"), QStringLiteral("320*240"));
        task.appendItem(*videoInput(320, 240));
        task.appendItem(*videoInput(320, 240));
        EditParameters &marked = task.item(1)->edit;
        marked.watermark().text = QStringLiteral("Kestrove");
        const QSize size = task.outputSize();
        QVERIFY(marked.renderWatermark(size.width(), size.height(),
                                       EditParameters::newWatermarkPath()));
        const QString file = marked.watermarkFile;
        QCOMPARE(QFileInfo(file).absolutePath(),
                 QDir(temp.path()).filePath(QStringLiteral("Watermark")));
        QVERIFY(QFile::exists(file));
        // Entry 1, 1 to 160, 120 of the default watermark.
        QCOMPARE(QImage(file).size(), QSize(160, 120));

        task.removeWatermarkFiles();
        QVERIFY(!QFile::exists(file));
        QVERIFY(marked.watermarkFile.isEmpty());
        QVERIFY(task.item(0)->edit.watermarkFile.isEmpty());
        qputenv("TMPDIR", oldTemp);
    }
};

QTEST_MAIN(TestTask)
#include "tst_task.moc"
