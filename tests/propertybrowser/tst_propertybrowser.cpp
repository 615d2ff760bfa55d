#include "editablecombo.h"
#include "fixedtranslator.h"
#include "focusoutcombo.h"
#include "look/widgettools.h"
#include "qttreepropertybrowser.h"
#include "qtvariantproperty.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

// The property tree and its editors, driven with mouse and keys.
class TestPropertyBrowser : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        window = std::make_unique<QWidget>();
        window->resize(400, 500);
        browser = new QtTreePropertyBrowser(window.get());
        browser->resize(400, 460);
        (new QLineEdit(window.get()))->move(0, 470); // somewhere for the focus to go
        variants = new QtVariantPropertyManager(window.get());
        combos = new EditableComboManager(window.get());
        comboFactory = new EditableComboFactory(window.get());
        browser->setFactoryForManager(variants, new QtVariantEditorFactory(window.get()));
        browser->setFactoryForManager(combos, comboFactory);
        browser->setPropertiesWithoutValueMarked(true);

        group = variants->addProperty(QtVariantPropertyManager::groupTypeId(), u"Video"_s);
        title = variants->addProperty(QMetaType::QString, u"Title"_s);
        variants->setValue(title, u"Holiday"_s);
        codec = variants->addProperty(QtVariantPropertyManager::enumTypeId(), u"Codec"_s);
        variants->setAttribute(codec, u"enumNames"_s, QStringList{u"mpeg4"_s, u"h264"_s});
        locked = variants->addProperty(QMetaType::QString, u"Locked"_s);
        locked->setEnabled(false);
        open = combos->addProperty(u"Size"_s);
        combos->setCandidateValues(open, {u"Auto"_s, u"320*240"_s});
        for (QtProperty *p : {title, codec, locked, open})
            group->addSubProperty(p);
        browser->addProperty(group);
        QVERIFY(showExposed(window.get()));
    }
    void cleanup() { window.reset(); }

    void editorLivesWhileItsRowIsCurrent()
    {
        QTreeWidget *tree = browser->treeWidget();
        auto *line = qobject_cast<QLineEdit *>(edit("Title"));
        QVERIFY(line);
        QTRY_VERIFY(line->hasFocus());
        // Typed text counts when the focus leaves, by Tab.
        line->selectAll();
        QTest::keyClicks(line, u"Trip"_s);
        QTest::keyClick(line, Qt::Key_Tab);
        QCOMPARE(variants->value(title).toString(), u"Trip"_s);

        // Another row current: the choice gets a drop-down.
        QVERIFY(qobject_cast<QComboBox *>(edit("Codec")));
        // By keys alone: down to the row, Return opens the list, Down and Return pick.
        tree->setFocus();
        QTest::keyClick(tree, Qt::Key_Up);
        QTest::keyClick(tree, Qt::Key_Down);
        auto *combo = qobject_cast<QComboBox *>(tree->itemWidget(row("Codec"), 1));
        QCOMPARE(combo->accessibleName(), u"Codec"_s);
        QTest::keyClick(tree, Qt::Key_Return);
        QTRY_VERIFY(combo->view()->isVisible());
        QTest::keyClick(combo->view(), Qt::Key_Down);
        QTest::keyClick(combo->view(), Qt::Key_Return);
        QCOMPARE(row("Codec")->text(1), u"h264"_s);

        // A disabled row gets no editor.
        QVERIFY(!edit("Locked"));
        QVERIFY(row("Locked")->isDisabled());
    }

    void rowsShowStateAndFollowTheLanguage()
    {
        title->setModified(true);
        QVERIFY(row("Title")->font(1).bold());
        title->setModified(false);
        QVERIFY(!row("Title")->font(1).bold());

        FixedTranslator german("QtTreePropertyBrowser", "Property", u"Eigenschaft"_s);
        QCoreApplication::installTranslator(&german);
        QTreeWidgetItem *header = browser->treeWidget()->headerItem();
        QTRY_COMPARE(header->text(0), u"Eigenschaft"_s);
        QCoreApplication::removeTranslator(&german);
        QTRY_COMPARE(header->text(0), u"Property"_s);
    }

    void editableCombo_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("stored");
        // \x1b for Escape, \n to pick the list's first entry; the focus then leaves by Tab.
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("result");
        const auto add = [](const char *name, const char *key, const char *stored,
                            const char *typed, const char *result) {
            QTest::newRow(name) << key << stored << typed << result;
        };
        add("a size", "s", "320*240", "720*480", "720*480");
        add("a size with x", "s", "320*240", "720x480", "720x480");
        add("half a size goes back", "s", "320*240", "720*", "320*240");
        add("Escape goes back", "b", "1200", "1500\x1b", "1200");
        add("no zero bit rate", "b", "1200", "0", "1200");
        add("no leading zero in a size", "s", "320*240", "0", "320*240");
        add("a volume needs its sign", "vol", "75%", "100", "75%");
        add("a volume", "vol", "75%", "150%", "150%");
        add("an aspect ratio", "aspect", "Auto", "16:9", "16:9");
        // "Auto" can't be typed as a size, but it can be picked.
        add("picked from the list", "s", "320*240", "\n", "Auto");
    }

    void editableCombo()
    {
        QFETCH(QString, key);
        QFETCH(QString, stored);
        QFETCH(QString, typed);
        QFETCH(QString, result);
        combos->setValue(open, stored);
        comboFactory->setPattern(open, EditableComboFactory::patternFor(key));
        QSignalSpy changed(combos, &EditableComboManager::valueChanged);
        auto *editor = qobject_cast<EditableCombo *>(edit("Size"));
        QVERIFY(editor);
        FocusOutCombo *combo = editor->comboBox();
        QLineEdit *line = combo->lineEdit();
        QTRY_VERIFY(line->hasFocus());
        line->selectAll();
        for (const QChar c : typed) {
            if (c == u'\x1b') {
                QTest::keyClick(line, Qt::Key_Escape);
            } else if (c == u'\n') {
                QTest::keyClick(combo, Qt::Key_Down, Qt::AltModifier);
                QTRY_VERIFY(combo->view()->isVisible());
                QTest::keyClick(combo->view(), Qt::Key_Home);
                QTest::keyClick(combo->view(), Qt::Key_Return);
            } else {
                QTest::keyClicks(line, QString(c));
            }
        }
        QTest::keyClick(line, Qt::Key_Tab);
        QCOMPARE(combos->value(open), result);
        QCOMPARE(combo->currentText(), result);
        // Only a change is told; what stood already says nothing.
        QCOMPARE(changed.count(), result == stored ? 0 : 1);
        // The list is the candidates alone: nothing typed joins it.
        QCOMPARE(combo->count(), 2);
    }

private:
    std::unique_ptr<QWidget> window;
    QtTreePropertyBrowser *browser = nullptr;
    QtVariantPropertyManager *variants = nullptr;
    EditableComboManager *combos = nullptr;
    EditableComboFactory *comboFactory = nullptr;
    QtProperty *group = nullptr, *title = nullptr, *codec = nullptr, *locked = nullptr,
               *open = nullptr;

    QTreeWidgetItem *row(const char *name) const
    {
        return browser->treeWidget()
            ->findItems(QString::fromLatin1(name), Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }

    // Clicks the row's value, and returns the editor that opens there.
    QWidget *edit(const char *name) { return editValue(browser->treeWidget(), row(name)); }
};

QTEST_MAIN(TestPropertyBrowser)
#include "tst_propertybrowser.moc"
