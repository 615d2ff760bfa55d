#include "editablecombo.h"
#include "focusoutcombo.h"
#include "settingswindow.h"
#include "fixedtranslator.h"
#include "testhome.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTextEdit>
#include <QTest>
#include <QTreeWidget>

// The settings window over real catalogue documents, used as a user does.
class TestSettingsWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void treeOfADocument();
    void nearestQuality_data();
    void nearestQuality();
    void advancedEditReachesTheSimpleTabOnce();
    void audioDocumentHidesThePicture();
    void languageSwitchKeepsValues();

private:
    QTreeWidget *tree() const;
    QTreeWidgetItem *row(const QString &caption) const;
    std::unique_ptr<SettingsWindow> window;
};

void TestSettingsWindow::init()
{
    window = std::make_unique<SettingsWindow>();
    window->resize(320, 700);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void TestSettingsWindow::cleanup()
{
    window.reset();
}

QTreeWidget *TestSettingsWindow::tree() const
{
    return window->findChild<QTreeWidget *>();
}

QTreeWidgetItem *TestSettingsWindow::row(const QString &caption) const
{
    return tree()->findItems(caption, Qt::MatchExactly | Qt::MatchRecursive).value(0);
}

void TestSettingsWindow::treeOfADocument()
{
    const QMap<QString, QString> task{{QStringLiteral("b"), QStringLiteral("1000")},
                                      {QStringLiteral("ab"), QString()}};
    window->setProfile(QStringLiteral("mp4.xml"), &task);
    QStringList sections;
    for (int i = 0; i < tree()->topLevelItemCount(); ++i)
        sections << tree()->topLevelItem(i)->text(0)
                        + (tree()->topLevelItem(i)->isExpanded() ? QString() : QStringLiteral("-"));
    // Expert folded; captions from the table, keys without a row by their name.
    QCOMPARE(sections.join(QLatin1Char(' ')), QStringLiteral("Video Audio Expert-"));
    QVERIFY(row(QStringLiteral("Video Bitrate")));
    QVERIFY(row(QStringLiteral("pix_fmt")));
    // The task's value shows, in bold; an empty one is the document's default.
    QCOMPARE(row(QStringLiteral("Video Bitrate"))->text(1), QStringLiteral("1000"));
    QVERIFY(row(QStringLiteral("Video Bitrate"))->font(1).bold());
    QCOMPARE(row(QStringLiteral("Audio Bitrate"))->text(1), QStringLiteral("192"));
    QVERIFY(!row(QStringLiteral("Audio Bitrate"))->font(1).bold());
    const QMap<QString, QString> values = window->values();
    QCOMPARE(values.value(QStringLiteral("b")), QStringLiteral("1000"));
    QCOMPARE(values.value(QStringLiteral("s")), QStringLiteral("Auto"));
    // The Simple tab shows the document's default until a key changes.
    QCOMPARE(window->findChild<QComboBox *>(QStringLiteral("comboVideoQuality"))->currentText(),
             QStringLiteral("Normal"));
    // A description follows the current row.
    tree()->setCurrentItem(row(QStringLiteral("Frame Rate")));
    QVERIFY(window->findChild<QTextEdit *>(QStringLiteral("editDescription"))
                ->toPlainText()
                .startsWith(QStringLiteral("Set how many frames")));
}

void TestSettingsWindow::nearestQuality_data()
{
    QTest::addColumn<QString>("items"); // the items' values
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("index");
    QTest::newRow("between steps: the first not above") << "2500,1500,1200,800,512" << "1000" << 3;
    QTest::newRow("below the lowest") << "2500,1500,1200,800,512" << "100" << 4;
    QTest::newRow("no whole numbers") << "12.2,7.95,6.7,5.9,4.75" << "6.7" << 0;
    QTest::newRow("a size by its height")
        << "960*540,1280*720,1440*1080,1920*1080" << "1920*1080" << 2;
    QTest::newRow("Auto") << "Auto,320*240,640*480" << "Auto" << 0;
}

void TestSettingsWindow::nearestQuality()
{
    QFETCH(QString, items);
    QFETCH(QString, value);
    QFETCH(int, index);
    QComboBox combo;
    for (const QString &item : items.split(QLatin1Char(',')))
        combo.addItem(item, item);
    SettingsWindow::selectNearest(&combo, value);
    QCOMPARE(combo.currentIndex(), index);
}

void TestSettingsWindow::advancedEditReachesTheSimpleTabOnce()
{
    window->setProfile(QStringLiteral("mp4.xml"), nullptr);
    auto *tabs = window->findChild<QTabWidget *>(QStringLiteral("tabWidget"));
    tabs->setCurrentIndex(1);
    QSignalSpy changed(window.get(), &SettingsWindow::valueChanged);
    // Typed into the bit rate's editor, taken when the focus leaves.
    const QRect cell = tree()->visualItemRect(row(QStringLiteral("Video Bitrate")));
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {},
                      QPoint(tree()->header()->sectionPosition(1) + 20, cell.center().y()));
    auto *editor = qobject_cast<EditableCombo *>(tree()->itemWidget(row(QStringLiteral("Video Bitrate")), 1));
    QVERIFY(editor);
    QLineEdit *line = editor->comboBox()->lineEdit();
    QTRY_VERIFY(line->hasFocus());
    line->selectAll();
    QTest::keyClicks(line, QStringLiteral("1000"));
    QTest::keyClick(line, Qt::Key_Tab);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().value(0).toString(), QStringLiteral("b"));
    QCOMPARE(changed.first().value(1).toString(), QStringLiteral("1000"));
    QVERIFY(row(QStringLiteral("Video Bitrate"))->font(1).bold());
    QCOMPARE(window->findChild<QComboBox *>(QStringLiteral("comboVideoQuality"))->currentText(),
             QStringLiteral("Lower"));

    // The Simple tab back to the default: one change, and the bold goes.
    tabs->setCurrentIndex(0);
    auto *quality = window->findChild<QComboBox *>(QStringLiteral("comboVideoQuality"));
    quality->setFocus();
    QTest::keyClick(quality, Qt::Key_Up);
    QCOMPARE(quality->currentText(), QStringLiteral("Normal"));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(window->values().value(QStringLiteral("b")), QStringLiteral("1200"));
    QVERIFY(!row(QStringLiteral("Video Bitrate"))->font(1).bold());
}

void TestSettingsWindow::audioDocumentHidesThePicture()
{
    window->setProfile(QStringLiteral("mp3.xml"), nullptr);
    for (const char *name : {"comboVideoSize", "comboVideoQuality", "labelVideoSize"})
        QVERIFY2(!window->findChild<QWidget *>(QLatin1String(name))->isVisible(), name);
    QVERIFY(window->findChild<QWidget *>(QStringLiteral("comboAudioQuality"))->isVisible());
    QVERIFY(!window->values().contains(QStringLiteral("s")));
    // Not editable: every row and Apply To All off.
    window->setEditable(false);
    QVERIFY(row(QStringLiteral("Audio Bitrate"))->isDisabled());
    QVERIFY(!window->findChild<QWidget *>(QStringLiteral("btnApplyToAll"))->isEnabled());
}

void TestSettingsWindow::languageSwitchKeepsValues()
{
    const QMap<QString, QString> task{{QStringLiteral("b"), QStringLiteral("777")},
                                      {QStringLiteral("s"), QStringLiteral("640x480")}};
    window->setProfile(QStringLiteral("mp4.xml"), &task);
    const QMap<QString, QString> before = window->values();
    FixedTranslator german("SettingsWindow", "Video Bitrate", QStringLiteral("Video-Bitrate"));
    QCoreApplication::installTranslator(&german);
    QTRY_VERIFY(row(QStringLiteral("Video-Bitrate")));
    QCOMPARE(window->values(), before);
    QVERIFY(row(QStringLiteral("Video-Bitrate"))->font(1).bold());
    QCoreApplication::removeTranslator(&german);
}

int main(int argc, char *argv[])
{
    TestHome home;
    QApplication app(argc, argv);
    TestSettingsWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_settingswindow.moc"
