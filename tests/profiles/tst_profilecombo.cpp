#include "cprofilecombo.h"
#include "profilegrouploader.h"
#include "testhome.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

// The profile picker driven as a user does: the closed combo by keys, the
// popup by mouse and keys, the search field by typing.
class TestProfileCombo : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        owner = std::make_unique<CProfileCombo>();
        combo = owner.get();
        combo->setGeometry(10, 10, 300, 30);
        combo->show();
        QVERIFY(QTest::qWaitForWindowExposed(combo));
        select(u"1,68"_s);
    }
    void cleanup() { owner.reset(); }

    void hoverShowsAGroupAndAClickPicksOnce()
    {
        CProfileMenu *menu = open();
        QVERIFY(menu);
        QCOMPARE(menu->groupList()->currentItem()->text(), u"General Video"_s);
        QCOMPARE(shownKeys().value(menu->profileList()->currentRow()), u"1,68"_s);
        // The empty user group shows nothing on the right.
        mouse(menu->groupList(), 0, false);
        QTRY_COMPARE(menu->profileList()->rowCount(), 0);
        QCOMPARE(menu->groupList()->item(6, 0)->text(), u"iPad"_s);
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
        // One key a character: a letter, ^ _ < [ ] for Up Down Left Home End, \n Return, \x1b
        // Escape.
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("picked");
        const auto row = [](const char *name, bool popup, const char *from, const char *keys,
                            const char *picked) {
            QTest::newRow(name) << popup << from << keys << picked;
        };
        // Group 17 holds three profiles with the shortcuts P, H and G.
        row("popup: a letter jumps, Return picks", true, "17,1", "h\n", "17,2");
        row("popup: letters go round", true, "17,1", "gp\n", "17,1");
        row("popup: up from the first wraps", true, "17,1", "^\n", "17,105");
        row("popup: Escape picks nothing", true, "17,1", "g\x1b", "1,68");
        row("popup: a letter no row has", true, "17,1", "z", "1,68");
        row("down into the next group", false, "1,123", "_", "2,3");
        row("left back over the border", false, "2,3", "<", "1,123");
        row("up stops at the first", false, "1,12", "^", "1,12");
        row("down stops at the last", false, "24,121", "_", "24,121");
        row("home past the empty user group", false, "13,13", "[", "1,12");
        row("end", false, "1,12", "]", "24,121");
    }

    void keys()
    {
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
        const QString named = u"^_<[]\n\x1b"_s;
        const Qt::Key special[] = {Qt::Key_Up,  Qt::Key_Down,   Qt::Key_Left,  Qt::Key_Home,
                                   Qt::Key_End, Qt::Key_Return, Qt::Key_Escape};
        for (const QChar c : keys) {
            const int at = named.indexOf(c);
            QTest::keyClick(target,
                            at >= 0 ? special[at] : Qt::Key(Qt::Key_A + (c.unicode() - 'a')));
        }
        QCOMPARE(combo->profileMenu()->isVisible(), popup && keys == "z"_L1);
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
QTEST_MAIN(TestProfileCombo)
#include "tst_profilecombo.moc"
