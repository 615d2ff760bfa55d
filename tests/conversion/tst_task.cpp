#include "profilelookup.h"
#include "task.h"
#include "utils.h"

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
    QString profileFileName(const QString &g, const QString &id) const override
    {
        return g + id == QLatin1String("37") ? QStringLiteral("avi.xml") : QString();
    }
    QString profileExtName(const QString &g, const QString &id) const override
    {
        return g + id == QLatin1String("37") ? QStringLiteral("avi") : QString();
    }
};

} // namespace

class TestTask : public QObject
{
    Q_OBJECT

private slots:
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
        if (source.isValid() && zoom != full()) {
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
        task.output.profileKey = QStringLiteral("3,7");
        task.setOutputBaseName(QStringLiteral("holiday"), OneProfile());
        QCOMPARE(task.output.fileName, QStringLiteral("holiday.avi"));
        task.output.profileKey = QStringLiteral("9,9");
        task.setOutputBaseName(QStringLiteral("holiday"), OneProfile());
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

private:
    static QString full() { return QStringLiteral("Full Screen"); }
};

QTEST_MAIN(TestTask)
#include "tst_task.moc"
