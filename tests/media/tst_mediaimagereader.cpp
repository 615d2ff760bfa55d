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
using namespace Qt::StringLiterals;

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

    void thumbnails_data()
    {
        QTest::addColumn<QString>("path");   // a fixture, or "title N" of the disc
        QTest::addColumn<qint64>("size");    // the picture made this big and put in its place
        QTest::addColumn<QString>("atOnce"); // "placeholder", "audio" or "picture"
        QTest::addColumn<QColor>("colour");  // of the frame that follows the placeholder
        const auto row = [](const char *name, const char *path, qint64 size, const char *atOnce,
                            QColor colour = {}) {
            QTest::newRow(name) << QString::fromLatin1(path) << size << QString::fromLatin1(atOnce)
                                << colour;
        };
        row("file", "movie.mkv", -1, "placeholder");
        row("red title", "title 0", -1, "placeholder", Qt::red);
        row("blue title", "title 1", -1, "placeholder", Qt::blue);
        row("audio", "tone.flac", -1, "audio");
        row("small picture", "", 0, "picture");
        row("one byte under the limit", "", 5242879, "picture");
        row("exactly the limit", "", 5242880, "placeholder");
    }

    // What comes at once, and the frame that comes later on the GUI thread.
    void thumbnails()
    {
        QFETCH(QString, path);
        QFETCH(qint64, size);
        QFETCH(QString, atOnce);
        QFETCH(QColor, colour);
        // The probe finds no duration in a still picture, so a picture's task
        // is made from a video and then pointed at the picture.
        const int id = path.startsWith("title "_L1)
                           ? list.addTitle(profile, *disc->titles[path.mid(6).toUInt()], 1, 1)
                           : list.addFile(profile, fixture(fixtures, size < 0 ? qPrintable(path)
                                                                              : "clip.mp4"));
        QVERIFY(id >= 0);
        Task *task = list.byId(id);
        const QString picture = dir.filePath(QStringLiteral("picture%1.png").arg(size));
        if (size >= 0) {
            // A PNG reader stops at the end chunk, so padding behind it keeps
            // the picture readable at any file size.
            QVERIFY(QFile::copy(fixture(fixtures, "picture.png"), picture));
            QVERIFY(size == 0 || QFile::resize(picture, size));
            task->items.front()->sourcePath = picture;
        }
        QSignalSpy changed(reader(), qOverload<int>(&MediaImageReader::imageChanged));
        deliveries.clear();

        reader()->requestImage(id, 1.0, true);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(task->thumbnail(0), atOnce == "audio"_L1 ? audioPlaceholder
                                     : atOnce == "placeholder"_L1
                                         ? placeholder
                                         : QImage(picture).scaled(96, 72, Qt::IgnoreAspectRatio,
                                                                  Qt::FastTransformation));
        if (atOnce != "placeholder"_L1 || size >= 0) {
            // Nothing was queued: no second delivery ever comes, nor without
            // a placeholder asked for.
            if (atOnce == "audio"_L1)
                reader()->requestImage(id, 1.0, false);
            settle();
            QVERIFY(changed.count() == 1 || size >= 0);
            return;
        }
        QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 2, 20000);
        QCOMPARE(changed.at(1).at(0).toInt(), id);
        QCOMPARE(deliveries, QList<QThread *>({thread(), thread()}));
        const QImage image = task->thumbnail(0);
        QCOMPARE(image.size(), QSize(96, 72));
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
