#pragma once

#include <QComboBox>
#include <QDomNode>
#include <QEvent>
#include <QFrame>
#include <QLineEdit>
#include <QMultiMap>
#include <QStyledItemDelegate>
#include <QTableWidget>

#include <memory>

class QTimer;
class QToolButton;

namespace Ui {
class ProfileMenu;
}

// The profile the picker shows: its key and what a task needs of its entry.
struct ProfileRecord
{
    QString key;
    QString iconName;
    QString fileName;
    QString extName;
};
Q_DECLARE_METATYPE(ProfileRecord)

// Asks the picker to open its popup once the event loop has turned `turns`
// more times, after what is pending.
class DelayPopupEvent : public QEvent
{
public:
    static constexpr QEvent::Type DelayPopup = QEvent::Type(1001);
    explicit DelayPopupEvent(int turns)
        : QEvent(DelayPopup), count(turns)
    {
    }
    int count;
};

// Both lists of the popup: letters jump to the rows whose shortcut they
// are, and the arrows go round at the ends.
class CGroupMenu : public QTableWidget
{
    Q_OBJECT

public:
    explicit CGroupMenu(QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

// The search field, with a button at its end that empties it.
class CSearchLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit CSearchLineEdit(QWidget *parent = nullptr);

public slots:
    void updateCloseButton(const QString &text);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    QToolButton *clearButton;
};

// Draws a profile row's rich text beside its icon.
class HTMLDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

// The popup: groups on the left, the chosen group's profiles (or the hits of
// the search) on the right.
class CProfileMenu : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CProfileMenu)

public:
    explicit CProfileMenu(QWidget *parent = nullptr);
    ~CProfileMenu() override;

    // Makes the group's row and the profile's row current.
    void showCurrent(const QString &groupId, const QString &id);
    CGroupMenu *groupList() const;
    CGroupMenu *profileList() const;
    CSearchLineEdit *searchField() const;
    // The placeholder of the search field, in the current language.
    static QString searchPrompt();

signals:
    void itemClicked(QTableWidgetItem *item);

private slots:
    void on_listSubMenu_itemClicked(QTableWidgetItem *item);
    void on_listSubMenu_itemEntered(QTableWidgetItem *item);
    void on_menuUpBtn_clicked();
    void on_menuDownBtn_clicked();
    void on_subMenuUpBtn_clicked();
    void on_subMenuDownBtn_clicked();
    void on_searchLineEdit_textChanged(const QString &text);
    void on_listMenu_itemEntered(QTableWidgetItem *item);
    void on_listMenu_itemSelectionChanged();
    void listMenuValueChanged(int value);
    void subMenuValueChanged(int value);
    void timerPocess();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void addGroupRows();
    void addProfileRow(const QString &groupId, const QDomNode &profile);
    void fillGroup();
    void updateSubMenuArrows();
    void setColumnWidths();
    void step(CGroupMenu *list, int delta);

    std::unique_ptr<Ui::ProfileMenu> ui;
    QMultiMap<QString, QDomNode> allProfiles;
    int currentGroupRow = -1;
    QTimer *scrollTimer = nullptr;
    bool scrollUp = false;
    QString iconPrefix;
    QString fontColor;
};

// The profile combo: shows the current profile as "Name(*.ext)" and opens
// the two-level popup. It only chooses; currentIndexChanged tells the rest.
class CProfileCombo : public QComboBox
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CProfileCombo)

public:
    explicit CProfileCombo(QWidget *parent = nullptr);
    ~CProfileCombo() override;

    // Reads the catalogue's groups again and builds the popup anew.
    void rebuildMenu();
    void selectProfile(const QString &groupId, const QString &id);
    void showSearch();
    CProfileMenu *profileMenu() const { return menu; }
    ProfileRecord currentRecord() const { return record; }
    // What the item of a profile entry reads: its name, "(*.", ext and ")".
    static QString profileTitle(const QString &groupId, const QDomNode &profile);

    void showPopup() override;
    void hidePopup() override;

public slots:
    void itemClicked(QTableWidgetItem *item);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void insertProfile(const QString &groupId, const QString &id);

    CProfileMenu *menu = nullptr;
    bool singleGroup = false;
    ProfileRecord record;
};
