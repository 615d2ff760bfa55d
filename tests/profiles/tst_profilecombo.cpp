#include "cprofilecombo.h"
#include "profilegrouploader.h"
#include "testhome.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

// The profile picker driven as a user does: the closed combo by keys, the
// popup by mouse and keys, the search field by typing.
class TestProfileCombo : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void hoverShowsAGroupAndAClickPicksOnce();
    void popupKeys_data();
    void popupKeys();
    void search_data();
    void search();
    void closedComboWalksAcrossGroups_data();
    void closedComboWalksAcrossGroups();
    void unknownKeyLeavesItEmpty();

private:
    void open();
    QStringList shownKeys() const;
    QPoint rowCentre(QTableWidget *list, int row) const;
    std::unique_ptr<QWidget> window;
    CProfileCombo *combo = nullptr;
};

void TestProfileCombo::init()
{
    window = std::make_unique<QWidget>();
    window->resize(600, 700);
    combo = new CProfileCombo(window.get());
    combo->setGeometry(10, 10, 300, 30);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    combo->selectProfile(QStringLiteral("1"), QStringLiteral("68"));
}

void TestProfileCombo::cleanup()
{
    window.reset();
}

void TestProfileCombo::open()
{
    QTest::mouseClick(combo, Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowExposed(combo->profileMenu()));
}

QStringList TestProfileCombo::shownKeys() const
{
    QStringList keys;
    const QTableWidget *list = combo->profileMenu()->profileList();
    for (int row = 0; row < list->rowCount(); ++row)
        keys << list->item(row, 0)->data(Qt::UserRole + 5).toString();
    return keys;
}

QPoint TestProfileCombo::rowCentre(QTableWidget *list, int row) const
{
    list->scrollToItem(list->item(row, 0));
    return list->visualItemRect(list->item(row, 0)).center();
}

void TestProfileCombo::hoverShowsAGroupAndAClickPicksOnce()
{
    open();
    CProfileMenu *menu = combo->profileMenu();
    // The current profile is shown in both lists.
    QCOMPARE(menu->groupList()->currentItem()->text(), QStringLiteral("General Video"));
    QCOMPARE(menu->profileList()->currentItem()->data(Qt::UserRole + 5).toString(),
             QStringLiteral("1,68"));
    // The empty user group: nothing on the right, no arrows.
    QTest::mouseMove(menu->groupList()->viewport(), rowCentre(menu->groupList(), 0));
    QTRY_COMPARE(menu->profileList()->rowCount(), 0);

    const int ipad = 6;
    QCOMPARE(menu->groupList()->item(ipad, 0)->text(), QStringLiteral("iPad"));
    QTest::mouseMove(menu->groupList()->viewport(), rowCentre(menu->groupList(), ipad));
    QTRY_COMPARE(shownKeys().value(0), QStringLiteral("14,42"));
    QCOMPARE(shownKeys().size(), 8);

    QSignalSpy changed(combo, qOverload<int>(&QComboBox::currentIndexChanged));
    QTest::mouseClick(menu->profileList()->viewport(), Qt::LeftButton, {},
                      rowCentre(menu->profileList(), 3));
    QCOMPARE(changed.count(), 1);
    QVERIFY(!menu->isVisible());
    QCOMPARE(combo->currentRecord().key, QStringLiteral("14,126"));
    QCOMPARE(combo->currentText(), QStringLiteral("iPad 2 H.264 Video(*.mp4)"));
    QCOMPARE(combo->currentData().value<ProfileRecord>().fileName, QStringLiteral("iPad2_h264.xml"));
}

void TestProfileCombo::popupKeys_data()
{
    QTest::addColumn<QString>("keys"); // typed into the profile list, one per character
    QTest::addColumn<bool>("open");
    QTest::addColumn<QString>("picked");
    // Group 17 holds three profiles with the shortcuts P, H and G.
    QTest::newRow("a letter jumps, Return picks") << "h\n" << false << "17,2";
    QTest::newRow("letters go round from the row after") << "gp\n" << false << "17,1";
    QTest::newRow("up from the first row wraps") << "^\n" << false << "17,105";
    QTest::newRow("Escape closes, picks nothing") << "g\x1b" << false << "1,68";
    QTest::newRow("a letter no row has") << "z" << true << "1,68";
}

void TestProfileCombo::popupKeys()
{
    QFETCH(QString, keys);
    QFETCH(bool, open);
    QFETCH(QString, picked);
    combo->selectProfile(QStringLiteral("17"), QStringLiteral("1"));
    this->open();
    CProfileMenu *menu = combo->profileMenu();
    combo->selectProfile(QStringLiteral("1"), QStringLiteral("68"));
    menu->showCurrent(QStringLiteral("17"), QStringLiteral("1"));
    QCOMPARE(menu->profileList()->currentRow(), 0);
    for (const QChar c : keys) {
        const Qt::Key key = c == QLatin1Char('\n')   ? Qt::Key_Return
                            : c == QLatin1Char('\x1b') ? Qt::Key_Escape
                            : c == QLatin1Char('^')    ? Qt::Key_Up
                                                       : Qt::Key(Qt::Key_A + (c.unicode() - 'a'));
        QTest::keyClick(menu->profileList(), key, Qt::NoModifier);
    }
    QCOMPARE(menu->isVisible(), open);
    QCOMPARE(combo->currentRecord().key, picked);
}

void TestProfileCombo::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected"); // keys in the order shown
    // The map's order: group ids as text ("16" before "17"), each group's
    // entries last first. Pinned here, for a name that spans groups.
    QTest::newRow("by name, in the map's order")
        << "ipod" << "16,132 16,131 16,55 16,53 16,51 16,49";
    QTest::newRow("by extension") << "(*.3gp)" << "17,17 17,2 17,1";
    QTest::newRow("by description") << "lossless" << "2,133 2,134";
    QTest::newRow("nothing") << "no such profile" << "";
    QTest::newRow("the prompt itself") << CProfileMenu::searchPrompt() << "";
}

void TestProfileCombo::search()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    const QStringList keys = expected.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    combo->showSearch();
    CSearchLineEdit *field = combo->profileMenu()->searchField();
    QVERIFY(field->hasFocus());
    QCOMPARE(field->selectedText(), CProfileMenu::searchPrompt());
    QTest::keyClicks(field, text);
    QCOMPARE(shownKeys(), keys);
    if (!keys.isEmpty()) {
        // The first hit is current: Return picks it.
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(combo->currentRecord().key, keys.first());
    }
}

void TestProfileCombo::closedComboWalksAcrossGroups_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("to");
    QTest::newRow("down into the next group") << "1,123" << int(Qt::Key_Down) << "2,3";
    QTest::newRow("left back over the border") << "2,3" << int(Qt::Key_Left) << "1,123";
    QTest::newRow("up stops at the first") << "1,12" << int(Qt::Key_Up) << "1,12";
    QTest::newRow("down stops at the last") << "24,121" << int(Qt::Key_Down) << "24,121";
    QTest::newRow("home past the empty user group") << "13,13" << int(Qt::Key_Home) << "1,12";
    QTest::newRow("end") << "1,12" << int(Qt::Key_End) << "24,121";
}

void TestProfileCombo::closedComboWalksAcrossGroups()
{
    QFETCH(QString, from);
    QFETCH(int, key);
    QFETCH(QString, to);
    combo->selectProfile(from.section(QLatin1Char(','), 0, 0), from.section(QLatin1Char(','), 1));
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key(key));
    QCOMPARE(combo->currentRecord().key, to);
    QVERIFY(!combo->profileMenu()->isVisible());
}

void TestProfileCombo::unknownKeyLeavesItEmpty()
{
    combo->selectProfile(QStringLiteral("1"), QStringLiteral("9999"));
    QCOMPARE(combo->count(), 0);
    // A profile the user saves is in the popup at once.
    const QString key = ProfileGroupLoader::instance()->saveUserProfile(
        QStringLiteral("1,68"), {}, QStringLiteral("My Phone"));
    open();
    QTest::mouseMove(combo->profileMenu()->groupList()->viewport(),
                     rowCentre(combo->profileMenu()->groupList(), 0));
    QTRY_COMPARE(shownKeys(), QStringList{key});
    QTest::keyClick(combo->profileMenu()->profileList(), Qt::Key_Escape);
    combo->selectProfile(key.section(QLatin1Char(','), 0, 0), key.section(QLatin1Char(','), 1));
    QCOMPARE(combo->currentText(), QStringLiteral("My Phone(*.mp4)"));
    QCOMPARE(ProfileGroupLoader::instance()->removeUserProfile(key.section(QLatin1Char(','), 0, 0),
                                                               key.section(QLatin1Char(','), 1)),
             QStringLiteral("1,68"));
}

int main(int argc, char *argv[])
{
    TestHome home;
    QApplication app(argc, argv);
    TestProfileCombo test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_profilecombo.moc"
