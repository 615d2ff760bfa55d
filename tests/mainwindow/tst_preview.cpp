#include "childtask.h"
#include "cmainwnd.h"
#include "controls.h"
#include "ffplayer.h"
#include "mediafixtures.h"
#include "playerscreen.h"
#include "profilegrouploader.h"
#include "settings.h"
#include "tasklist.h"
#include "testhome.h"

#include <QMessageBox>
#include <QMimeData>
#include <QTreeWidget>
#include <QtTest>

// The preview pane as a user drives it, on a film of three seconds and a
// sound file.
class TestPreview : public QObject
{
    Q_OBJECT

    QString media;
    std::unique_ptr<CMainWnd> window;
    int film = -1;
    int sound = -1;
    FFPlayer *player = FFPlayer::instance();

    ChildTask &input(int taskId) const { return *window->tasks()->byId(taskId)->item(0); }
    void makeCurrent(int taskId) const { window->treeTask->setCurrentItem(window->itemOf(taskId)); }
    void click(QWidget *button) const { QTest::mouseClick(button, Qt::LeftButton); }
    bool stopped() const { return window->playPauseBtn->status() == 0 && !window->btnStop->isEnabled(); }

    // The next message box's text, answered with OK.
    QString *nextMessage()
    {
        auto *text = new QString;
        QTimer::singleShot(300, this, [text] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                *text = box->text();
                box->accept();
            }
        });
        return text;
    }

private slots:
    void initTestCase() { REQUIRE_MEDIA_FIXTURES(media); }

    void init()
    {
        window = std::make_unique<CMainWnd>();
        window->show();
        const QString key = ProfileGroupLoader::instance()->defaultProfile();
        film = window->tasks()->addFile(key, fixture(media, "movie.mkv"));
        sound = window->tasks()->addFile(key, fixture(media, "tone.flac"));
        QVERIFY(film >= 0 && sound >= 0);
        window->addTaskRows();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    void cleanup()
    {
        window.reset();
        QTRY_COMPARE(player->state(), 0);
    }

    // Only the trimmed part plays; at its end the handle is back on its start
    // and the label shows the task's whole length.
    void playsBetweenTheTrimMarks()
    {
        input(film).edit.trimStart = 1.0;
        input(film).edit.trimEnd = 2.0;
        makeCurrent(sound);
        makeCurrent(film);
        QCOMPARE(window->sliderPlayProgress->value(), 1000);
        click(window->playPauseBtn);
        QTRY_COMPARE(player->state(), 1);
        QVERIFY(window->btnStop->isEnabled());
        QCOMPARE(window->playPauseBtn->status(), 1);
        double latest = 0.0;
        QVERIFY(QTest::qWaitFor(
            [&] {
                latest = std::max(latest, player->currentTime());
                return stopped();
            },
            6000));
        QVERIFY2(latest >= 1.5 && latest < 2.5, qPrintable(QString::number(latest)));
        QCOMPARE(window->sliderPlayProgress->value(), 1000);
        const QString whole = window->tasks()->byId(film)->totalDurationText(false);
        QCOMPARE(window->timeLabel->text(), QStringLiteral("00:00:00 / ") + whole);
    }

    // A click on the bar while stopped moves the handle, and play starts there.
    void clickOnTheBarChoosesWherePlayStarts()
    {
        makeCurrent(film);
        CSlider *bar = window->sliderPlayProgress;
        QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->valueToPixel(2000), bar->height() / 2));
        QVERIFY(std::abs(bar->value() - 2000) < 200);
        const double chosen = bar->value() * 0.001;
        click(window->playPauseBtn);
        QTRY_COMPARE(player->state(), 1);
        QVERIFY2(player->currentTime() >= chosen - 0.2,
                 qPrintable(QString::number(player->currentTime())));
    }

    // Another row stops the preview and doesn't start by itself; Next does.
    void changingRowsStopsThePreview()
    {
        makeCurrent(film);
        click(window->playPauseBtn);
        QTRY_COMPARE(player->state(), 1);
        makeCurrent(sound);
        QVERIFY(stopped());
        QCOMPARE(player->state(), 0);
        QTest::qWait(300);
        QCOMPARE(player->state(), 0);
        QVERIFY(!window->snapshotBtn->isEnabled());

        makeCurrent(film);
        window->action(QStringLiteral("actionNext"))->trigger();
        QCOMPARE(window->treeTask->currentItem(), window->itemOf(sound));
        QTRY_COMPARE(player->state(), 1);
        QCOMPARE(player->fileName(), fixture(media, "tone.flac"));
        // A sound file has no picture to take.
        QVERIFY(!window->snapshotBtn->isEnabled());
    }

    void deletedSourceShowsItsMessage()
    {
        QTemporaryDir dir;
        const QString copy = dir.filePath(QStringLiteral("gone.mp4"));
        QVERIFY(QFile::copy(fixture(media, "clip.mp4"), copy));
        const int gone = window->tasks()->addFile(ProfileGroupLoader::instance()->defaultProfile(), copy);
        window->addTaskRows();
        QVERIFY(QFile::remove(copy));
        makeCurrent(gone);
        std::unique_ptr<QString> message(nextMessage());
        click(window->playPauseBtn);
        QTRY_VERIFY(!message->isEmpty());
        QCOMPARE(*message, QStringLiteral("Source file %1 not found!").arg(copy));
        QVERIFY(stopped());
        QCOMPARE(player->state(), 0);
    }

    // The picture lands as "_" and the time in the snapshot folder, made on
    // demand; a folder that can't be written says so.
    void snapshotLandsInTheSnapshotFolder()
    {
        QTemporaryDir dir;
        const QString folder = dir.filePath(QStringLiteral("shots"));
        overrideSetting(QStringLiteral("SnapshotDir"), folder);
        overrideSetting(QStringLiteral("ImageType"), QStringLiteral("PNG"));
        makeCurrent(film);
        click(window->playPauseBtn);
        QTRY_VERIFY(!player->originalImage().isNull());
        QVERIFY(window->snapshotBtn->isEnabled());
        const QString before = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddhhmmss"));
        click(window->snapshotBtn);
        const QString after = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddhhmmss"));
        const QStringList files = QDir(folder).entryList(QDir::Files);
        QCOMPARE(files.size(), 1);
        const QString name = files.first();
        QVERIFY2((name == QLatin1Char('_') + before + QStringLiteral(".PNG"))
                     || (name == QLatin1Char('_') + after + QStringLiteral(".PNG")),
                 qPrintable(name));
        QCOMPARE(QImage(QDir(folder).filePath(name)).size(), QSize(320, 240));

        QFile blocker(dir.filePath(QStringLiteral("file")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        overrideSetting(QStringLiteral("SnapshotDir"), blocker.fileName());
        std::unique_ptr<QString> message(nextMessage());
        click(window->snapshotBtn);
        QTRY_VERIFY(!message->isEmpty());
        QCOMPARE(*message, QStringLiteral("Can not save the image."));
        overrideSetting(QStringLiteral("SnapshotDir"), QVariant());
        overrideSetting(QStringLiteral("ImageType"), QVariant());
    }

    // Mute silences; moving the volume brings sound back while the button
    // stays down; letting it go gives the slider's level.
    void muteAndVolume()
    {
        VolumSlider *volume = window->sliderVolume;
        click(window->muteBtn);
        QVERIFY(window->muteBtn->isChecked());
        QCOMPARE(player->volume(), 0.0);
        volume->setFocus();
        QTest::keyClick(volume, Qt::Key_PageDown);
        QVERIFY(volume->value() < 99);
        QCOMPARE(player->volume(), volume->value() * 0.01);
        QVERIFY(window->muteBtn->isChecked());
        window->action(QStringLiteral("actionMute"))->trigger();
        QVERIFY(!window->muteBtn->isChecked());
        QCOMPARE(player->volume(), volume->value() * 0.01);
        const int level = volume->value();
        window->action(QStringLiteral("actionUp"))->trigger();
        QCOMPARE(volume->value(), std::min(level + volume->pageStep(), volume->maximum()));
    }

    // Importing probes under the lock the preview holds: it stops first.
    void dropWhileThePreviewPlays()
    {
        makeCurrent(film);
        click(window->playPauseBtn);
        QTRY_COMPARE(player->state(), 1);
        auto *data = new QMimeData;
        data->setUrls({QUrl::fromLocalFile(fixture(media, "clip.mp4"))});
        const int before = window->tasks()->count();
        QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window.get(), &enter);
        QDropEvent drop(QPointF(20, 20), Qt::CopyAction, data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window.get(), &drop);
        QCOMPARE(window->tasks()->count(), before + 1);
        QVERIFY(stopped());
        delete data;
    }
};

int main(int argc, char *argv[])
{
    // Nothing of the session: no bus to announce progress on.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    TestHome home;
    QApplication app(argc, argv);
    TestPreview test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_preview.moc"
