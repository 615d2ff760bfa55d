#include "editablecombo.h"
#include "fixedtranslator.h"
#include "focusoutcombo.h"
#include "qttreepropertybrowser.h"
#include "qtvariantproperty.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

// The property tree and its editors, driven with mouse and keys.
class TestPropertyBrowser : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void editorLivesWhileItsRowIsCurrent();
    void rowsShowStateAndFollowTheLanguage();
    void editableCombo_data();
    void editableCombo();
    void pickingFromTheListStoresIt();

private:
    QTreeWidgetItem *row(const QString &name) const;
    void clickValue(const QString &name);
    std::unique_ptr<QWidget> window;
    QtTreePropertyBrowser *browser = nullptr;
    QtVariantPropertyManager *variants = nullptr;
    EditableComboManager *combos = nullptr;
    EditableComboFactory *comboFactory = nullptr;
    QtProperty *group = nullptr, *title = nullptr, *codec = nullptr, *locked = nullptr,
               *open = nullptr;
};

void TestPropertyBrowser::init()
{
    window = std::make_unique<QWidget>();
    window->resize(400, 500);
    browser = new QtTreePropertyBrowser(window.get());
    browser->resize(400, 460);
    auto *other = new QLineEdit(window.get()); // somewhere for the focus to go
    other->move(0, 470);
    variants = new QtVariantPropertyManager(window.get());
    combos = new EditableComboManager(window.get());
    comboFactory = new EditableComboFactory(window.get());
    browser->setFactoryForManager(variants, new QtVariantEditorFactory(window.get()));
    browser->setFactoryForManager(combos, comboFactory);
    browser->setPropertiesWithoutValueMarked(true);

    group = variants->addProperty(QtVariantPropertyManager::groupTypeId(), QStringLiteral("Video"));
    title = variants->addProperty(QMetaType::QString, QStringLiteral("Title"));
    variants->setValue(title, QStringLiteral("Holiday"));
    codec = variants->addProperty(QtVariantPropertyManager::enumTypeId(), QStringLiteral("Codec"));
    variants->setAttribute(codec, QStringLiteral("enumNames"),
                           QStringList{QStringLiteral("mpeg4"), QStringLiteral("h264")});
    locked = variants->addProperty(QMetaType::QString, QStringLiteral("Locked"));
    locked->setEnabled(false);
    open = combos->addProperty(QStringLiteral("Size"));
    combos->setCandidateValues(open, {QStringLiteral("Auto"), QStringLiteral("320*240")});
    combos->setValue(open, QStringLiteral("320*240"));
    for (QtProperty *p : {title, codec, locked, open})
        group->addSubProperty(p);
    browser->addProperty(group);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void TestPropertyBrowser::cleanup()
{
    window.reset();
}

QTreeWidgetItem *TestPropertyBrowser::row(const QString &name) const
{
    const auto found = browser->treeWidget()->findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
    return found.value(0);
}

void TestPropertyBrowser::clickValue(const QString &name)
{
    QTreeWidget *tree = browser->treeWidget();
    const QRect cell = tree->visualItemRect(row(name));
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                      QPoint(tree->header()->sectionPosition(1) + 20, cell.center().y()));
}

void TestPropertyBrowser::editorLivesWhileItsRowIsCurrent()
{
    QTreeWidget *tree = browser->treeWidget();
    QSignalSpy current(browser, &QtTreePropertyBrowser::currentItemChanged);
    QSignalSpy changed(variants, &QtVariantPropertyManager::valueChanged);
    clickValue(QStringLiteral("Title"));
    QCOMPARE(current.count(), 1);
    QPointer<QLineEdit> line = qobject_cast<QLineEdit *>(tree->itemWidget(row(QStringLiteral("Title")), 1));
    QVERIFY(line);
    QTRY_VERIFY(line->hasFocus());
    // Typed text counts when the focus leaves, by Tab.
    line->selectAll();
    QTest::keyClicks(line, QStringLiteral("Trip"));
    QCOMPARE(changed.count(), 0);
    QTest::keyClick(line, Qt::Key_Tab);
    QCOMPARE(variants->value(title).toString(), QStringLiteral("Trip"));
    QCOMPARE(changed.count(), 1);

    // Another row current: the old editor is gone, the choice gets a drop-down.
    clickValue(QStringLiteral("Codec"));
    QVERIFY(line.isNull());
    auto *combo = qobject_cast<QComboBox *>(tree->itemWidget(row(QStringLiteral("Codec")), 1));
    QVERIFY(combo);
    QCOMPARE(combo->accessibleName(), QStringLiteral("Codec"));
    // By keys alone: down to the row, Return opens the list, Down and Return pick.
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Up);
    QTest::keyClick(tree, Qt::Key_Down);
    combo = qobject_cast<QComboBox *>(tree->itemWidget(row(QStringLiteral("Codec")), 1));
    QTest::keyClick(tree, Qt::Key_Return);
    QTRY_VERIFY(combo->view()->isVisible());
    QTest::keyClick(combo->view(), Qt::Key_Down);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    QCOMPARE(variants->value(codec).toInt(), 1);
    QCOMPARE(row(QStringLiteral("Codec"))->text(1), QStringLiteral("h264"));

    // A disabled row gets no editor.
    clickValue(QStringLiteral("Locked"));
    QVERIFY(!tree->itemWidget(row(QStringLiteral("Locked")), 1));
}

void TestPropertyBrowser::rowsShowStateAndFollowTheLanguage()
{
    QTreeWidget *tree = browser->treeWidget();
    QVERIFY(!row(QStringLiteral("Title"))->font(1).bold());
    title->setModified(true);
    QVERIFY(row(QStringLiteral("Title"))->font(1).bold());
    title->setModified(false);
    QVERIFY(!row(QStringLiteral("Title"))->font(0).bold());
    QVERIFY(row(QStringLiteral("Locked"))->isDisabled());
    title->setWhatsThis(QStringLiteral("The name shown by players"));
    QCOMPARE(row(QStringLiteral("Title"))->whatsThis(0), QStringLiteral("The name shown by players"));

    // The group folds by keys.
    QTreeWidgetItem *video = row(QStringLiteral("Video"));
    QVERIFY(video->isExpanded());
    tree->setFocus();
    tree->setCurrentItem(video);
    QTest::keyClick(tree, Qt::Key_Left);
    QVERIFY(!video->isExpanded());
    QVERIFY(!browser->isExpanded(browser->topLevelItems().first()));
    QTest::keyClick(tree, Qt::Key_Right);
    QVERIFY(video->isExpanded());

    // A removed row leaves the tree; a destroyed one too.
    group->removeSubProperty(locked);
    QVERIFY(!row(QStringLiteral("Locked")));
    delete codec;
    QVERIFY(!row(QStringLiteral("Codec")));

    FixedTranslator german("QtTreePropertyBrowser", "Property", QStringLiteral("Eigenschaft"));
    QCoreApplication::installTranslator(&german);
    QTRY_COMPARE(tree->headerItem()->text(0), QStringLiteral("Eigenschaft"));
    QCoreApplication::removeTranslator(&german);
    QTRY_COMPARE(tree->headerItem()->text(0), QStringLiteral("Property"));
}

void TestPropertyBrowser::editableCombo_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("typed"); // \x1b for Escape; the focus then leaves by Tab
    QTest::addColumn<QString>("result");
    QTest::newRow("a size") << "s" << "320*240" << "720*480" << "720*480";
    QTest::newRow("a size with x") << "s" << "320*240" << "720x480" << "720x480";
    QTest::newRow("half a size goes back") << "s" << "320*240" << "720*" << "320*240";
    QTest::newRow("Escape goes back") << "b" << "1200" << "1500\x1b" << "1200";
    QTest::newRow("no zero bit rate") << "b" << "1200" << "0" << "1200";
    QTest::newRow("no leading zero in a size") << "s" << "320*240" << "0" << "320*240";
    QTest::newRow("a volume needs its sign") << "vol" << "75%" << "100" << "75%";
    QTest::newRow("a volume") << "vol" << "75%" << "150%" << "150%";
    QTest::newRow("an aspect ratio") << "aspect" << "Auto" << "16:9" << "16:9";
}

void TestPropertyBrowser::editableCombo()
{
    QFETCH(QString, key);
    QFETCH(QString, stored);
    QFETCH(QString, typed);
    QFETCH(QString, result);
    combos->setValue(open, stored);
    comboFactory->setPattern(open, EditableComboFactory::patternFor(key));
    QSignalSpy changed(combos, &EditableComboManager::valueChanged);
    clickValue(QStringLiteral("Size"));
    auto *editor = qobject_cast<EditableCombo *>(browser->treeWidget()->itemWidget(row(QStringLiteral("Size")), 1));
    QVERIFY(editor);
    QLineEdit *line = editor->comboBox()->lineEdit();
    QTRY_VERIFY(line->hasFocus());
    line->selectAll();
    for (const QChar c : typed) {
        if (c == QLatin1Char('\x1b'))
            QTest::keyClick(line, Qt::Key_Escape);
        else
            QTest::keyClicks(line, QString(c));
    }
    QTest::keyClick(line, Qt::Key_Tab);
    QCOMPARE(combos->value(open), result);
    QCOMPARE(editor->comboBox()->currentText(), result);
    // Only a change is told; what stood already says nothing.
    QCOMPARE(changed.count(), result == stored ? 0 : 1);
}

void TestPropertyBrowser::pickingFromTheListStoresIt()
{
    comboFactory->setPattern(open, EditableComboFactory::patternFor(QStringLiteral("s")));
    clickValue(QStringLiteral("Size"));
    auto *editor = qobject_cast<EditableCombo *>(browser->treeWidget()->itemWidget(row(QStringLiteral("Size")), 1));
    QVERIFY(editor);
    FocusOutCombo *combo = editor->comboBox();
    QTRY_VERIFY(combo->lineEdit()->hasFocus());
    // "Auto" can't be typed, but it can be picked; leaving afterwards keeps it.
    QTest::keyClick(combo, Qt::Key_Down, Qt::AltModifier);
    QTRY_VERIFY(combo->view()->isVisible());
    QTest::keyClick(combo->view(), Qt::Key_Home);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    QCOMPARE(combos->value(open), QStringLiteral("Auto"));
    QTest::keyClick(combo->lineEdit(), Qt::Key_Tab);
    QCOMPARE(combos->value(open), QStringLiteral("Auto"));
    QCOMPARE(combo->currentText(), QStringLiteral("Auto"));
    // The list is the candidates alone: nothing typed joins it.
    QCOMPARE(combo->count(), 2);
}

QTEST_MAIN(TestPropertyBrowser)
#include "tst_propertybrowser.moc"
