#include "cprofilecombo.h"
#include "csaveasdlg.h"
#include "editablecombo.h"
#include "fixedtranslator.h"
#include "focusoutcombo.h"
#include "look/widgettools.h"
#include "profilegrouploader.h"
#include "settingswindow.h"
#include "testhome.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QKeySequence>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

// The settings window over real catalogue documents, and the profile picker, used as a user does:
// the closed picker by keys, its popup by mouse and keys, its search field by typing.
class TestSettingsWindow : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        window.reset();
        owner.reset();
    }

    void treeOfADocument()
    {
        showWindow();
        const QMap<QString, QString> task{{u"b"_s, u"1000"_s}, {u"ab"_s, QString()}};
        window->setProfile(u"mp4.xml"_s, &task);
        QStringList sections;
        for (int i = 0; i < tree()->topLevelItemCount(); ++i)
            sections << tree()->topLevelItem(i)->text(0)
                            + (tree()->topLevelItem(i)->isExpanded() ? u""_s : u"-"_s);
        // Expert folded; captions from the table, keys without a row by their name.
        QCOMPARE(sections.join(u' '), u"Video Audio Expert-"_s);
        QVERIFY(row(u"pix_fmt"_s));
        // The task's value shows, in bold; an empty one is the document's default.
        QCOMPARE(shown(u"Video Bitrate"_s), u"1000 (bold)"_s);
        QCOMPARE(shown(u"Audio Bitrate"_s), u"192"_s);
        QCOMPARE(window->values().value(u"s"_s), u"Auto"_s);
        // The Simple tab shows the document's default until a key changes.
        QCOMPARE(videoQuality()->currentText(), u"Normal"_s);
        // A description follows the current row.
        tree()->setCurrentItem(row(u"Frame Rate"_s));
        QVERIFY(window->findChild<QTextEdit *>(u"editDescription"_s)
                    ->toPlainText()
                    .startsWith(u"Set how many frames"_s));

        // A language switch keeps what was set and shows it again.
        FixedTranslator german("SettingsWindow", "Video Bitrate", u"Video-Bitrate"_s);
        const QMap<QString, QString> before = window->values();
        QCoreApplication::installTranslator(&german);
        QTRY_COMPARE(shown(u"Video-Bitrate"_s), u"1000 (bold)"_s);
        QCOMPARE(window->values(), before);
        QCoreApplication::removeTranslator(&german);
    }

    // The Simple tab's step for a value: the exact one, or the highest
    // quality that doesn't exceed it; sizes by their height.
    void nearestQuality_data()
    {
        QTest::addColumn<QString>("items");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("picked");
        const QString rates = u"2500 1500 1200 800 512"_s;
        const QString decimals = u"12.2 10.2 7.95 6.7 5.9 4.75"_s;
        const QString sizes = u"Auto 320*240 640*480 1440*1080 1920*1080"_s;
        QTest::newRow("between") << rates << u"1000"_s << u"800"_s;
        QTest::newRow("below all") << rates << u"100"_s << u"512"_s;
        QTest::newRow("above all") << rates << u"9000"_s << u"2500"_s;
        QTest::newRow("exact") << rates << u"1200"_s << u"1200"_s;
        QTest::newRow("decimal, exact") << decimals << u"6.7"_s << u"6.7"_s;
        QTest::newRow("decimal, between") << decimals << u"8"_s << u"7.95"_s;
        QTest::newRow("size, exact of two equal heights")
            << sizes << u"1920*1080"_s << u"1920*1080"_s;
        QTest::newRow("size by its height") << sizes << u"800*600"_s << u"1440*1080"_s;
        QTest::newRow("size above all") << sizes << u"4096*2160"_s << u"1920*1080"_s;
    }
    void nearestQuality()
    {
        QFETCH(QString, items);
        QFETCH(QString, value);
        QFETCH(QString, picked);
        QComboBox combo;
        for (const QString &item : items.split(u' '))
            combo.addItem(item, item);
        SettingsWindow::selectNearest(&combo, value);
        QCOMPARE(combo.currentText(), picked);
    }

    void advancedEditReachesTheSimpleTabOnce()
    {
        showWindow();
        window->setProfile(u"mp4.xml"_s, nullptr);
        window->findChild<QTabWidget *>(u"tabWidget"_s)->setCurrentIndex(1);
        QSignalSpy changed(window.get(), &SettingsWindow::valueChanged);
        // Typed into the bit rate's editor, taken when the focus leaves.
        auto *editor = qobject_cast<EditableCombo *>(editValue(tree(), row(u"Video Bitrate"_s)));
        QVERIFY(editor);
        QLineEdit *line = editor->comboBox()->lineEdit();
        QTRY_VERIFY(line->hasFocus());
        line->selectAll();
        QTest::keyClicks(line, u"1000"_s);
        QTest::keyClick(line, Qt::Key_Tab);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().value(0).toString() + u'=' + changed.first().value(1).toString(),
                 u"b=1000"_s);
        QCOMPARE(shown(u"Video Bitrate"_s), u"1000 (bold)"_s);
        QCOMPARE(videoQuality()->currentText(), u"Lower"_s);

        // The Simple tab back to the default: one change, and the bold goes.
        window->findChild<QTabWidget *>(u"tabWidget"_s)->setCurrentIndex(0);
        videoQuality()->setFocus();
        QTest::keyClick(videoQuality(), Qt::Key_Up);
        QCOMPARE(videoQuality()->currentText(), u"Normal"_s);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(window->values().value(u"b"_s), u"1200"_s);
        QCOMPARE(shown(u"Video Bitrate"_s), u"1200"_s);
    }

    void audioDocumentHidesThePicture()
    {
        showWindow();
        window->setProfile(u"mp3.xml"_s, nullptr);
        for (const char *name : {"comboVideoSize", "comboVideoQuality", "labelVideoSize"})
            QVERIFY2(!window->findChild<QWidget *>(QLatin1String(name))->isVisible(), name);
        QVERIFY(window->findChild<QWidget *>(u"comboAudioQuality"_s)->isVisible());
        QVERIFY(!window->values().contains(u"s"_s));
        // Not editable: every row and Apply To All off.
        window->setEditable(false);
        QVERIFY(row(u"Audio Bitrate"_s)->isDisabled());
        QVERIFY(!window->findChild<QWidget *>(u"btnApplyToAll"_s)->isEnabled());
    }

    // The name asked for a new profile: what the user types is taken only when
    // they say OK.
    void saveAsAnswers_data()
    {
        QTest::addColumn<QString>("action"); // which button: OK, Cancel or one by its name
        QTest::addColumn<bool>("accepted");
        QTest::newRow("OK takes the typed name") << "ok" << true;
        QTest::newRow("Cancel keeps the suggestion") << "cancel" << false;
        QTest::newRow("the title bar's close") << "closeBtn" << false;
    }

    void saveAsAnswers()
    {
        QFETCH(QString, action);
        QFETCH(bool, accepted);
        CSaveAsDlg dialog;
        dialog.setName(u"iPhone H.264 Video - 1"_s);
        QVERIFY(showExposed(&dialog));
        auto *edit = dialog.findChild<QLineEdit *>(u"nameLineEidt"_s);
        // The suggestion stands selected: typing replaces it.
        QTest::keyClicks(edit, u"Edited"_s);
        auto *box = dialog.findChild<QDialogButtonBox *>(u"okCancelBtnBox"_s);
        QAbstractButton *button = action == "ok"_L1       ? box->button(QDialogButtonBox::Ok)
                                  : action == "cancel"_L1 ? box->button(QDialogButtonBox::Cancel)
                                                          : dialog.findChild<QPushButton *>(action);
        QVERIFY(button && button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(dialog.result(), accepted ? QDialog::Accepted : QDialog::Rejected);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.name(), accepted ? u"Edited"_s : u"iPhone H.264 Video - 1"_s);
    }

    void hoverShowsAGroupAndAClickPicksOnce()
    {
        showCombo();
        CProfileMenu *menu = open();
        QVERIFY(menu);
        QCOMPARE(menu->groupList()->currentItem()->text(), u"General Video"_s);
        QCOMPARE(shownKeys().value(menu->profileList()->currentRow()), u"1,68"_s);
        // The empty user group shows nothing on the right.
        mouse(menu->groupList(), 0, false);
        QTRY_COMPARE(menu->profileList()->rowCount(), 0);
        mouse(menu->groupList(), 6, false);
        QTRY_COMPARE(shownKeys().value(0), u"14,42"_s);
        QCOMPARE(shownKeys().size(), 8);
        QSignalSpy changed(combo, qOverload<int>(&QComboBox::currentIndexChanged));
        mouse(menu->profileList(), 3, true);
        QCOMPARE(changed.count(), 1);
        QVERIFY(!menu->isVisible());
        QCOMPARE(combo->currentText(), u"iPad 2 H.264 Video(*.mp4)"_s);

        // An unknown key leaves it empty; a profile saved meanwhile is in the popup at once.
        select(u"1,9999"_s);
        QCOMPARE(combo->count(), 0);
        const QString key
            = ProfileGroupLoader::instance()->saveUserProfile(u"1,68"_s, {}, u"Mine"_s);
        menu = open();
        QVERIFY(menu);
        mouse(menu->groupList(), 0, false);
        QTRY_COMPARE(shownKeys(), QStringList{key});
        mouse(menu->profileList(), 0, true);
        QCOMPARE(combo->currentText(), u"Mine(*.mp4)"_s);
        QVERIFY(!ProfileGroupLoader::instance()->removeUserProfile(u"0"_s, key.mid(2)).isEmpty());
    }

    void keys_data()
    {
        QTest::addColumn<bool>("popup"); // the keys go to the open popup's list, else the combo
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("keys"); // by their names, as QKeySequence reads them
        QTest::addColumn<QString>("picked");
        const auto row = [](const char *name, bool popup, const char *from, const char *keys,
                            const char *picked) {
            QTest::newRow(name) << popup << from << keys << picked;
        };
        // Group 17 holds three profiles with the shortcuts P, H and G.
        row("popup: a letter jumps, Return picks", true, "17,1", "H Return", "17,2");
        row("popup: letters go round", true, "17,1", "G P Return", "17,1");
        row("popup: up from the first wraps", true, "17,1", "Up Return", "17,105");
        row("popup: Escape picks nothing", true, "17,1", "G Esc", "1,68");
        row("popup: a letter no row has", true, "17,1", "Z", "1,68");
        row("down into the next group", false, "1,123", "Down", "2,3");
        row("left back over the border", false, "2,3", "Left", "1,123");
        row("up stops at the first", false, "1,12", "Up", "1,12");
        row("down stops at the last", false, "24,121", "Down", "24,121");
        row("home past the empty user group", false, "13,13", "Home", "1,12");
        row("end", false, "1,12", "End", "24,121");
    }

    void keys()
    {
        showCombo();
        QFETCH(bool, popup);
        QFETCH(QString, from);
        QFETCH(QString, keys);
        select(from);
        QWidget *target = combo;
        combo->setFocus();
        if (popup) {
            // The popup shows one profile while the combo holds another.
            QVERIFY(open());
            select(u"1,68"_s);
            combo->profileMenu()->showCurrent(from.section(u',', 0, 0), from.section(u',', 1));
            target = combo->profileMenu()->profileList();
        }
        for (const QString &name : keys.split(u' '))
            QTest::keyClick(target, QKeySequence(name)[0].key());
        QCOMPARE(combo->profileMenu()->isVisible(), popup && keys == "Z"_L1);
        QTEST(combo->currentRecord().key, "picked");
    }

    void search_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected"); // keys in the order shown
        const auto row = [](const char *name, const QString &text, const char *expected) {
            QTest::newRow(name) << text << expected;
        };
        // The map's order: group ids as text ("16" before "17"), each group's
        // entries last first. Pinned here, for a name that spans groups.
        row("by name, in the map's order", u"ipod"_s, "16,132 16,131 16,55 16,53 16,51 16,49");
        row("by extension", u"(*.3gp)"_s, "17,17 17,2 17,1");
        row("by description", u"camcorders"_s, "1,31");
        row("the prompt itself", CProfileMenu::searchPrompt(), "");
    }

    void search()
    {
        showCombo();
        QFETCH(QString, text);
        QFETCH(QString, expected);
        const QStringList keys = expected.split(u' ', Qt::SkipEmptyParts);
        combo->showSearch();
        CSearchLineEdit *field = combo->profileMenu()->searchField();
        QVERIFY(field->hasFocus());
        QCOMPARE(field->selectedText(), CProfileMenu::searchPrompt());
        QTest::keyClicks(field, text);
        QCOMPARE(shownKeys(), keys);
        // The first hit is current: Return picks it.
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(combo->currentRecord().key, keys.isEmpty() ? u"1,68"_s : keys.first());
    }

private:
    void showWindow()
    {
        window = std::make_unique<SettingsWindow>();
        window->resize(320, 700);
        QVERIFY(showExposed(window.get()));
    }
    // The picker, standing at the default profile.
    void showCombo()
    {
        owner = std::make_unique<CProfileCombo>();
        combo = owner.get();
        combo->setGeometry(10, 10, 300, 30);
        QVERIFY(showExposed(combo));
        select(u"1,68"_s);
    }
    // The row's value as shown, marked when bold (set apart from the default).
    QString shown(const QString &caption) const
    {
        const QTreeWidgetItem *item = row(caption);
        return !item ? u"no row"_s : item->text(1) + (item->font(1).bold() ? u" (bold)"_s : u""_s);
    }
    QTreeWidgetItem *row(const QString &caption) const
    {
        return tree()->findItems(caption, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    QTreeWidget *tree() const { return window->findChild<QTreeWidget *>(); }
    QComboBox *videoQuality() const
    {
        return window->findChild<QComboBox *>(u"comboVideoQuality"_s);
    }
    std::unique_ptr<SettingsWindow> window;
    CProfileMenu *open()
    {
        QTest::mouseClick(combo, Qt::LeftButton);
        return QTest::qWaitForWindowExposed(combo->profileMenu()) ? combo->profileMenu() : nullptr;
    }
    void select(const QString &key)
    {
        combo->selectProfile(key.section(u',', 0, 0), key.section(u',', 1));
    }

    QStringList shownKeys() const
    {
        QStringList keys;
        const QTableWidget *list = combo->profileMenu()->profileList();
        for (int row = 0; row < list->rowCount(); ++row)
            keys << list->item(row, 0)->data(Qt::UserRole + 5).toString();
        return keys;
    }

    // Moves the mouse onto the row, or clicks it.
    static void mouse(QTableWidget *list, int row, bool click)
    {
        list->scrollToItem(list->item(row, 0));
        const QPoint at = list->visualItemRect(list->item(row, 0)).center();
        if (click)
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
        else
            QTest::mouseMove(list->viewport(), at);
    }
    std::unique_ptr<CProfileCombo> owner;
    CProfileCombo *combo = nullptr;
};

// Made before the application, so the store and the user's folders are the test's own.
static TestHome home;
QTEST_MAIN(TestSettingsWindow)
#include "tst_settingswindow.moc"
