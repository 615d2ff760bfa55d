#include "cmainwnd.h"
#include "conversion/processtools.h"
#include "controls.h"
#include "ffmpegtools.h"
#include "cprofilecombo.h"
#include "dvddisc.h"
#include "tasktreeops.h"
#include "customitemwidget.h"
#include "mediafixtures.h"
#include "privatebus.h"
#include "profilegrouploader.h"
#include "settings.h"
#include "settingswindow.h"
#include "tasklist.h"
#include "testhome.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileDialog>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QtTest>

// A notification server on a connection of its own: keeps what it was told.
class FakeNotifications : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QStringList told;

public slots:
    uint Notify(const QString &, uint, const QString &, const QString &summary, const QString &body,
                const QStringList &actions, const QVariantMap &, int)
    {
        told << summary + QLatin1Char('|') + body + QLatin1Char('|') + actions.value(0);
        return 7;
    }
};

// Conversions started, paused and stopped from the window, on encoders that
// take as long as their media last.
class TestConvertWindow : public QObject
{
    Q_OBJECT

    QString media;
    QTemporaryDir work;
    std::unique_ptr<CMainWnd> window;

    // Rows for the files; their task ids in order.
    QList<int> addFiles(const QStringList &paths)
    {
        QList<int> ids;
        for (const QString &path : paths)
            ids << window->tasks()->addFile(ProfileGroupLoader::instance()->defaultProfile(), path);
        window->addTaskRows();
        window->treeTask->setCurrentItem(window->itemOf(ids.first()));
        return ids;
    }
    Task *task(int id) const { return window->tasks()->byId(id); }
    QString startStatus() const { return window->btnStart->property("status").toString(); }
    int count(Task::EState state) const
    {
        int n = 0;
        for (int i = 0; i < window->tasks()->count(); ++i)
            n += window->tasks()->at(i)->state == state;
        return n;
    }

private slots:
    void initTestCase()
    {
        REQUIRE_MEDIA_FIXTURES(media);
        // Real time: a clip of two seconds keeps its encoder for two seconds.
        const QString paced = writePacedFfmpeg(work.path());
        QVERIFY(!paced.isEmpty());
        qputenv("KESTROVE_FFMPEG", QFile::encodeName(paced));
    }

    void init()
    {
        QDir(work.filePath(QStringLiteral("out"))).removeRecursively();
        overrideSetting(QStringLiteral("OutputDir"), work.filePath(QStringLiteral("out")));
        window = std::make_unique<CMainWnd>();
        window->show();
    }

    void cleanup()
    {
        window->converterManager()->stopAll();
        QTRY_VERIFY(window->tasks()->allAtRest());
        window.reset();
        overrideSetting(QStringLiteral("ProcessCount"), QVariant());
    }

    // The row of a task made current, its widget once it has one.
    QWidget *select(int taskId)
    {
        QTreeWidgetItem *item = window->itemOf(taskId);
        window->treeTask->setFocus();
        window->treeTask->setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect);
        window->treeTask->scrollToItem(item);
        QWidget *face = nullptr;
        return QTest::qWaitFor([&] { return (face = window->treeTask->itemWidget(item, 0)); }, 2000) ? face
                                                                                                    : nullptr;
    }

    // A user's whole road: Open DVD, two titles ticked, an iPhone profile
    // picked for both, a lower bit rate for each in the panel, Start.
    void userConvertsTwoTitlesOfADisc()
    {
        overrideSetting(QStringLiteral("ProcessCount"), 2);
        QTimer::singleShot(300, this, [this] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            name->setText(fixture(media, "dvd-main"));
            QTest::keyClick(name, Qt::Key_Return);
        });
        window->action(QStringLiteral("actionOpen_DVD"))->trigger();
        QTRY_COMPARE(window->tasks()->count(), 3);
        const int first = window->tasks()->at(0)->id, second = window->tasks()->at(1)->id,
                  third = window->tasks()->at(2)->id;
        auto *middle = qobject_cast<CustomItemWidget *>(select(second));
        QVERIFY(middle);
        middle->checkBox->click();
        QVERIFY(!task(second)->checked);

        select(first);
        window->itemOf(third)->setSelected(true);
        QCOMPARE(window->treeTask->selectedItems().size(), 2);
        window->action(QStringLiteral("actionSearch_Profile"))->trigger();
        CSearchLineEdit *search = window->comboProfile->profileMenu()->searchField();
        QTest::keyClicks(search, QStringLiteral("iPhone H.264"));
        QTest::keyClick(search, Qt::Key_Return);
        auto *quality = window->settingsPanel()->findChild<QComboBox *>(QStringLiteral("comboVideoQuality"));
        for (int id : {first, third}) {
            QCOMPARE(task(id)->output.profileKey, QStringLiteral("15,45"));
            select(id);
            quality->setCurrentIndex(quality->findText(QStringLiteral("Lowest")));
            QCOMPARE(task(id)->value(QStringLiteral("b")), QStringLiteral("512"));
        }

        QTest::mouseClick(window->btnStart, Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(count(Task::Running) == 2, 10000);
        QTRY_VERIFY(task(first)->progress > 0.5);
        auto *row = qobject_cast<CustomItemWidget *>(window->treeTask->itemWidget(window->itemOf(first), 0));
        QVERIFY(row && row->progressWidget->isVisible());
        QVERIFY(window->windowTitle().startsWith(QString::number(window->totalProgressBar->value()) + QLatin1Char('%')));
        QTRY_VERIFY_WITH_TIMEOUT(window->tasks()->allAtRest(), 30000);

        QCOMPARE(task(second)->state, Task::Idle);
        for (int id : {first, third}) {
            QCOMPARE(task(id)->state, Task::Succeed);
            auto *face = qobject_cast<CustomItemWidget *>(select(id));
            QVERIFY(!task(id)->checked && face && !face->checkBox->isChecked());
            const QString file = task(id)->output.filePath;
            QCOMPARE(probe(file, QStringLiteral("stream=width,height"), QStringLiteral("v:0")),
                     QStringLiteral("width=480\nheight=320\n"));
            // The encoder's own note of its settings, written into the stream.
            QVERIFY2(readFile(file).contains(" bitrate=512 "), qPrintable(file));
        }
        QCOMPARE(window->totalProgressBar->value(), 100);
        QCOMPARE(window->windowTitle(), CMainWnd::WindowTitleText());
        QCOMPARE(window->btnStart->property("status").toString(), QStringLiteral("start"));
    }

    // A row's close and arrow buttons and Remove Selected: the tree and the
    // list change together, and an empty list is the start page again.
    void rowsLeaveAndMove()
    {
        const auto disc = LoadDvdDisc(fixture(media, "dvd-main"), false);
        QVERIFY(disc && disc->titles.size() == 3);
        QList<int> titles;
        for (int i = 0; i < 3; ++i)
            titles << window->tasks()->addTitle(ProfileGroupLoader::instance()->defaultProfile(), *disc->titles[size_t(i)], i + 1, 1);
        const QList<int> files = addFiles({fixture(media, "clip.mp4"), fixture(media, "tone.flac")});
        const auto shown = [this] {
            QStringList rows;
            for (QTreeWidgetItemIterator it(window->treeTask); *it; ++it)
                rows << (TaskTreeOps::kindOf(*it) == RowDisc ? QStringLiteral("disc")
                                                             : QFileInfo(task(TaskTreeOps::taskIdOf(*it))->output.fileName).baseName());
            return rows.join(QLatin1Char(' ')) + QStringLiteral(" | %1 tasks").arg(window->tasks()->count());
        };
        QCOMPARE(shown(), QStringLiteral("disc Title_1 Title_2 Title_3 clip tone | 5 tasks"));
        QTest::mouseClick(qobject_cast<CustomItemWidget *>(select(titles[1]))->closeBtn, Qt::LeftButton);
        QTest::mouseClick(qobject_cast<CustomItemWidget *>(select(files[1]))->upBtn, Qt::LeftButton);
        QTest::mouseClick(qobject_cast<CustomItemWidget *>(select(titles[2]))->upBtn, Qt::LeftButton);
        QCOMPARE(shown(), QStringLiteral("disc Title_3 Title_1 tone clip | 4 tasks"));
        QCOMPARE(window->tasks()->at(0)->id, titles[2]); // a disc's titles go in the queue's order
        select(files[0]);
        window->action(QStringLiteral("actionTop"))->trigger();
        QCOMPARE(shown(), QStringLiteral("clip disc Title_3 Title_1 tone | 4 tasks"));
        window->action(QStringLiteral("actionBottom"))->trigger();
        QCOMPARE(shown(), QStringLiteral("disc Title_3 Title_1 tone clip | 4 tasks"));

        window->treeTask->setCurrentItem(window->itemOf(titles[0])->parent(), 0, QItemSelectionModel::ClearAndSelect);
        window->itemOf(files[0])->setSelected(true);
        window->action(QStringLiteral("actionRemove_Selected_Item_s"))->trigger();
        QCOMPARE(shown(), QStringLiteral("tone | 1 tasks"));
        QTest::mouseClick(qobject_cast<CustomItemWidget *>(select(files[1]))->closeBtn, Qt::LeftButton);
        QCOMPARE(window->tasks()->count(), 0);
        QCOMPARE(window->mulitWnd->currentIndex(), 0);
    }

    // Stop with two running and one waiting: the waiting one goes back,
    // ticked; the running ones fail, unticked; Start can start again.
    void stopWithTwoRunningAndOneWaiting()
    {
        overrideSetting(QStringLiteral("ProcessCount"), 2);
        const QList<int> ids = addFiles({fixture(media, "movie.mkv"), fixture(media, "movie.mkv"),
                                         fixture(media, "clip.mp4")});
        QTest::mouseClick(window->btnStart, Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(count(Task::Running), 2, 10000);
        QCOMPARE(task(ids[2])->state, Task::Waiting);
        QCOMPARE(startStatus(), QStringLiteral("stop"));
        QVERIFY(window->totalProgressBar->isVisible());
        QVERIFY(window->windowTitle().contains(QStringLiteral(" - 1/3 - ")));

        QTest::mouseClick(window->btnStart, Qt::LeftButton);
        QTRY_VERIFY(window->tasks()->allAtRest());
        for (int id : {ids[0], ids[1]}) {
            QCOMPARE(task(id)->state, Task::Failed);
            QVERIFY(!task(id)->checked);
        }
        QCOMPARE(task(ids[2])->state, Task::Idle);
        QVERIFY(task(ids[2])->checked);
        QCOMPARE(startStatus(), QStringLiteral("start"));
        QVERIFY(window->btnStart->isEnabled());
        QCOMPARE(window->windowTitle(), CMainWnd::WindowTitleText());
        QVERIFY(QDir(work.filePath(QStringLiteral("out"))).entryList(QDir::Files).isEmpty());
    }

    // Convert Selected starts every selected row at once, whatever the
    // limit; pausing the only running task leaves Start on stop.
    void convertSelectedAndPause()
    {
        overrideSetting(QStringLiteral("ProcessCount"), 1);
        const QList<int> ids = addFiles({fixture(media, "movie.mkv"), fixture(media, "movie.mkv"),
                                         fixture(media, "movie.mkv")});
        for (int id : ids) {
            task(id)->checked = false;
            window->itemOf(id)->setSelected(true);
        }
        window->action(QStringLiteral("actionConvert_Selected_Item_s"))->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(count(Task::Running), 3, 10000);
        for (int id : ids)
            QVERIFY(task(id)->checked);
        window->converterManager()->stopTask(ids[1]);
        window->converterManager()->stopTask(ids[2]);
        QTRY_COMPARE(count(Task::Running), 1);

        auto *row = qobject_cast<CustomItemWidget *>(window->treeTask->itemWidget(window->itemOf(ids[0]), 0));
        QVERIFY(row && row->pauseBtn->isVisible());
        QTest::mouseClick(row->pauseBtn, Qt::LeftButton);
        QTRY_COMPARE(task(ids[0])->state, Task::Paused);
        QCOMPARE(startStatus(), QStringLiteral("stop"));
        QTest::mouseClick(row->pauseBtn, Qt::LeftButton);
        QTRY_COMPARE(task(ids[0])->state, Task::Running);
    }

    // A source gone after the import fails its own row; the others finish,
    // and the batch's end puts the title back.
    void aDeletedSourceFailsItsRowAlone()
    {
        overrideSetting(QStringLiteral("ProcessCount"), 0); // still one encoder
        const QString gone = work.filePath(QStringLiteral("gone.mp4"));
        QFile::remove(gone);
        QVERIFY(QFile::copy(fixture(media, "clip.mp4"), gone));
        const QList<int> ids = addFiles({gone, fixture(media, "clip.mp4")});
        QVERIFY(QFile::remove(gone));
        QTest::mouseClick(window->btnStart, Qt::LeftButton);
        QTRY_VERIFY(count(Task::Running) + count(Task::Failed) > 0);
        QCOMPARE(count(Task::Running) + count(Task::Waiting) + count(Task::Failed), 2);
        QTRY_VERIFY_WITH_TIMEOUT(window->tasks()->allAtRest(), 20000);
        QCOMPARE(task(ids[0])->state, Task::Failed);
        QCOMPARE(task(ids[1])->state, Task::Succeed);
        QCOMPARE(window->totalProgressBar->value(), 100);
        QCOMPARE(window->windowTitle(), CMainWnd::WindowTitleText());
    }

    // A batch that ends while the user looks elsewhere is told on the
    // desktop; a click on the notice brings the window back.
    void batchEndIsToldWhenTheWindowIsInactive()
    {
        QDBusConnection server = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("fake"));
        FakeNotifications fake;
        QVERIFY(server.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &fake,
                                      QDBusConnection::ExportAllSlots));
        QVERIFY(server.registerService(QStringLiteral("org.freedesktop.Notifications")));
        const QList<int> ids = addFiles({fixture(media, "clip.mp4"), fixture(media, "clip.mp4")});
        QWidget elsewhere;
        elsewhere.show();
        elsewhere.activateWindow();
        QTRY_VERIFY(elsewhere.isActiveWindow());
        window->converterManager()->setMaxProcesses(2);
        window->action(QStringLiteral("actionConvert_Checked_Item_s"))->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(count(Task::Running), 2, 10000);
        window->converterManager()->stopTask(ids[1]);
        QTRY_VERIFY_WITH_TIMEOUT(window->tasks()->allAtRest(), 20000);
        QTRY_COMPARE(fake.told, QStringList{QStringLiteral("Conversion finished|Succeeded: 1, failed: 1|default")});

        server.send(QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/Notifications"),
                                               QStringLiteral("org.freedesktop.Notifications"),
                                               QStringLiteral("ActionInvoked"))
                    << 7u << QStringLiteral("default"));
        QTRY_VERIFY(window->isActiveWindow());
        server.unregisterService(QStringLiteral("org.freedesktop.Notifications"));
        QDBusConnection::disconnectFromBus(QStringLiteral("fake"));
    }
};

int main(int argc, char *argv[])
{
    runOnPrivateBus(argc, argv);
    TestHome home;
    QApplication app(argc, argv);
    TestConvertWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_convertwindow.moc"
