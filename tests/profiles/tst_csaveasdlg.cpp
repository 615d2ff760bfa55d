#include "csaveasdlg.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

// The name asked for a new profile: what the user types is taken only when
// they say OK.
class TestCSaveAsDlg : public QObject
{
    Q_OBJECT

private slots:
    void answers_data()
    {
        QTest::addColumn<QString>("action"); // which button: OK, Cancel or one by its name
        QTest::addColumn<bool>("accepted");
        QTest::newRow("OK takes the typed name") << "ok" << true;
        QTest::newRow("Cancel keeps the suggestion") << "cancel" << false;
        QTest::newRow("the title bar's close") << "closeBtn" << false;
    }

    void answers()
    {
        QFETCH(QString, action);
        QFETCH(bool, accepted);
        CSaveAsDlg dialog;
        dialog.setName(u"iPhone H.264 Video - 1"_s);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
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
};

QTEST_MAIN(TestCSaveAsDlg)
#include "tst_csaveasdlg.moc"
