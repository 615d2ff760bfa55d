#include "childtask.h"
#include "conversion/processtools.h"
#include "cmainwnd.h"
#include "controls.h"
#include "cprofilecombo.h"
#include "csaveasdlg.h"
#include "customitemwidget.h"
#include "mediafixtures.h"
#include "privatebus.h"
#include "profilegrouploader.h"
#include "settings.h"
#include "settingswindow.h"
#include "tasklist.h"
#include "tasktreeops.h"
#include "testhome.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QtTest>

#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Answers the dialogs an import opens, as a user: the first file dialog by
// `choose` (any later one is closed), each message box by OK, noting what
// the boxes said; a profile's name is typed over the one suggested.
struct DialogAnswers
{
    std::function<void(QFileDialog *)> choose;
    QString profileName;
    QStringList told; // each box's text, its informative text below it; a suggested name
    QString details;
    QTimer timer;

    explicit DialogAnswers(std::function<void(QFileDialog *)> chooser = {})
        : choose(std::move(chooser))
    {
        QObject::connect(&timer, &QTimer::timeout, [this] {
            QWidget *modal = QApplication::activeModalWidget();
            if (auto *dialog = qobject_cast<QFileDialog *>(modal)) {
                if (choose)
                    std::exchange(choose, nullptr)(dialog);
                else
                    dialog->reject();
            } else if (auto *box = qobject_cast<QMessageBox *>(modal)) {
                told << QStringList{box->text(), box->informativeText()}.join(u'\n').trimmed();
                details = box->detailedText();
                box->accept();
            } else if (auto *saveAs = qobject_cast<CSaveAsDlg *>(modal)) {
                auto *name = saveAs->findChild<QLineEdit *>();
                told << name->text();
                name->clear();
                QTest::keyClicks(name, profileName);
                saveAs->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
            }
        });
        timer.start(20);
    }
    // The names of the files that the batch's message listed.
    QString failed() const
    {
        QStringList names;
        for (const QString &message : told)
            for (const QString &line : message.split(u'\n').mid(1))
                names << QFileInfo(line).fileName();
        return names.join(u' ');
    }
};

// Typed into a file dialog's name field, then Return.
void type(QFileDialog *dialog, const QString &text)
{
    auto *name = dialog->findChild<QLineEdit *>(u"fileNameEdit"_s);
    QVERIFY(name);
    name->setText(text);
    QTest::keyClick(name, Qt::Key_Return);
}

} // namespace

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
        if (which == "disc"_L1)
            return window->itemOf(ids[u"title"_s])->parent();
        if (which == "child"_L1)
            return window->itemOf(ids[u"merge"_s])->child(0);
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
        Task *task = window->tasks()->byId(ids[which == "child"_L1 ? u"merge"_s : which]);
        task->setState(state);
        task->checked = checked;
    }

    Task *task(const QString &which) const { return window->tasks()->byId(ids[which]); }

    // A profile chosen as a user does: F3, a part of its name typed into the
    // search, Return on the first hit.
    void choose(const QString &search)
    {
        window->action(u"actionSearch_Profile"_s)->trigger();
        CSearchLineEdit *field = window->comboProfile->profileMenu()->searchField();
        QTest::keyClicks(field, search);
        QTest::keyClick(field, Qt::Key_Return);
    }

    // What the row shows and holds of its profile: the name on its face, the
    // key, the state, the tick.
    QString profileOf(const QString &which) const
    {
        const auto *row = qobject_cast<CustomItemWidget *>(face(which));
        return u"%1 %2 %3%4"_s
            .arg(row ? row->labelOutputName->text() : u"(no face)"_s, task(which)->output.profileKey)
            .arg(task(which)->state)
            .arg(task(which)->checked ? QString() : u" unticked"_s);
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

    // As a file manager's drag arrives: entering, then the drop.
    bool drop(const QList<QUrl> &urls)
    {
        QMimeData mime;
        mime.setUrls(urls);
        QDragEnterEvent enter(QPoint(400, 300), Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop(QPointF(400, 300), Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &drop);
        return true;
    }

    // The tree's rows: a file's row by the source's name, a disc's row as
    // its titles' names in brackets.
    QString rowsShown() const
    {
        const TaskTreeOps &ops = TaskTreeOps::instance();
        QStringList rows;
        for (int i = 0; i < window->treeTask->topLevelItemCount(); ++i) {
            QTreeWidgetItem *item = window->treeTask->topLevelItem(i);
            if (TaskTreeOps::kindOf(item) != RowDisc) {
                rows << QFileInfo(ops.taskOf(item)->item(0)->sourcePath).fileName();
                continue;
            }
            QStringList titles;
            for (int t = 0; t < item->childCount(); ++t)
                titles << QFileInfo(ops.taskOf(item->child(t))->output.fileName).completeBaseName();
            rows << u'[' + titles.join(u' ') + u']';
        }
        return rows.join(u' ');
    }

public slots:
    void launcherUpdate(const QDBusMessage &message)
    {
        if (updates && message.arguments().size() == 2
            && message.arguments().at(0).toString() == "application://kestrove.desktop"_L1)
            *updates << qdbus_cast<QVariantMap>(message.arguments().at(1));
    }

private slots:
    void initTestCase()
    {
        REQUIRE_MEDIA_FIXTURES(media);
        // No disc of this machine's is offered.
        qputenv("KESTROVE_MEDIA_ROOTS", QByteArray());
        disc = loadDisc(fixture(media, "dvd-main"));
        QVERIFY(disc && !disc->titles.empty());
    }

    void init()
    {
        setSettingString(u"ProfileIndex"_s, ProfileGroupLoader::instance()->defaultProfile());
        window = std::make_unique<CMainWnd>();
        window->show();
        TaskList *list = window->tasks();
        const QString key = ProfileGroupLoader::instance()->defaultProfile();
        ids[u"title"_s] = list->addTitle(key, *disc->titles[0], 1, 1);
        list->addTitle(key, *disc->titles[1], 2, 1);
        ids[u"film"_s] = list->addFile(key, fixture(media, "movie.mkv"));
        ids[u"sound"_s] = list->addFile(key, fixture(media, "tone.flac"));
        const int merge = ids[u"merge"_s] = list->addMerge(key);
        list->addToMerge(ids[u"film"_s], merge);
        list->addToMerge(ids[u"sound"_s], merge);
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

    // The rows stand for the list: a disc's titles under one disc row, a
    // merge's inputs under it. Until something is there to act on, its
    // commands are off; clearing the list brings that back.
    void rowsAndCommandsFollowTheList()
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
            return u"%1 page %2"_s.arg(enabled.join(u' ')).arg(w.mulitWnd->currentIndex());
        };
        QCOMPARE(on(*window), u"btnStart actionClear_All page 1"_s);
        QCOMPARE(window->treeTask->topLevelItemCount(), 4);
        QCOMPARE(row(u"disc"_s)->childCount(), 2);
        QCOMPARE(TaskTreeOps::kindOf(row(u"disc"_s)), RowDisc);
        QCOMPARE(row(u"merge"_s)->childCount(), 2);
        QCOMPARE(TaskTreeOps::kindOf(row(u"child"_s)), RowChild);
        window->addTaskRows(); // nothing new, nothing doubled
        QCOMPARE(window->treeTask->topLevelItemCount(), 4);
        CMainWnd fresh;
        QCOMPARE(on(fresh), u" page 0"_s);
        window->ResetToEmpty();
        QCOMPARE(on(*window), u" page 0"_s);
        QCOMPARE(window->treeTask->topLevelItemCount() + window->tasks()->count(), 0);
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
        setState(which == "disc"_L1 ? u"title"_s : which, Task::EState(state), checked);
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
        QTEST(holding.join(u' '), "holding");
    }

    // A click on a row sets what the tool buttons offer; the rows selected with it decide
    // whether they can be merged and moved.
    void currentRowSetsTheTools_data()
    {
        QTest::addColumn<QString>("rows");    // the first clicked, the others selected as well
        QTest::addColumn<QString>("enabled"); // trim, crop, play, profile; merge, up, down, Merge
        QTest::newRow("film") << "film" << "1 1 1 1 0 1 1 0";
        QTest::newRow("sound") << "sound" << "1 0 1 1 0 1 1 0";
        QTest::newRow("merge") << "merge" << "0 0 0 1 0 1 0 0";
        QTest::newRow("disc") << "disc" << "0 0 0 0 0 0 1 0";
        QTest::newRow("disc and its title") << "disc title" << "0 0 0 1 0 0 1 0";
        QTest::newRow("two files") << "film sound" << "1 1 1 1 1 1 1 1";
        QTest::newRow("disc and the file below it") << "disc film" << "0 0 0 1 0 0 1 0";
    }
    void currentRowSetsTheTools()
    {
        QFETCH(QString, rows);
        const QStringList which = rows.split(u' ');
        QTreeWidget *tree = window->treeTask;
        QWidget *widget = face(which[0]);
        QVERIFY(widget);
        const QPoint at = widget->mapTo(window.get(), widget->rect().center());
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, at);
        QCOMPARE(tree->currentItem(), row(which[0]));
        for (const QString &other : which.mid(1))
            row(other)->setSelected(true);
        QTEST(u"%1 %2 %3 %4 %5 %6 %7 %8"_s.arg(window->btnTrim->isEnabled())
                  .arg(window->btnCrop->isEnabled())
                  .arg(window->playPauseBtn->isEnabled())
                  .arg(window->comboProfile->isEnabled())
                  .arg(TaskTreeOps::CanMerge(tree))
                  .arg(TaskTreeOps::CanMoveUp(tree))
                  .arg(TaskTreeOps::CanMoveDown(tree))
                  .arg(window->btnMerge->isEnabled()),
              "enabled");
    }

    // A profile chosen goes to the current and the selected rows that aren't
    // queued: their extension changes, a typed name stays, a finished task
    // can run again.
    void choiceGoesToTheSelectedRows_data()
    {
        QTest::addColumn<QStringList>("selected"); // the first current
        QTest::addColumn<int>("filmState");
        QTest::addColumn<bool>("othersTicked");
        QTest::addColumn<QString>("rows"); // film | sound | title
        QTest::newRow("two rows") << QStringList{u"film"_s, u"sound"_s} << int(Task::Idle) << true
                                  << u"My Film.3gp 17,17 0|tone.3gp 17,17 0|Title_1.mp4 1,68 0"_s;
        QTest::newRow("a finished row, nothing else ticked")
            << QStringList{u"film"_s} << int(Task::Succeed) << false
            << u"My Film.3gp 17,17 0|tone.mp4 1,68 0 unticked|Title_1.mp4 1,68 0 unticked"_s;
        QTest::newRow("a running row is passed over") << QStringList{u"sound"_s, u"film"_s} << int(Task::Running)
                                                      << true << u"My Film.mp4 1,68 2|tone.3gp 17,17 0|Title_1.mp4 1,68 0"_s;
    }
    void choiceGoesToTheSelectedRows()
    {
        QFETCH(QStringList, selected);
        QFETCH(int, filmState);
        QFETCH(bool, othersTicked);
        for (int i = 0; i < window->tasks()->count(); ++i)
            window->tasks()->at(i)->checked = othersTicked;
        setState(u"film"_s, Task::EState(filmState), othersTicked);
        QVERIFY(TaskTreeOps::instance().SetTaskBaseName(task(u"film"_s), u"My Film"_s, false));
        window->on_treeTask_itemChanged(nullptr, 0);
        QCOMPARE(window->btnStart->isEnabled(), othersTicked);
        window->treeTask->setCurrentItem(row(selected.first()));
        for (const QString &which : selected)
            row(which)->setSelected(true);
        choose(u"BlackBerry 3GP"_s);
        QCOMPARE(window->settingsPanel()->profileFile(), u"BlackBerry_3gp.xml"_s);
        QStringList rows;
        for (const QString &which : {u"film"_s, u"sound"_s, u"title"_s}) {
            rows << profileOf(which);
            if (task(which)->output.profileKey == "17,17"_L1)
                QCOMPARE(task(which)->output.settings, window->settingsPanel()->values());
        }
        QTEST(rows.join(u'|'), "rows");
        QVERIFY(window->btnStart->isEnabled());
    }

    // An edit in the panel goes to the current row's task alone; another row
    // made current brings its own profile and values back, applying nothing.
    void panelFollowsTheCurrentRow_data()
    {
        QTest::addColumn<QString>("soundProfile"); // chosen for the sound first
        QTest::addColumn<QString>("soundKey");
        QTest::newRow("the same document") << "" << "1,68";
        QTest::newRow("another document") << "BlackBerry 3GP" << "17,17";
    }
    void panelFollowsTheCurrentRow()
    {
        QFETCH(QString, soundProfile);
        SettingsWindow *panel = window->settingsPanel();
        const auto current = [&](const QString &which) { window->treeTask->setCurrentItem(row(which)); };
        current(u"sound"_s);
        if (!soundProfile.isEmpty())
            choose(soundProfile);
        const QMap<QString, QString> sound = task(u"sound"_s)->output.settings;
        current(u"film"_s);
        auto *film = qobject_cast<CustomItemWidget *>(face(u"film"_s));
        const QString sizeShown = film->videoSizeLabel->text();
        QSignalSpy chosen(window->comboProfile, &QComboBox::currentIndexChanged);
        // The Simple tab's size, as a user picks it.
        auto *size = panel->findChild<QComboBox *>(u"comboVideoSize"_s);
        QVERIFY(panel->isEditable() && size->count() > 2);
        size->setCurrentIndex(size->count() - 1);
        const QString picked = size->currentData().toString();
        QCOMPARE(task(u"film"_s)->value(u"s"_s), picked);
        QVERIFY(film->videoSizeLabel->text() != sizeShown);
        current(u"sound"_s);
        QTEST(window->comboProfile->currentRecord().key, "soundKey");
        QCOMPARE(panel->values(), sound);
        current(u"film"_s);
        QCOMPARE(window->comboProfile->currentRecord().key + panel->values().value(u"s"_s), u"1,68"_s + picked);
        QCOMPARE(task(u"sound"_s)->output.settings, sound);
        QCOMPARE(chosen.count(), 0);
    }

    // Save As keeps the panel's values as a profile of the user's own, which
    // the current row takes; deleting it sends the row back to the profile
    // it was made from. Rename and Delete are for such profiles only.
    void ownProfileSavedAndDeleted()
    {
        window->treeTask->setCurrentItem(row(u"film"_s));
        const QList<QAction *> commands = window->btnSaveProfile->menu()->actions(); // save, rename, delete
        const auto offered = [&] { return commands[1]->isEnabled() + commands[2]->isEnabled(); };
        QCOMPARE(offered(), 0);
        DialogAnswers answers;
        answers.profileName = u"Mine"_s;
        window->btnSaveProfile->click();
        QCOMPARE(answers.told, QStringList{u"MPEG4 Video- 1"_s});
        const QString key = task(u"film"_s)->output.profileKey;
        QCOMPARE(task(u"film"_s)->output.profileFile, u"user/Mine.xml"_s);
        QCOMPARE(window->comboProfile->currentText() + QString::number(offered()), u"Mine(*.mp4)2"_s);
        commands[2]->trigger();
        QVERIFY(!ProfileGroupLoader::instance()->hasProfile(key));
        QCOMPARE(profileOf(u"film"_s) + QString::number(offered()), u"movie.mp4 1,68 00"_s);
    }

    // With no row, a choice is kept for the next import.
    void choiceOnAnEmptyListWaitsForTheImport()
    {
        window->ResetToEmpty();
        choose(u"BlackBerry 3GP"_s);
        QCOMPARE(settingString(u"ProfileIndex"_s) + window->settingsPanel()->profileFile(), u"17,17BlackBerry_3gp.xml"_s);
        QCOMPARE(window->tasks()->count(), 0);
        DialogAnswers answers;
        QVERIFY(drop({QUrl::fromLocalFile(fixture(media, "clip.mp4"))}));
        const Task *clip = window->tasks()->at(0);
        QCOMPARE(clip->output.profileKey + u' ' + clip->output.fileName, u"17,17 clip.3gp"_s);
        QCOMPARE(clip->output.settings, window->settingsPanel()->values());
    }

    // Each state the encoders report, reached from Running and from Idle: the row
    // shows its progress or its profile, and the state in words.
    void stateChangeSwapsTheRowsFaces_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("shown");
        for (const auto &[state, shown] :
             {std::pair(Task::Idle, "profile "), {Task::Waiting, "profile Waiting..."},
              {Task::Running, "progress "}, {Task::Paused, "progress Paused"},
              {Task::Pending, "progress Pending..."}, {Task::Succeed, "profile Succeed"},
              {Task::Failed, "profile Failed"}})
            QTest::newRow(shown) << int(state) << QString::fromLatin1(shown);
    }
    void stateChangeSwapsTheRowsFaces()
    {
        QFETCH(int, state);
        auto *widget = qobject_cast<CustomItemWidget *>(face(u"film"_s));
        QVERIFY(widget);
        for (Task::EState from : {Task::Running, Task::Idle}) {
            for (Task::EState to : {from, Task::EState(state)}) {
                setState(u"film"_s, to);
                emit window->converterManager()->stateChanged(ids[u"film"_s], to);
            }
            QCOMPARE(widget->progressWidget->isVisibleTo(widget), !widget->profileWidget->isVisibleTo(widget));
            QTEST(u"%1 %2"_s.arg(widget->progressWidget->isVisibleTo(widget) ? u"progress"_s : u"profile"_s,
                                 widget->taskStatusLabel->text()),
                  "shown");
        }
    }

    // Closing asks only while a checked task converts; Cancel keeps the window. Closing
    // while two encoders run ends them all and keeps the settings.
    void closingAsksAndEndsTheEncoders()
    {
        setState(u"film"_s, Task::Running, false);
        QVERIFY(closes());
        window->show();
        setState(u"film"_s, Task::Running, true);
        QVERIFY(!closes());
        QVERIFY(window->isVisible());
        setState(u"film"_s, Task::Idle);
        QTemporaryDir work;
        const QString paced = writePacedFfmpeg(work.path());
        QVERIFY(!paced.isEmpty());
        qputenv("KESTROVE_FFMPEG", QFile::encodeName(paced));
        setSettingString(u"OutputDir"_s, work.path());
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

    // A disc's road, a folder or IFO files chosen in the dialog: one disc
    // row, its titles numbered in one run across the IFO files; the
    // collection stops at the first number missing, and an unreadable IFO
    // is told and passed over.
    void discRoads_data()
    {
        QTest::addColumn<QString>("road");
        QTest::addColumn<QStringList>("files"); // made in a temporary folder: "name=fixture" or "name=" for junk
        QTest::addColumn<QString>("typed");     // %1 the temporary folder
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("told");
        const QString main = u"VIDEO_TS/VTS_01_0.IFO=dvd-main/VIDEO_TS/VTS_01_0.IFO"_s;
        const QString mainVob = u"VIDEO_TS/VTS_01_1.VOB=dvd-main/VIDEO_TS/VTS_01_1.VOB"_s;
        const QString ntsc3 = u"VIDEO_TS/VTS_03_0.IFO=dvd-ntsc/VIDEO_TS/VTS_01_0.IFO"_s;
        const QString ntsc3Vob = u"VIDEO_TS/VTS_03_1.VOB=dvd-ntsc/VIDEO_TS/VTS_01_1.VOB"_s;
        const QString three = u"[Title_1 Title_2 Title_3]"_s;
        QTest::newRow("the VIDEO_TS folder") << "actionOpen_DVD" << QStringList{main, mainVob} << "%1/VIDEO_TS"
                                             << three << "";
        QTest::newRow("a gap in the numbers") << "actionOpen_DVD" << QStringList{main, mainVob, ntsc3, ntsc3Vob}
                                              << "%1" << three << "";
        QTest::newRow("a mount in lower case")
            << "actionOpen_DVD"
            << QStringList{u"video_ts/vts_01_0.ifo=dvd-main/VIDEO_TS/VTS_01_0.IFO"_s,
                           u"video_ts/vts_01_1.vob=dvd-main/VIDEO_TS/VTS_01_1.VOB"_s}
            << "%1" << three << "";
        QTest::newRow("no titleset") << "actionOpen_DVD" << QStringList{u"VIDEO_TS/VIDEO_TS.IFO=dvd-main/VIDEO_TS/VIDEO_TS.IFO"_s}
                                     << "%1" << "[]" << "";
        QTest::newRow("an invalid IFO between two good ones")
            << "actionOpen_IFO_Files"
            << QStringList{main, mainVob, u"VIDEO_TS/VTS_02_0.IFO="_s, ntsc3, ntsc3Vob}
            << "\"%1/VIDEO_TS/VTS_01_0.IFO\" \"%1/VIDEO_TS/VTS_02_0.IFO\" \"%1/VIDEO_TS/VTS_03_0.IFO\""
            << "[Title_1 Title_2 Title_3 Title_4]"
            << "The IFO File is invalid.\n%1/VIDEO_TS/VTS_02_0.IFO";
    }
    void discRoads()
    {
        QFETCH(QString, road);
        QFETCH(QStringList, files);
        QFETCH(QString, typed);
        QFETCH(QString, told);
        window->ResetToEmpty();
        QTemporaryDir dir;
        for (const QString &file : files) {
            const QString target = dir.filePath(file.section(u'=', 0, 0));
            const QString source = file.section(u'=', 1);
            QVERIFY(QDir().mkpath(QFileInfo(target).path()));
            QVERIFY(source.isEmpty() ? !writeFile(target, randomBytes(6144)).isEmpty()
                                     : QFile::copy(QDir(media).filePath(source), target));
        }
        DialogAnswers answers([&](QFileDialog *dialog) { type(dialog, typed.arg(dir.path())); });
        window->action(road)->trigger();
        QTEST(rowsShown(), "rows");
        QCOMPARE(answers.told.join(u'|'), told.replace(u"%1"_s, dir.path()));
    }

    // A file's road, by drop or by the File menu: a row per file, the first
    // one current. A dropped disc folder is walked like any other folder.
    void fileRoads_data()
    {
        QTest::addColumn<QString>("road");
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("failed");
        const QString discFiles = u"VIDEO_TS.BUP VIDEO_TS.IFO VTS_01_0.BUP VTS_01_0.IFO"_s;
        QTest::newRow("drop") << "drop" << "clip.mp4 tone.flac VTS_01_1.VOB" << discFiles;
        QTest::newRow("Open Folder") << "actionOpen_Folder" << "clip.mp4 VTS_01_1.VOB tone.flac" << discFiles;
        QTest::newRow("Open Files") << "actionOpen_Files" << "clip.mp4 tone.flac" << "";
    }
    void fileRoads()
    {
        QFETCH(QString, road);
        window->ResetToEmpty();
        QTemporaryDir dir;
        for (const char *name : {"clip.mp4", "tone.flac"})
            QVERIFY(QFile::copy(fixture(media, name), dir.filePath(QLatin1String(name))));
        QVERIFY(!copyDisc(fixture(media, "dvd-main/VIDEO_TS"), dir.filePath(u"disc"_s)).isEmpty());
        DialogAnswers answers([&](QFileDialog *dialog) {
            dialog->setDirectory(dir.path());
            type(dialog, road == "actionOpen_Files"_L1 ? u"\"clip.mp4\" \"tone.flac\""_s : dir.path());
        });
        if (road == "drop"_L1)
            QVERIFY(drop({QUrl::fromLocalFile(dir.filePath(u"clip.mp4"_s)),
                          QUrl::fromLocalFile(dir.filePath(u"tone.flac"_s)),
                          QUrl::fromLocalFile(dir.filePath(u"disc"_s))}));
        else
            window->action(road)->trigger();
        QTEST(rowsShown(), "rows");
        QTEST(answers.failed(), "failed");
        QCOMPARE(window->treeTask->currentItem(), window->treeTask->topLevelItem(0));
    }

    // Eleven bad files, then good ones, and Cancel in the loading dialog once
    // a row stands: the batch ends, the rows made stay, and what failed until
    // then is told in one message, ten paths, "..." and all eleven behind the
    // details.
    void cancelledBatchKeepsItsRowsAndTellsFailures()
    {
        window->ResetToEmpty();
        QTemporaryDir dir;
        QList<QUrl> urls;
        for (int i = 0; i < 11; ++i)
            urls << QUrl::fromLocalFile(writeFile(dir.filePath(u"bad%1.mkv"_s.arg(i)), "not media"));
        for (int i = 0; i < 6; ++i) {
            const QString copy = dir.filePath(u"clip%1.mp4"_s.arg(i));
            QVERIFY(QFile::copy(fixture(media, "clip.mp4"), copy));
            urls << QUrl::fromLocalFile(copy);
        }
        bool cancelled = false;
        QTimer user;
        connect(&user, &QTimer::timeout, this, [&] {
            auto *loading = window->findChild<QProgressDialog *>();
            if (!cancelled && loading && window->treeTask->topLevelItemCount() > 0) {
                loading->findChild<QPushButton *>()->click();
                cancelled = true;
            }
        });
        user.start(0);
        DialogAnswers answers;
        QVERIFY(drop(urls));
        QVERIFY(cancelled);
        const int rows = window->treeTask->topLevelItemCount();
        QVERIFY2(rows >= 1 && rows < 6, qPrintable(rowsShown()));
        QCOMPARE(window->tasks()->count(), rows);
        QCOMPARE(answers.told.size(), 1);
        QCOMPARE(answers.told.first().count(u'\n'), 11); // the text, ten paths, "..."
        QVERIFY(answers.told.first().endsWith("\n..."_L1));
        QCOMPARE(answers.details.split(u'\n').size(), 11);
    }

    // Open DVD offers the discs mounted where desktops mount them, and starts
    // in the only one the first time.
    void openDvdOffersMountedDiscs_data()
    {
        QTest::addColumn<QStringList>("folders"); // below the mount root; a VIDEO_TS gets the main disc
        QTest::addColumn<QString>("lastFolder");
        QTest::addColumn<QString>("offered");
        QTest::addColumn<QString>("startsIn"); // below the root, or absolute
        QTest::newRow("one disc") << QStringList{u"cdrom0/VIDEO_TS"_s, u"usb/Photos"_s} << "" << "cdrom0" << "cdrom0";
        QTest::newRow("one disc, a folder used before")
            << QStringList{u"cdrom0/VIDEO_TS"_s} << "/tmp" << "cdrom0" << "/tmp";
        QTest::newRow("two discs, one a user's mount in lower case")
            << QStringList{u"cdrom0/VIDEO_TS"_s, u"me/FILM/video_ts"_s} << "" << "cdrom0 me/FILM" << "/";
        QTest::newRow("no disc") << QStringList{u"cdrom0"_s} << "" << "" << "/";
    }
    void openDvdOffersMountedDiscs()
    {
        QFETCH(QStringList, folders);
        QFETCH(QString, lastFolder);
        window->ResetToEmpty();
        QTemporaryDir root;
        for (const QString &folder : folders) {
            QVERIFY(QDir().mkpath(root.filePath(folder)));
            if (folder.endsWith("/VIDEO_TS"_L1))
                QVERIFY(!copyDisc(fixture(media, "dvd-main/VIDEO_TS"), QFileInfo(root.filePath(folder)).path())
                             .isEmpty());
        }
        qputenv("KESTROVE_MEDIA_ROOTS", QFile::encodeName(u"/nonexistent:"_s + root.path()));
        if (lastFolder.isEmpty()) // never chosen: not in the store at all
            QSettings(QSettings::UserScope, u"Tessarine"_s, u"Kestrove"_s).remove(u"Setting/DVDDir"_s);
        else
            setSettingString(u"DVDDir"_s, lastFolder);
        QStringList offered;
        QString startsIn;
        // The first disc offered is the one chosen.
        DialogAnswers answers([&](QFileDialog *dialog) {
            for (const QUrl &place : dialog->sidebarUrls())
                if (place.toLocalFile().startsWith(root.path() + u'/'))
                    offered << place.toLocalFile().mid(root.path().size() + 1);
            startsIn = dialog->directory().absolutePath().remove(root.path() + u'/');
            if (offered.isEmpty())
                dialog->reject();
            else
                type(dialog, root.filePath(offered.first()));
        });
        window->action(u"actionOpen_DVD"_s)->trigger();
        qputenv("KESTROVE_MEDIA_ROOTS", QByteArray());
        QTEST(offered.join(u' '), "offered");
        QTEST(startsIn, "startsIn");
        QCOMPARE(rowsShown(), offered.isEmpty() ? QString() : u"[Title_1 Title_2 Title_3]"_s);
    }

    // The dock hears the batch's progress on the (private) session bus.
    void taskbarProgressReachesTheDock()
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        QVERIFY2(bus.isConnected(), "run under dbus-run-session");
        QList<QVariantMap> heard;
        QVERIFY(bus.connect(QString(), QString(), u"com.canonical.Unity.LauncherEntry"_s,
                            u"Update"_s, this, SLOT(launcherUpdate(QDBusMessage))));
        updates = &heard;
        Task *film = window->tasks()->byId(ids[u"film"_s]);
        film->setState(Task::Running);
        film->item(0)->edit.convertEnd = film->item(0)->edit.trimEnd; // as a start sets it
        film->progress = film->convertDuration() / 2;
        emit window->converterManager()->progressChanged(film->id, film->progress);
        QTRY_VERIFY(!heard.isEmpty() && heard.last().value(u"progress"_s).toDouble() == 0.5);
        QVERIFY(heard.last().value(u"progress-visible"_s).toBool());
        for (int i = 0; i < window->tasks()->count(); ++i)
            window->tasks()->at(i)->setState(Task::Succeed);
        emit window->converterManager()->stateChanged(film->id, Task::Succeed);
        QTRY_VERIFY(!heard.last().value(u"progress-visible"_s).toBool());
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
                nameless << w->objectName() + u'/' + QLatin1String(w->metaObject()->className());
        }
        QCOMPARE(nameless.join(u' '), QString());
    }
};

int main(int argc, char *argv[])
{
    runOnPrivateBus(argc, argv);
    TestHome home;
    QApplication app(argc, argv);
    TestMainWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_cmainwnd.moc"
