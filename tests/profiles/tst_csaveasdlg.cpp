#include "csaveasdlg.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

class TestCSaveAsDlg : public QObject
{
    Q_OBJECT

private slots:
    void layout();
    void answers_data();
    void answers();
};

void TestCSaveAsDlg::layout()
{
    CSaveAsDlg dialog;
    QCOMPARE(dialog.size(), QSize(400, 130));
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
    // The style sheet selects these by name.
    for (const char *name : {"nameLineEidt", "okCancelBtnBox", "closeBtn", "closeBtnMac"})
        QVERIFY2(dialog.findChild<QWidget *>(QLatin1String(name)), name);
    QVERIFY(!dialog.frameState().isNull());
}

void TestCSaveAsDlg::answers_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("name");
    QTest::newRow("ok takes the edited text") << "ok" << int(QDialog::Accepted) << "Edited";
    QTest::newRow("cancel keeps the suggestion")
        << "cancel" << int(QDialog::Rejected) << "iPhone H.264 Video - 1";
    QTest::newRow("title bar close")
        << "closeBtn" << int(QDialog::Rejected) << "iPhone H.264 Video - 1";
    QTest::newRow("other close") << "closeBtnMac" << int(QDialog::Rejected)
                                 << "iPhone H.264 Video - 1";
}

void TestCSaveAsDlg::answers()
{
    QFETCH(QString, button);
    CSaveAsDlg dialog;
    dialog.setName(QStringLiteral("iPhone H.264 Video - 1"));
    auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("nameLineEidt"));
    QCOMPARE(edit->text(), QStringLiteral("iPhone H.264 Video - 1"));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::keyClicks(edit, QStringLiteral("Edited"));

    auto *box = dialog.findChild<QDialogButtonBox *>(QStringLiteral("okCancelBtnBox"));
    QAbstractButton *target = nullptr;
    if (button == QLatin1String("ok"))
        target = box->button(QDialogButtonBox::Ok);
    else if (button == QLatin1String("cancel"))
        target = box->button(QDialogButtonBox::Cancel);
    else
        target = dialog.findChild<QPushButton *>(button);
    QVERIFY(target);
    target->click();
    QTEST(dialog.result(), "result");
    QVERIFY(!dialog.isVisible());
    QTEST(dialog.name(), "name");
}

QTEST_MAIN(TestCSaveAsDlg)
#include "tst_csaveasdlg.moc"
