#include "childtask.h"
#include "conversion/processtools.h"
#include "cmainwnd.h"
#include "controls.h"
#include "cprofilecombo.h"
#include "customitemwidget.h"
#include "mediafixtures.h"
#include "profilegrouploader.h"
#include "settings.h"
#include "tasklist.h"
#include "tasktreeops.h"
#include "testhome.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QMessageBox>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QtTest>

#include <cstdio>
#include <unistd.h>

// The window on a real list: the main fixture disc's titles, a film, a
// sound file, and a merge of the two files.
class TestMainWindow : public QObject
{
    Q_OBJECT

    QString media;
    std::unique_ptr<DvdDisc> disc;
    std::unique_ptr<CMainWnd> window;
    QMap<QString, int> ids; // "title", "film", "sound", "merge"
    QList<QVariantMap> *updates = nullptr;

    QTreeWidgetItem *row(const QString &which) const
    {
        if (which == QLatin1String("disc"))
            return window->itemOf(ids[QStringLiteral("title")])->parent();
        if (which == QLatin1String("child"))
            return window->itemOf(ids[QStringLiteral("merge")])->child(0);
        return window->itemOf(ids[which]);
    }

    // The row's widget, made as the row comes into view.
    QWidget *face(const QString &which) const
    {
        window->treeTask->scrollToItem(row(which));
        QWidget *widget = nullptr;
        return QTest::qWaitFor([&] { return (widget = window->treeTask->itemWidget(row(which), 0)); }, 2000)
                   ? widget
                   : nullptr;
    }

    void setState(const QString &which, Task::EState state, bool checked = true)
    {
        Task *task = window->tasks()->byId(ids[which == QLatin1String("child") ? QStringLiteral("merge") : which]);
        task->setState(state);
        task->checked = checked;
    }

    // Whether the window closes without a question; one asked gets `answer`.
    bool closes(QMessageBox::StandardButton answer = QMessageBox::Cancel)
    {
        bool asked = false;
        QTimer::singleShot(200, this, [&] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                asked = true;
                box->button(answer)->click();
            }
        });
        const bool closed = window->close();
        QTest::qWait(300);
        return closed && !asked;
    }

public slots:
    void launcherUpdate(const QDBusMessage &message)
    {
        if (updates && message.arguments().size() == 2
            && message.arguments().at(0).toString() == QLatin1String("application://kestrove.desktop"))
            *updates << qdbus_cast<QVariantMap>(message.arguments().at(1));
    }

private slots:
    void initTestCase()
    {
        REQUIRE_MEDIA_FIXTURES(media);
        disc = loadDisc(fixture(media, "dvd-main"));
        QVERIFY(disc && !disc->titles.empty());
    }

    void init()
    {
        window = std::make_unique<CMainWnd>();
        window->show();
        TaskList *list = window->tasks();
        const QString key = ProfileGroupLoader::instance()->defaultProfile();
        ids[QStringLiteral("title")] = list->addTitle(key, *disc->titles[0], 1, 1);
        list->addTitle(key, *disc->titles[1], 2, 1);
        ids[QStringLiteral("film")] = list->addFile(key, fixture(media, "movie.mkv"));
        ids[QStringLiteral("sound")] = list->addFile(key, fixture(media, "tone.flac"));
        const int merge = ids[QStringLiteral("merge")] = list->addMerge(key);
        list->addToMerge(ids[QStringLiteral("film")], merge);
        list->addToMerge(ids[QStringLiteral("sound")], merge);
        for (int id : std::as_const(ids))
            QVERIFY(id >= 0);
        window->addTaskRows();
    }

    void cleanup()
    {
        for (int i = 0; i < window->tasks()->count(); ++i)
            window->tasks()->at(i)->setState(Task::Idle);
        window.reset();
    }

    // Until something is there to act on, its commands are off; clearing
    // the list brings that back.
    void commandsAreOffOnAnEmptyList()
    {
        auto on = [](CMainWnd &w) {
            QStringList enabled;
            for (QWidget *b : std::initializer_list<QWidget *>{w.playPauseBtn, w.btnStop, w.extPlaywndBtn,
                                                               w.snapshotBtn, w.btnStart, w.btnTrim,
                                                               w.btnCrop, w.btnEffect})
                if (b->isEnabled())
                    enabled << b->objectName();
            for (const char *name : {"actionProperties", "actionRemove_Selected_Item_s",
                                     "actionClear_All", "actionRename"})
                if (w.action(QLatin1String(name))->isEnabled())
                    enabled << QLatin1String(name);
            return QStringLiteral("%1 page %2").arg(enabled.join(QLatin1Char(' '))).arg(w.mulitWnd->currentIndex());
        };
        CMainWnd fresh;
        QCOMPARE(on(fresh), QStringLiteral(" page 0"));
        window->ResetToEmpty();
        QCOMPARE(on(*window), QStringLiteral(" page 0"));
        QCOMPARE(window->treeTask->topLevelItemCount() + window->tasks()->count(), 0);
    }

    void rowsStandForTheList()
    {
        QCOMPARE(window->mulitWnd->currentIndex(), 1);
        QVERIFY(window->btnStart->isEnabled());
        // The disc's two titles under one disc row; the merge's inputs under it.
        QCOMPARE(window->treeTask->topLevelItemCount(), 4);
        QCOMPARE(row(QStringLiteral("disc"))->childCount(), 2);
        QCOMPARE(TaskTreeOps::kindOf(row(QStringLiteral("disc"))), RowDisc);
        QCOMPARE(row(QStringLiteral("merge"))->childCount(), 2);
        QCOMPARE(TaskTreeOps::kindOf(row(QStringLiteral("child"))), RowChild);
        window->addTaskRows(); // nothing new, nothing doubled
        QCOMPARE(window->treeTask->topLevelItemCount(), 4);
    }

    void rowPredicates_data()
    {
        QTest::addColumn<QString>("which");
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<QString>("holding");
        // Every input has its stream entries, so whatever can be edited counts as edited.
        const int idle = Task::Idle, running = Task::Running, waiting = Task::Waiting;
        // clang-format off
        QTest::newRow("title") << "title" << idle << true
            << "Rename Clone Split Remove Trim Edit Rotate Convert Decoder Profile Edits Tracks Source";
        QTest::newRow("title running") << "title" << running << true << "Clone Split Pause Stop Tracks Source";
        QTest::newRow("title running, unchecked") << "title" << running << false << "Clone Split Tracks Source";
        QTest::newRow("title waiting") << "title" << waiting << true
            << "Rename Clone Split Remove Stop Decoder Tracks Source";
        QTest::newRow("film done") << "film" << int(Task::Succeed) << true
            << "Rename Clone Split Remove Trim Edit Rotate Convert Decoder Profile Edits Tracks Source";
        QTest::newRow("sound only") << "sound" << idle << true
            << "Rename Clone Remove Trim Convert Decoder Profile Tracks Source";
        QTest::newRow("merge") << "merge" << idle << true << "Rename Clone Remove Edit Convert Profile Edits";
        QTest::newRow("merged film") << "child" << idle << true << "Remove Edit Rotate Decoder Edits Tracks Source";
        QTest::newRow("merged film, paused") << "child" << int(Task::Paused) << true << "Tracks Source";
        QTest::newRow("disc") << "disc" << idle << true << "Remove";
        QTest::newRow("disc, a title running") << "disc" << running << true << "";
        // clang-format on
    }
    void rowPredicates()
    {
        QFETCH(QString, which);
        QFETCH(int, state);
        QFETCH(bool, checked);
        setState(which == QLatin1String("disc") ? QStringLiteral("title") : which, Task::EState(state),
                 checked);
        const TaskTreeOps &ops = TaskTreeOps::instance();
        const QTreeWidgetItem *item = row(which);
        const std::pair<const char *, bool> all[] = {
            {"Rename", ops.CanRename(item)}, {"Clone", ops.CanClone(item)},
            {"Split", ops.CanSplit(item)}, {"Remove", ops.CanRemove(item)},
            {"Trim", ops.CanTrim(item)}, {"Edit", ops.CanEdit(item)},
            {"Rotate", ops.CanRotate(item)}, {"Convert", ops.CanConvert(item, true)},
            {"Pause", ops.CanPause(item, true)}, {"Stop", ops.CanStop(item, true)},
            {"Decoder", ops.CanSetDecoder(item)}, {"Profile", ops.CanApplyProfile(item)},
            {"Edits", ops.HasEdits(item)}, {"Tracks", ops.HasTrackMenu(item)},
            {"Source", ops.HasFile(item, true)}, {"Output", ops.HasFile(item, false)}};
        QStringList holding;
        for (const auto &[name, holds] : all)
            if (holds)
                holding << QLatin1String(name);
        QTEST(holding.join(QLatin1Char(' ')), "holding");
    }

    void selectionDecidesMergeAndMoves()
    {
        QTreeWidget *tree = window->treeTask;
        auto select = [&](QStringList rows) {
            tree->clearSelection();
            for (const QString &r : rows)
                row(r)->setSelected(true);
            return QStringLiteral("%1 %2 %3 %4")
                .arg(TaskTreeOps::CanMerge(tree))
                .arg(TaskTreeOps::CanMoveUp(tree))
                .arg(TaskTreeOps::CanMoveDown(tree))
                .arg(window->btnMerge->isEnabled());
        };
        QCOMPARE(select({QStringLiteral("disc"), QStringLiteral("title")}), QStringLiteral("0 0 1 0"));
        QCOMPARE(select({QStringLiteral("film"), QStringLiteral("sound")}), QStringLiteral("1 1 1 1"));
        QCOMPARE(select({QStringLiteral("merge")}), QStringLiteral("0 1 0 0"));
    }

    // A click on a row sets what the tool buttons offer.
    void currentRowSetsTheTools_data()
    {
        QTest::addColumn<QString>("which");
        QTest::addColumn<QString>("enabled"); // trim, crop, play, profile
        QTest::newRow("film") << "film" << "1 1 1 1";
        QTest::newRow("sound") << "sound" << "1 0 1 1";
        QTest::newRow("merge") << "merge" << "0 0 0 1";
        QTest::newRow("disc") << "disc" << "0 0 0 0";
    }
    void currentRowSetsTheTools()
    {
        QFETCH(QString, which);
        QTreeWidget *tree = window->treeTask;
        QWidget *widget = face(which);
        QVERIFY(widget);
        const QPoint at = widget->mapTo(window.get(), widget->rect().center());
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, at);
        QCOMPARE(tree->currentItem(), row(which));
        QTEST(QStringLiteral("%1 %2 %3 %4")
                  .arg(window->btnTrim->isEnabled())
                  .arg(window->btnCrop->isEnabled())
                  .arg(window->playPauseBtn->isEnabled())
                  .arg(window->comboProfile->isEnabled()),
              "enabled");
    }

    void stateChangeSwapsTheRowsFaces()
    {
        QWidget *widget = face(QStringLiteral("film"));
        QVERIFY(widget);
        auto *progress = widget->findChild<QWidget *>(QStringLiteral("progressWidget"));
        auto *profile = widget->findChild<QWidget *>(QStringLiteral("profileWidget"));
        for (Task::EState state : {Task::Running, Task::Succeed, Task::Paused, Task::Failed}) {
            setState(QStringLiteral("film"), state);
            emit window->converterManager()->stateChanged(ids[QStringLiteral("film")], state);
            const bool busy = state == Task::Running || state == Task::Paused;
            QCOMPARE(progress->isVisibleTo(widget), busy);
            QCOMPARE(profile->isVisibleTo(widget), !busy);
        }
    }

    // Closing asks only while a checked task converts; Cancel keeps the window.
    void closingAsksWhileCheckedTasksConvert()
    {
        setState(QStringLiteral("film"), Task::Running, false);
        QVERIFY(closes());
        window->show();
        setState(QStringLiteral("film"), Task::Running, true);
        QVERIFY(!closes());
    }

    // Closing while two encoders run ends them all and keeps the settings.
    void closingEndsTheEncodersAndKeepsTheSettings()
    {
        QTemporaryDir work;
        const QString paced = writeFile(work.filePath(QStringLiteral("paced-ffmpeg")),
                                        "#!/bin/bash\nargs=()\nfor a in \"$@\"; do [ \"$a\" = -i ] && "
                                        "args+=(-re); args+=(\"$a\"); done\nexec ffmpeg \"${args[@]}\"\n");
        QVERIFY(QFile::setPermissions(paced, QFile::ReadOwner | QFile::ExeOwner));
        qputenv("KESTROVE_FFMPEG", QFile::encodeName(paced));
        setSettingString(QStringLiteral("OutputDir"), work.path());
        ConverterManager *converter = window->converterManager();
        converter->setMaxProcesses(2);
        converter->startAll();
        const qint64 self = QCoreApplication::applicationPid();
        QTRY_COMPARE_WITH_TIMEOUT(childrenNamed(self, "kestrove-encoder").size(), 2, 20000);
        QVERIFY(!closes(QMessageBox::Ok)); // asked, and closed on OK
        QVERIFY(!window->isVisible());
        // At once: the batch would end by itself a few seconds later.
        QTRY_VERIFY_WITH_TIMEOUT(processTree(self).size() == 1, 3000);
        qunsetenv("KESTROVE_FFMPEG");
        QVERIFY(readFile(settingsFilePath()).contains(QFile::encodeName(work.path())));
    }

    // Open DVD through the file dialog, as a user types the folder: one disc
    // row, its titles numbered in one run.
    void openDvdMakesOneDiscRow()
    {
        window->ResetToEmpty();
        QTimer::singleShot(300, this, [this] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            auto *name = dialog ? dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")) : nullptr;
            if (name) {
                name->setText(fixture(media, "dvd-main"));
                QTest::keyClick(name, Qt::Key_Return);
            }
        });
        window->action(QStringLiteral("actionOpen_DVD"))->trigger();
        QCOMPARE(window->treeTask->topLevelItemCount(), 1);
        QTreeWidgetItem *disc = window->treeTask->topLevelItem(0);
        QCOMPARE(TaskTreeOps::kindOf(disc), RowDisc);
        QCOMPARE(disc->childCount(), int(this->disc->titles.size()));
        QStringList names;
        for (int i = 0; i < disc->childCount(); ++i)
            names << QFileInfo(TaskTreeOps::instance().taskOf(disc->child(i))->output.fileName).completeBaseName();
        QCOMPARE(names.last(), QStringLiteral("Title_%1").arg(disc->childCount()));
    }

    // Eleven bad files and a good one dropped: the good one's row, and a
    // message with ten paths, "..." and all eleven behind the details.
    void droppedBadFilesAreReportedTogether()
    {
        window->ResetToEmpty();
        QTemporaryDir junk;
        QList<QUrl> urls;
        for (int i = 0; i < 11; ++i)
            urls << QUrl::fromLocalFile(writeFile(junk.filePath(QStringLiteral("bad%1.mkv").arg(i)), "not media"));
        urls << QUrl::fromLocalFile(fixture(media, "clip.mp4"));
        QMimeData mime;
        mime.setUrls(urls);
        QString informative, details;
        QTimer::singleShot(500, this, [&] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                informative = box->informativeText();
                details = box->detailedText();
                box->accept();
            }
        });
        // As a file manager's drag arrives: entering, then the drop.
        QDragEnterEvent enter(QPoint(400, 300), Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(400, 300), Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &drop);
        QCOMPARE(window->treeTask->topLevelItemCount(), 1);
        QCOMPARE(informative.count(QLatin1Char('\n')), 10);
        QVERIFY(informative.endsWith(QLatin1String("...")));
        QCOMPARE(details.split(QLatin1Char('\n')).size(), 11);
    }

    // The dock hears the batch's progress on the (private) session bus.
    void taskbarProgressReachesTheDock()
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        QVERIFY2(bus.isConnected(), "run under dbus-run-session");
        QList<QVariantMap> heard;
        QVERIFY(bus.connect(QString(), QString(), QStringLiteral("com.canonical.Unity.LauncherEntry"),
                            QStringLiteral("Update"), this, SLOT(launcherUpdate(QDBusMessage))));
        updates = &heard;
        Task *film = window->tasks()->byId(ids[QStringLiteral("film")]);
        film->setState(Task::Running);
        film->item(0)->edit.convertEnd = film->item(0)->edit.trimEnd; // as a start sets it
        film->progress = film->convertDuration() / 2;
        emit window->converterManager()->progressChanged(film->id, film->progress);
        QTRY_VERIFY(!heard.isEmpty() && heard.last().value(QStringLiteral("progress")).toDouble() == 0.5);
        QVERIFY(heard.last().value(QStringLiteral("progress-visible")).toBool());
        for (int i = 0; i < window->tasks()->count(); ++i)
            window->tasks()->at(i)->setState(Task::Succeed);
        emit window->converterManager()->stateChanged(film->id, Task::Succeed);
        QTRY_VERIFY(!heard.last().value(QStringLiteral("progress-visible")).toBool());
        updates = nullptr;
    }

    // Whatever a user acts on has a name a screen reader can say.
    void controlsHaveAccessibleNames()
    {
        QStringList nameless;
        for (QWidget *w : window->findChildren<QWidget *>()) {
            // Scroll bars speak by their role and value.
            const bool control = qobject_cast<QAbstractButton *>(w) || qobject_cast<QComboBox *>(w)
                                 || (qobject_cast<QAbstractSlider *>(w) && !qobject_cast<QScrollBar *>(w))
                                 || qobject_cast<QLineEdit *>(w)
                                 || qobject_cast<QTreeWidget *>(w);
            if (!control || !w->isVisibleTo(window.get()) || w->window() != window.get())
                continue;
            QAccessibleInterface *face = QAccessible::queryAccessibleInterface(w);
            if (!face || face->text(QAccessible::Name).trimmed().isEmpty())
                nameless << w->objectName() + QLatin1Char('/') + QLatin1String(w->metaObject()->className());
        }
        QCOMPARE(nameless.join(QLatin1Char(' ')), QString());
    }
};

// On a session bus of its own, never the user's.
int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("KESTROVE_PRIVATE_BUS")) {
        qputenv("KESTROVE_PRIVATE_BUS", "1");
        std::vector<char *> args{const_cast<char *>("dbus-run-session"), const_cast<char *>("--")};
        args.insert(args.end(), argv, argv + argc);
        args.push_back(nullptr);
        execvp(args[0], args.data());
        std::perror("dbus-run-session (install Debian's dbus)");
        return 1;
    }
    TestHome home;
    QApplication app(argc, argv);
    TestMainWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_cmainwnd.moc"
