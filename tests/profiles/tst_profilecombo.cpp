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
    void keys_data();
    void keys();
    void search_data();
    void search();
    void savedProfileShowsAtOnce();

private:
    void open();
    void select(const QString &key);
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
    select(QStringLiteral("1,68"));
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

void TestProfileCombo::select(const QString &key)
{
    combo->selectProfile(key.section(QLatin1Char(','), 0, 0), key.section(QLatin1Char(','), 1));
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
    QCOMPARE(menu->groupList()->currentItem()->text(), QStringLiteral("General Video"));
    QCOMPARE(menu->profileList()->currentItem()->data(Qt::UserRole + 5).toString(),
             QStringLiteral("1,68"));
    // The empty user group shows nothing on the right.
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
    QCOMPARE(combo->currentText(), QStringLiteral("iPad 2 H.264 Video(*.mp4)"));
    QCOMPARE(combo->currentData().value<ProfileRecord>().fileName, QStringLiteral("iPad2_h264.xml"));
}

void TestProfileCombo::keys_data()
{
    QTest::addColumn<bool>("popup"); // the keys go to the open popup's list, else the combo
    QTest::addColumn<QString>("from");
    // One key a character: a letter, ^ _ < [ ] for Up Down Left Home End, \n Return, \x1b Escape.
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("picked");
    // Group 17 holds three profiles with the shortcuts P, H and G.
    QTest::newRow("popup: a letter jumps, Return picks") << true << "17,1" << "h\n" << "17,2";
    QTest::newRow("popup: letters go round") << true << "17,1" << "gp\n" << "17,1";
    QTest::newRow("popup: up from the first wraps") << true << "17,1" << "^\n" << "17,105";
    QTest::newRow("popup: Escape picks nothing") << true << "17,1" << "g\x1b" << "1,68";
    QTest::newRow("popup: a letter no row has") << true << "17,1" << "z" << "1,68";
    QTest::newRow("down into the next group") << false << "1,123" << "_" << "2,3";
    QTest::newRow("left back over the border") << false << "2,3" << "<" << "1,123";
    QTest::newRow("up stops at the first") << false << "1,12" << "^" << "1,12";
    QTest::newRow("down stops at the last") << false << "24,121" << "_" << "24,121";
    QTest::newRow("home past the empty user group") << false << "13,13" << "[" << "1,12";
    QTest::newRow("end") << false << "1,12" << "]" << "24,121";
}

void TestProfileCombo::keys()
{
    QFETCH(bool, popup);
    QFETCH(QString, from);
    QFETCH(QString, keys);
    QWidget *target = combo;
    if (popup) {
        // The popup shows one profile while the combo holds another.
        select(from);
        open();
        select(QStringLiteral("1,68"));
        combo->profileMenu()->showCurrent(from.section(QLatin1Char(','), 0, 0),
                                          from.section(QLatin1Char(','), 1));
        target = combo->profileMenu()->profileList();
    } else {
        select(from);
        combo->setFocus();
    }
    const QString named = QStringLiteral("^_<[]\n\x1b");
    const Qt::Key special[] = {Qt::Key_Up,   Qt::Key_Down,   Qt::Key_Left,  Qt::Key_Home,
                               Qt::Key_End,  Qt::Key_Return, Qt::Key_Escape};
    for (const QChar c : keys) {
        const int at = named.indexOf(c);
        QTest::keyClick(target, at >= 0 ? special[at] : Qt::Key(Qt::Key_A + (c.unicode() - 'a')));
    }
    QCOMPARE(combo->profileMenu()->isVisible(), popup && keys == QLatin1String("z"));
    QTEST(combo->currentRecord().key, "picked");
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
    QTest::newRow("by description") << "camcorders" << "1,31";
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

void TestProfileCombo::savedProfileShowsAtOnce()
{
    select(QStringLiteral("1,9999"));
    QCOMPARE(combo->count(), 0);
    const QString key = ProfileGroupLoader::instance()->saveUserProfile(
        QStringLiteral("1,68"), {}, QStringLiteral("My Phone"));
    open();
    QTest::mouseMove(combo->profileMenu()->groupList()->viewport(),
                     rowCentre(combo->profileMenu()->groupList(), 0));
    QTRY_COMPARE(shownKeys(), QStringList{key});
    QTableWidget *list = combo->profileMenu()->profileList();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rowCentre(list, 0));
    QCOMPARE(combo->currentText(), QStringLiteral("My Phone(*.mp4)"));
}

int main(int argc, char *argv[])
{
    TestHome home;
    QApplication app(argc, argv);
    TestProfileCombo test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_profilecombo.moc"
