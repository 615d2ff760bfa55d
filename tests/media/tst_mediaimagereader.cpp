#include "dvddisc.h"
#include "mediafixtures.h"
#include "mediaimagereader.h"
#include "mediainfo.h"
#include "tasklist.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QThreadPool>

#include <future>
#include <thread>

using Logical::MediaImageReader;

namespace {

const QString profile = QStringLiteral("1,68");

// The mean colour of a picture, as smooth scaling to one pixel gives it.
QColor meanColour(const QImage &image)
{
    return image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
}

// Lets queued jobs end and their results arrive.
void settle()
{
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

QImage filled(Qt::GlobalColor colour)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

} // namespace

class TestMediaImageReader : public QObject
{
    Q_OBJECT

private:
    QString fixtures;
    std::unique_ptr<DvdDisc> disc;
    TaskList list;
    QTemporaryDir dir;
    QImage placeholder = filled(Qt::darkGray);
    QImage audioPlaceholder = filled(Qt::darkGreen);

    MediaImageReader *reader() { return MediaImageReader::instance(); }

    // Threads that delivered imageChanged(taskId) while `wait` runs.
    QList<QThread *> deliveries;

private slots:
    void initTestCase()
    {
        REQUIRE_MEDIA_FIXTURES(fixtures);
        disc = loadDisc(fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO"));
        QVERIFY(disc && disc->titles.size() == 3);
        reader()->setTaskList(&list);
        reader()->setVideoImage(placeholder);
        reader()->setAudioImage(audioPlaceholder);
        QCOMPARE(QThreadPool::globalInstance()->maxThreadCount(), 1);
        connect(reader(), qOverload<int>(&MediaImageReader::imageChanged), this,
                [this](int) { deliveries.append(QThread::currentThread()); });
        connect(reader(), qOverload<int, int>(&MediaImageReader::imageChanged), this,
                [this](int, int) { deliveries.append(QThread::currentThread()); });
    }

    void framesArriveOnGuiThread_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("title"); // -1: a file
        QTest::addColumn<QColor>("colour");
        QTest::newRow("file") << QStringLiteral("movie.mkv") << -1 << QColor();
        QTest::newRow("red title") << QString() << 0 << QColor(Qt::red);
        QTest::newRow("blue title") << QString() << 1 << QColor(Qt::blue);
    }

    void framesArriveOnGuiThread()
    {
        QFETCH(QString, path);
        QFETCH(int, title);
        QFETCH(QColor, colour);
        const int id = title < 0
                           ? list.addFile(profile, fixture(fixtures, path.toUtf8().constData()))
                           : list.addTitle(profile, *disc->titles[size_t(title)], 1, 1);
        QVERIFY(id >= 0);
        Task *task = list.byId(id);
        QSignalSpy changed(reader(), qOverload<int>(&MediaImageReader::imageChanged));
        deliveries.clear();

        reader()->requestImage(id, 1.0, true);
        // The placeholder comes at once, the frame later.
        QCOMPARE(changed.count(), 1);
        QCOMPARE(task->thumbnail(0), placeholder);
        QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 2, 20000);
        QCOMPARE(changed.at(1).at(0).toInt(), id);
        QCOMPARE(deliveries, QList<QThread *>({thread(), thread()}));
        const QImage image = task->thumbnail(0);
        QCOMPARE(image.size(), QSize(96, 72));
        QVERIFY(image != placeholder);
        if (colour.isValid()) {
            const QColor mean = meanColour(image);
            QVERIFY2(qAbs(mean.red() - colour.red()) < 40 && qAbs(mean.blue() - colour.blue()) < 40,
                     qPrintable(mean.name()));
        } else {
            // testsrc2 is many colours, never one flat grey.
            QVERIFY(image.pixel(10, 10) != image.pixel(80, 60)
                    || image.pixel(10, 60) != image.pixel(80, 10));
        }
    }

    void pictureFilesNeedNoJob_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<bool>("asPicture");
        QTest::newRow("small picture") << qint64(0) << true;
        QTest::newRow("one byte under the limit") << qint64(5242879) << true;
        QTest::newRow("exactly the limit") << qint64(5242880) << false;
    }

    void pictureFilesNeedNoJob()
    {
        QFETCH(qint64, size);
        QFETCH(bool, asPicture);
        // A PNG reader stops at the end chunk, so padding behind it keeps the
        // picture readable at any file size.
        const QString path = dir.filePath(QStringLiteral("picture%1.png").arg(size));
        QVERIFY(QFile::copy(fixture(fixtures, "picture.png"), path));
        if (size > 0) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.resize(size));
        }
        // The probe finds no duration in a still picture, so the task is made
        // from a video and then pointed at the picture.
        const int id = list.addFile(profile, fixture(fixtures, "clip.mp4"));
        QVERIFY(id >= 0);
        Task *task = list.byId(id);
        task->items.front()->sourcePath = path;
        QSignalSpy changed(reader(), qOverload<int>(&MediaImageReader::imageChanged));

        reader()->requestImage(id, 1.0, true);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(task->thumbnail(0).size(), QSize(asPicture ? 96 : 8, asPicture ? 72 : 8));
        QCOMPARE(task->thumbnail(0) == placeholder, !asPicture);
        if (asPicture) {
            // Nothing was queued: no second delivery ever comes.
            settle();
            QCOMPARE(changed.count(), 1);
            QImage expected(path);
            QCOMPARE(task->thumbnail(0),
                     expected.scaled(96, 72, Qt::IgnoreAspectRatio, Qt::FastTransformation));
        }
        settle();
    }

    void audioInputGetsItsPicture()
    {
        const int id = list.addFile(profile, fixture(fixtures, "tone.flac"));
        QVERIFY(id >= 0);
        QSignalSpy changed(reader(), qOverload<int>(&MediaImageReader::imageChanged));
        reader()->requestImage(id, 1.0, true);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(list.byId(id)->thumbnail(0), audioPlaceholder);
        // Without a placeholder asked for, nothing at all happens.
        reader()->requestImage(id, 1.0, false);
        settle();
        QCOMPARE(changed.count(), 1);
    }

    void mergedTaskHasOnePicturePerChild()
    {
        const int red = list.addTitle(profile, *disc->titles[0], 1, 1);
        const int blue = list.addTitle(profile, *disc->titles[1], 2, 1);
        const int tone = list.addFile(profile, fixture(fixtures, "tone.flac"));
        const int merge = list.addMerge(profile);
        const int redChild = list.addToMerge(red, merge);
        const int toneChild = list.addToMerge(tone, merge);
        const int blueChild = list.addToMerge(blue, merge);
        QVERIFY(redChild >= 0 && toneChild >= 0 && blueChild >= 0);
        QSignalSpy changed(reader(), qOverload<int, int>(&MediaImageReader::imageChanged));

        reader()->requestImage(merge, 1.0, true);
        QCOMPARE(changed.count(), 3); // three placeholders
        QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 5, 20000);
        Task *task = list.byId(merge);
        QCOMPARE(task->thumbnail(toneChild), audioPlaceholder);
        QVERIFY(meanColour(task->thumbnail(redChild)).red() > 150);
        QVERIFY(meanColour(task->thumbnail(blueChild)).blue() > 150);
        QVERIFY(!task->thumbnails.contains(0));

        // On the merged timeline 5 s lies in the audio-only input, which asks
        // for no frame; with that input unchecked, it lies in the blue title.
        changed.clear();
        reader()->requestImageAt(merge, 5.0, true);
        settle();
        QCOMPARE(changed.count(), 0);
        task->setChecked(false, 1);
        reader()->requestImageAt(merge, 5.0, true);
        QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 1, 20000);
        QCOMPARE(changed.at(0).at(1).toInt(), blueChild);
    }

    // Grabs wait for the playback's lock while the GUI goes on; a task
    // removed meanwhile gets nothing.
    void grabWaitsForMediaLock()
    {
        const int id = list.addFile(profile, fixture(fixtures, "clip.mp4"));
        const int removed = list.addFile(profile, fixture(fixtures, "clip.mp4"));
        QSignalSpy changed(reader(), qOverload<int>(&MediaImageReader::imageChanged));
        LockMedia();
        reader()->requestImage(removed, 0.5, false);
        reader()->requestImage(id, 0.5, true);
        list.remove(removed);
        QTest::qWait(700);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(list.byId(id)->thumbnail(0), placeholder);
        UnlockMedia();
        QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 2, 20000);
        settle();
        QTest::qWait(50);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.at(1).at(0).toInt(), id);
        QVERIFY(list.byId(id)->thumbnail(0) != placeholder);
    }

    void stopEndsAllWork()
    {
        const int queued = list.addFile(profile, fixture(fixtures, "clip.mp4"));
        const int later = list.addFile(profile, fixture(fixtures, "movie.mkv"));
        QSignalSpy changed(reader(), qOverload<int>(&MediaImageReader::imageChanged));
        // A playback on another thread holds the lock for a while, so the job is
        // still waiting when the window stops the reader.
        std::promise<void> locked;
        std::thread player([&locked] {
            LockMedia();
            locked.set_value();
            QThread::msleep(400);
            UnlockMedia();
        });
        locked.get_future().wait();
        reader()->requestImage(queued, 0.5, false);
        reader()->stop();
        player.join();
        reader()->requestImage(later, 0.5, true);
        reader()->requestImage(queued, 0.5, true);
        reader()->requestImageAt(queued, 0.5, false);
        QThreadPool::globalInstance()->waitForDone();
        QTest::qWait(50);
        QCOMPARE(changed.count(), 0);
        QVERIFY(list.byId(later)->thumbnails.isEmpty());
        QVERIFY(list.byId(queued)->thumbnails.isEmpty());
    }
};

QTEST_MAIN(TestMediaImageReader)
#include "tst_mediaimagereader.moc"
