#include "controls.h"
#include "customitemwidget.h"
#include "dvddisc.h"
#include "mediafixtures.h"
#include "profilegrouploader.h"
#include "tasklist.h"
#include "tasktreeops.h"
#include "testhome.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

// Stands in for the main window: the rows find these slots by name.
class HostWindow : public QWidget
{
    Q_OBJECT

public:
    int audioEdits = 0, trackChanges = 0, plays = 0, clears = 0;

public slots:
    void on_actionClear_All_triggered() { ++clears; }
    void on_actionPlay_Pause_triggered() { ++plays; }
    void on_actionAudio_Track_triggered() { ++audioEdits; }
    void onStopAndContinuePlay(int, int) { ++trackChanges; }
};

class TestCustomItemWidget : public QObject
{
    Q_OBJECT

private:
    QString fixtures;
    std::unique_ptr<DvdDisc> disc;
    std::unique_ptr<TaskList> list;
    std::unique_ptr<HostWindow> window;
    QTreeWidget *tree = nullptr;

    // One plain row for a fixture file, or for the disc's first title ("dvd").
    CustomItemWidget *addRow(const QString &source)
    {
        const QString key = ProfileGroupLoader::instance()->defaultProfile();
        const int id = source == QLatin1String("dvd")
                           ? list->addTitle(key, *disc->titles[0], 1, 1)
                           : list->addFile(key, fixture(fixtures, source.toUtf8().constData()));
        return id < 0 ? nullptr : addItem(nullptr, id, RowNormal, -1);
    }

    CustomItemWidget *addItem(QTreeWidgetItem *parent, int taskId, RowKind kind, int childId)
    {
        if (parent)
            parent->setExpanded(true);
        auto *item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(tree);
        item->setData(0, RoleTaskId, taskId);
        item->setData(0, RoleChildId, childId);
        item->setData(0, RoleKind, kind);
        if (kind == RowDisc)
            item->setData(0, RoleDiscPath, fixture(fixtures, "dvd-main"));
        auto *row = new CustomItemWidget(tree, item, list.get(), taskId, kind, childId);
        tree->setItemWidget(item, 0, row);
        tree->setCurrentItem(item);
        QCoreApplication::processEvents(); // the tree lays out its rows
        return row;
    }

private slots:
    void initTestCase()
    {
        REQUIRE_MEDIA_FIXTURES(fixtures);
        disc = loadDisc(fixture(fixtures, "dvd-main/VIDEO_TS/VTS_01_0.IFO"));
        QVERIFY(disc && !disc->titles.empty());
    }

    void init()
    {
        list = std::make_unique<TaskList>(ProfileGroupLoader::instance());
        TaskTreeOps::instance().setTaskList(list.get()); // as the window does
        window = std::make_unique<HostWindow>();
        tree = new QTreeWidget(window.get());
        (new QVBoxLayout(window.get()))->addWidget(tree);
        window->resize(700, 300);
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }

    void cleanup()
    {
        window.reset();
        list.reset();
    }

    void rename_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<bool>("byKey"); // F2 on the tree, else a click on the name
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("endKey");
        QTest::addColumn<QString>("base"); // expected; empty: the old one stays
        QTest::newRow("click, Return")
            << "movie.mkv" << false << "holiday" << int(Qt::Key_Return) << "holiday";
        QTest::newRow("F2, Enter, title")
            << "dvd" << true << "  feature  " << int(Qt::Key_Enter) << "feature";
        QTest::newRow("points stay in the name")
            << "tone.flac" << false << "a.b" << int(Qt::Key_Return) << "a.b";
        QTest::newRow("Escape") << "movie.mkv" << true << "other" << int(Qt::Key_Escape) << "";
        QTest::newRow("only forbidden")
            << "movie.mkv" << false << "<>:?*|" << int(Qt::Key_Return) << "";
    }

    void rename()
    {
        QFETCH(QString, source);
        QFETCH(bool, byKey);
        QFETCH(QString, typed);
        QFETCH(int, endKey);
        QFETCH(QString, base);
        CustomItemWidget *row = addRow(source);
        QVERIFY(row);
        Task *task = list->at(0);
        const QString old = task->output.fileName;
        const QString extension = QFileInfo(old).suffix();
        QVERIFY(!extension.isEmpty());
        QCOMPARE(row->labelOutputName->text(), old);

        if (byKey) {
            tree->setFocus();
            QTest::keyClick(tree, Qt::Key_F2);
        } else {
            QTest::mouseClick(row->labelOutputName, Qt::LeftButton);
        }
        QTRY_VERIFY(row->editOutputName->hasFocus());
        QCOMPARE(row->editOutputName->text(), QFileInfo(old).completeBaseName());
        QVERIFY(!row->labelOutputName->isVisible());
        row->editOutputName->clear();
        QTest::keyClicks(row->editOutputName, typed);
        QTest::keyClick(row->editOutputName, Qt::Key(endKey));

        const QString expected = base.isEmpty() ? old : base + QLatin1Char('.') + extension;
        QCOMPARE(task->output.fileName, expected);
        QCOMPARE(row->labelOutputName->text(), expected);
        QVERIFY(row->labelOutputName->isVisible());
        QVERIFY(!row->editOutputName->isVisible());
    }

    void tracks_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QStringList>("audioHead"); // the first entries of the audio combo
        QTest::addColumn<bool>("subtitles");
        QTest::newRow("video file") << "movie.mkv" << QStringList{QStringLiteral("None")} << true;
        QTest::newRow("audio only") << "tone.flac" << QStringList{} << false;
        QTest::newRow("disc title") << "dvd" << QStringList{QStringLiteral("None")} << true;
    }

    void tracks()
    {
        QFETCH(QString, source);
        QFETCH(QStringList, audioHead);
        QFETCH(bool, subtitles);
        CustomItemWidget *row = addRow(source);
        QVERIFY(row);
        ChildTask *input = list->at(0)->item(0);
        QComboBox *combo = row->comboAudio;
        const int tracks = int(input->edit.audioTracks.size());
        QVERIFY(tracks > 0);
        QCOMPARE(combo->count(), audioHead.size() + tracks + 1);
        for (int i = 0; i < audioHead.size(); ++i)
            QCOMPARE(combo->itemText(i), audioHead[i]);
        QCOMPARE(combo->itemText(audioHead.size()), input->edit.audioTracks[0]->text());
        QCOMPARE(row->comboSubtitle->isEnabled(), subtitles);

        // "Edit Audio" opens the editor and keeps the track chosen before.
        const int shown = combo->currentIndex();
        const int stream = input->edit.selectedAudioStream();
        QTest::keyClick(combo, Qt::Key_End);
        QCOMPARE(window->audioEdits, 1);
        QCOMPARE(input->edit.selectedAudioStream(), stream);
        QCOMPARE(combo->currentIndex(), shown);
        QCOMPARE(window->trackChanges, 0);

        // The first entry is "None" where there is a picture, else the first track.
        QTest::keyClick(combo, Qt::Key_Home);
        QCOMPARE(window->trackChanges, shown == 0 ? 0 : 1);
        QCOMPARE(input->edit.anyAudioSelected(), audioHead.isEmpty());
        QCOMPARE(tree->currentItem(), tree->topLevelItem(0));
    }

    void kinds_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("name");
        // Shown: the track combos, the tick; on a double click it plays; a click on the name
        // edits it.
        QTest::addColumn<QString>("does");
        QTest::newRow("merge") << int(RowMerge) << "" << "tick renames";
        QTest::newRow("child") << int(RowChild) << "movie" << "tracks plays";
        QTest::newRow("disc") << int(RowDisc) << "dvd-main" << "";
    }

    void kinds()
    {
        QFETCH(int, kind);
        QFETCH(QString, name);
        const QString key = ProfileGroupLoader::instance()->defaultProfile();
        const int source = list->addFile(key, fixture(fixtures, "movie.mkv"));
        const int merge = list->addMerge(key);
        const int child = list->addToMerge(source, merge);
        QVERIFY(child >= 0);
        CustomItemWidget *row = kind == RowDisc ? addItem(nullptr, -1, RowDisc, -1)
                                                : addItem(nullptr, merge, RowMerge, -1);
        if (kind == RowChild)
            row = addItem(tree->topLevelItem(0), merge, RowChild, child);
        if (name.isEmpty())
            name = list->byId(merge)->output.fileName;
        QVERIFY(row->labelOutputName->text().endsWith(name));
        QStringList does;
        if (row->comboAudio->isVisible())
            does << u"tracks"_s;
        if (row->checkBox->isVisible())
            does << u"tick"_s;
        QTest::mouseClick(row->labelOutputName, Qt::LeftButton);
        const bool renames = row->editOutputName->isVisible();
        QTest::keyClick(row->editOutputName, Qt::Key_Escape);
        QTest::mouseDClick(row->timeLengthLabel, Qt::LeftButton);
        if (window->plays > 0)
            does << (window->plays == 1 ? u"plays"_s : u"plays again"_s);
        if (renames)
            does << u"renames"_s;
        QTEST(does.join(u' '), "does");
    }

    void closeButton_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("removed");
        QTest::newRow("idle") << int(Task::Idle) << true;
        QTest::newRow("running") << int(Task::Running) << false;
    }

    // The last row closed empties the list; a busy one can't be closed.
    void closeButton()
    {
        QFETCH(int, state);
        QFETCH(bool, removed);
        CustomItemWidget *row = addRow(QStringLiteral("movie.mkv"));
        QVERIFY(row);
        list->at(0)->setState(Task::EState(state));
        // What the window's list operation will do.
        connect(row, &CustomItemWidget::removeRequested, tree,
                [this] { delete tree->takeTopLevelItem(0); });
        QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QCoreApplication::sendEvent(row, &enter);
        QVERIFY(row->closeBtn->isVisible());
        QVERIFY(!row->upBtn->isEnabled());
        QTest::mouseClick(row->closeBtn, Qt::LeftButton);
        QCOMPARE(tree->topLevelItemCount(), removed ? 0 : 1);
        QCOMPARE(window->clears, removed ? 1 : 0);
    }
};

// Made before the application, so the store and the user's folders are the test's own.
static TestHome home;
QTEST_MAIN(TestCustomItemWidget)
#include "tst_customitemwidget.moc"
