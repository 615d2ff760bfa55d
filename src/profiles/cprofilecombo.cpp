#include "cprofilecombo.h"

#include "profilegrouploader.h"
#include "controls.h"
#include "qxskin.h"
#include "ui_profilemenu.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QDir>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextDocument>
#include <QTimer>
#include <QToolButton>

namespace {

constexpr int GroupIdRole = Qt::UserRole + 4;
constexpr int ShortCutRole = Qt::UserRole + 3;
constexpr int KeyRole = Qt::UserRole + 5;
// The profile icons are drawn at 32 pixels; larger would blur them.
constexpr int ProfileIconSize = 40;

QString field(const QDomNode &node, const char *tag)
{
    return childValue(node, QLatin1String(tag));
}

QTextDocument *rowDocument(const QStyleOptionViewItem &option, int width)
{
    auto *document = new QTextDocument;
    document->setDefaultFont(option.font);
    document->setHtml(option.text);
    document->setTextWidth(width);
    return document;
}

} // namespace

// ---- CGroupMenu

CGroupMenu::CGroupMenu(QWidget *parent)
    : QTableWidget(parent)
{
    setColumnCount(2);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    setShowGrid(false);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabKeyNavigation(false);
}

void CGroupMenu::keyPressEvent(QKeyEvent *event)
{
    const int rows = rowCount();
    if (rows == 0) {
        QTableWidget::keyPressEvent(event);
        return;
    }
    const int row = currentRow();
    if (event->key() >= Qt::Key_A && event->key() <= Qt::Key_Z) {
        // Repeated letters go round the rows that share one.
        for (int i = 1; i <= rows; ++i) {
            const int candidate = (row + i) % rows;
            const QTableWidgetItem *cell = item(candidate, 0);
            if (cell && cell->data(ShortCutRole).toString().toLower() == event->text()) {
                if (candidate != row)
                    setCurrentCell(candidate, 0);
                break;
            }
        }
        QTableWidget::keyPressEvent(event);
        return;
    }
    if (event->key() == Qt::Key_Up && row <= 0) {
        setCurrentCell(rows - 1, 0);
        return;
    }
    if (event->key() == Qt::Key_Down && row == rows - 1) {
        setCurrentCell(0, 0);
        return;
    }
    QTableWidget::keyPressEvent(event);
}

// ---- CSearchLineEdit

CSearchLineEdit::CSearchLineEdit(QWidget *parent)
    : QLineEdit(parent), clearButton(new QToolButton(this))
{
    clearButton->setCursor(Qt::PointingHandCursor);
    clearButton->setIcon(style()->standardIcon(QStyle::SP_LineEditClearButton));
    clearButton->setStyleSheet(QStringLiteral("QToolButton { border: none; padding: 0px; }"));
    clearButton->setAccessibleName(tr("Clear the search"));
    clearButton->hide();
    connect(clearButton, &QToolButton::clicked, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, this, &CSearchLineEdit::updateCloseButton);
    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    const QSize button = clearButton->sizeHint();
    setMinimumSize(button.width() + frame * 2 + 2, qMax(minimumSizeHint().height(), button.height() + frame * 2));
}

void CSearchLineEdit::updateCloseButton(const QString &text)
{
    clearButton->setVisible(!text.isEmpty());
}

void CSearchLineEdit::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    const QSize button = clearButton->sizeHint();
    const int top = (rect().height() - button.height() + 1) / 2;
    // The text keeps clear of the button, at whichever end it stands.
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    setTextMargins(mirrored ? button.width() : 0, 0, mirrored ? 0 : button.width(), 0);
    clearButton->move(layoutDirection() == Qt::RightToLeft ? frame
                                                            : rect().right() - frame - button.width(),
                      top);
}

void CSearchLineEdit::mousePressEvent(QMouseEvent *event)
{
    if (text().isEmpty())
        setText(CProfileMenu::searchPrompt());
    QLineEdit::mousePressEvent(event);
    selectAll();
}

// ---- HTMLDelegate

void HTMLDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    if (index.column() != 0) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const int icon = item.decorationSize.width();
    const std::unique_ptr<QTextDocument> document(
        rowDocument(item, item.rect.width() - icon - 9));
    item.text.clear();
    const QStyle *style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    painter->save();
    const bool mirrored = item.direction == Qt::RightToLeft;
    painter->translate(item.rect.topLeft() + QPoint(mirrored ? 0 : icon + 10, 0));
    const QRect clip(0, 0, item.rect.width() - (mirrored ? icon + 10 : 0), item.rect.height());
    painter->setClipRect(clip);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = item.palette;
    if (item.state & QStyle::State_Selected)
        context.palette.setColor(QPalette::Text, Qt::white);
    // Centred in the row, as the icon is.
    painter->translate(0, qMax(0.0, (item.rect.height() - document->size().height()) / 2));
    document->documentLayout()->draw(painter, context);
    painter->restore();
}

QSize HTMLDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (index.column() != 0)
        return QStyledItemDelegate::sizeHint(option, index);
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const int icon = item.decorationSize.width();
    const int width = item.widget ? item.widget->width() : 300;
    const std::unique_ptr<QTextDocument> document(rowDocument(item, width - icon - 40));
    return {int(document->idealWidth()),
            qMax(int(document->size().height()) + 4, item.decorationSize.height() + 4)};
}

// ---- CProfileMenu

CProfileMenu::CProfileMenu(QWidget *parent)
    : QFrame(parent, Qt::Popup), ui(std::make_unique<Ui::ProfileMenu>())
{
    const QString skinned = QxSkin::instance()->skinFolder() + QStringLiteral("profile/");
    iconPrefix = QDir(skinned).exists() ? skinned : QStringLiteral(":/profile/");
    ui->setupUi(this);
    setMouseTracking(true);
    ui->listMenu->setMouseTracking(true);
    ui->listSubMenu->setMouseTracking(true);
    ui->listMenu->setIconSize(QSize(20, 20));
    ui->listSubMenu->setIconSize(QSize(ProfileIconSize, ProfileIconSize));
    ui->listSubMenu->setSelectionBehavior(QAbstractItemView::SelectRows);
    ui->listMenu->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    ui->listMenu->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Fixed);
    ui->listMenu->setColumnWidth(1, 20);
    // The arrows stand in for scroll bars: flat, with the skin's pictures.
    const QIcon up(QxSkin::instance()->imagePath(QStringLiteral("item_up.png")));
    const QIcon down(QxSkin::instance()->imagePath(QStringLiteral("item_down.png")));
    for (QPushButton *button : {ui->menuUpBtn, ui->subMenuUpBtn, ui->menuDownBtn, ui->subMenuDownBtn}) {
        button->setFlat(true);
        button->setIcon(button == ui->menuUpBtn || button == ui->subMenuUpBtn ? up : down);
        button->setIconSize(QSize(12, 12));
        button->setStyleSheet(QStringLiteral("QPushButton { border: none; padding: 0px; min-height: 0px; }"));
    }

    for (const QDomNode &group : ProfileGroupLoader::instance()->groups()) {
        const QString id = field(group, "Id");
        const QDomNodeList profiles = ProfileGroupLoader::instance()->profiles(group);
        for (int i = 0; i < profiles.size(); ++i)
            allProfiles.insert(id, profiles.at(i));
    }
    addGroupRows();

    scrollTimer = new QTimer(this);
    connect(scrollTimer, &QTimer::timeout, this, &CProfileMenu::timerPocess);
    ui->listSubMenu->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui->listSubMenu->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    connect(ui->listMenu->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &CProfileMenu::listMenuValueChanged);
    connect(ui->listMenu->verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this] { listMenuValueChanged(ui->listMenu->verticalScrollBar()->value()); });
    connect(ui->listSubMenu->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &CProfileMenu::subMenuValueChanged);
    ui->listSubMenu->setItemDelegate(new HTMLDelegate(ui->listSubMenu));
    ui->subMenuUpBtn->hide();
    ui->subMenuDownBtn->hide();
    for (QWidget *watched :
         {static_cast<QWidget *>(ui->searchLineEdit), static_cast<QWidget *>(ui->listMenu),
          static_cast<QWidget *>(ui->listSubMenu), static_cast<QWidget *>(ui->menuUpBtn),
          static_cast<QWidget *>(ui->menuDownBtn), static_cast<QWidget *>(ui->subMenuUpBtn),
          static_cast<QWidget *>(ui->subMenuDownBtn)})
        watched->installEventFilter(this);
    ui->searchLineEdit->setText(searchPrompt());
    fontColor = QxSkin::instance()->configValue(QStringLiteral("PROFILE_SUBMENU_FONT_COLOR"),
                                                QStringLiteral("#000000"));
    ui->searchLineEdit->setFocus();
}

CProfileMenu::~CProfileMenu() = default;

QString CProfileMenu::searchPrompt()
{
    return QCoreApplication::translate("ProfileMenu", "Search Profile...");
}

CGroupMenu *CProfileMenu::groupList() const
{
    return ui->listMenu;
}

CGroupMenu *CProfileMenu::profileList() const
{
    return ui->listSubMenu;
}

CSearchLineEdit *CProfileMenu::searchField() const
{
    return ui->searchLineEdit;
}

void CProfileMenu::addGroupRows()
{
    const QString indicator = QxSkin::instance()->imagePath(
        rightToLeftInterface(this) ? QStringLiteral("menuIndicatorLeft.png")
                                   : QStringLiteral("menuIndicator.png"));
    const QList<QDomNode> groups = ProfileGroupLoader::instance()->groups();
    ui->listMenu->setRowCount(groups.size());
    for (int row = 0; row < groups.size(); ++row) {
        const QDomNode &group = groups[row];
        auto *name = new QTableWidgetItem(
            QIcon(iconPrefix + field(group, "IconName")),
            QCoreApplication::translate("Profile", field(group, "Name").toUtf8().constData()));
        name->setData(GroupIdRole, field(group, "Id"));
        ui->listMenu->setItem(row, 0, name);
        auto *mark = new QTableWidgetItem(QIcon(indicator), QString());
        mark->setFlags(Qt::ItemIsEnabled);
        ui->listMenu->setItem(row, 1, mark);
    }
}

QString CProfileCombo::profileTitle(const QString &groupId, const QDomNode &profile)
{
    Q_UNUSED(groupId)
    const QString id = field(profile, "Id");
    const QString name = field(profile, "Name");
    // A user's own profile is named as the user wrote it.
    const QString shown = ProfileGroupLoader::isUserProfileId(id)
                              ? name
                              : QCoreApplication::translate("Profile", name.toUtf8().constData());
    return QStringLiteral("%1(*.%2)").arg(shown, field(profile, "ExtName"));
}

void CProfileMenu::addProfileRow(const QString &groupId, const QDomNode &profile)
{
    const int row = ui->listSubMenu->rowCount();
    ui->listSubMenu->insertRow(row);
    const QString text
        = QStringLiteral("<html><font color=\"%3\"><b><font size=\"4\">%1</font></b><br/>%2</font></html>")
              .arg(CProfileCombo::profileTitle(groupId, profile).toHtmlEscaped(),
                   QCoreApplication::translate("Profile", field(profile, "Desc").toUtf8().constData())
                       .toHtmlEscaped(),
                   fontColor);
    auto *item = new QTableWidgetItem(
        QIcon(iconPrefix + field(profile, "IconName").replace(QLatin1String("big/"), QLatin1String("small/"))),
        text);
    item->setData(ShortCutRole, field(profile, "ShortCut"));
    item->setData(KeyRole, ProfileGroupLoader::profileKey(groupId, field(profile, "Id")));
    // What a screen reader says: the title and the description, without markup.
    item->setData(Qt::AccessibleTextRole, CProfileCombo::profileTitle(groupId, profile));
    ui->listSubMenu->setItem(row, 0, item);
    // The mark's cell belongs to the row: the highlight spans it and a click
    // on it picks the profile as well.
    auto *mark = new QTableWidgetItem;
    mark->setData(KeyRole, item->data(KeyRole));
    if (!field(profile, "Recommended").isEmpty()) {
        mark->setIcon(QIcon(QxSkin::instance()->imagePath(QStringLiteral("recommend.png"))));
        mark->setData(Qt::AccessibleTextRole, tr("Recommended"));
    }
    ui->listSubMenu->setItem(row, 1, mark);
}

void CProfileMenu::setColumnWidths()
{
    const int mark = ui->listSubMenu->columnWidth(1);
    ui->listSubMenu->setColumnWidth(0, qMax(0, ui->listSubMenu->width() - mark - 7));
}

void CProfileMenu::updateSubMenuArrows()
{
    const QScrollBar *bar = ui->listSubMenu->verticalScrollBar();
    ui->subMenuUpBtn->setVisible(bar->value() > bar->minimum());
    ui->subMenuDownBtn->setVisible(bar->value() < bar->maximum());
    setColumnWidths();
    ui->listSubMenu->resizeRowsToContents();
}

void CProfileMenu::fillGroup()
{
    const QTableWidgetItem *current = ui->listMenu->item(qMax(0, currentGroupRow), 0);
    const QString groupId = current ? current->data(GroupIdRole).toString() : QString();
    if (groupId.isEmpty())
        return;
    ui->listSubMenu->setRowCount(0);
    const QDomNodeList profiles
        = ProfileGroupLoader::instance()->profiles(ProfileGroupLoader::instance()->group(groupId));
    for (int i = 0; i < profiles.size(); ++i)
        addProfileRow(groupId, profiles.at(i));
    updateSubMenuArrows();
}

void CProfileMenu::showCurrent(const QString &groupId, const QString &id)
{
    for (int row = 0; row < ui->listMenu->rowCount(); ++row) {
        if (ui->listMenu->item(row, 0)->data(GroupIdRole).toString() == groupId) {
            ui->listMenu->setCurrentCell(row, 0);
            break;
        }
    }
    const QString key = ProfileGroupLoader::profileKey(groupId, id);
    for (int row = 0; row < ui->listSubMenu->rowCount(); ++row) {
        if (ui->listSubMenu->item(row, 0)->data(KeyRole).toString() == key) {
            ui->listSubMenu->setCurrentCell(row, 0);
            break;
        }
    }
    ui->listSubMenu->setFocus();
}

void CProfileMenu::on_listMenu_itemSelectionChanged()
{
    currentGroupRow = ui->listMenu->currentRow();
    ui->listMenu->setFocus();
    fillGroup();
}

void CProfileMenu::on_listMenu_itemEntered(QTableWidgetItem *item)
{
    if (item && !item->text().isEmpty() && item != ui->listMenu->currentItem())
        ui->listMenu->setCurrentItem(item);
}

void CProfileMenu::on_listSubMenu_itemEntered(QTableWidgetItem *item)
{
    ui->listSubMenu->setCurrentItem(item);
    ui->listSubMenu->setFocus();
}

void CProfileMenu::on_listSubMenu_itemClicked(QTableWidgetItem *item)
{
    emit itemClicked(item);
    hide();
}

void CProfileMenu::step(CGroupMenu *list, int delta)
{
    const int rows = list->rowCount();
    if (rows > 0)
        list->setCurrentCell((list->currentRow() + delta + rows) % rows, 0);
}

void CProfileMenu::on_menuUpBtn_clicked()
{
    step(ui->listMenu, -1);
}

void CProfileMenu::on_menuDownBtn_clicked()
{
    step(ui->listMenu, 1);
}

void CProfileMenu::on_subMenuUpBtn_clicked()
{
    step(ui->listSubMenu, -1);
}

void CProfileMenu::on_subMenuDownBtn_clicked()
{
    step(ui->listSubMenu, 1);
}

void CProfileMenu::on_searchLineEdit_textChanged(const QString &text)
{
    ui->listSubMenu->setRowCount(0);
    if (text.isEmpty() || text == searchPrompt())
        return;
    // The map's own order: groups by id as text, each group's entries last first.
    for (auto it = allProfiles.cbegin(); it != allProfiles.cend(); ++it) {
        if (ProfileGroupLoader::matchesSearch(it.value(), text))
            addProfileRow(it.key(), it.value());
    }
    updateSubMenuArrows();
    if (ui->listSubMenu->rowCount() > 0 && !ui->listSubMenu->currentItem())
        ui->listSubMenu->setCurrentCell(0, 0);
}

void CProfileMenu::listMenuValueChanged(int value)
{
    const QScrollBar *bar = ui->listMenu->verticalScrollBar();
    ui->menuUpBtn->setVisible(value != bar->minimum());
    ui->menuDownBtn->setVisible(value != bar->maximum());
}

void CProfileMenu::subMenuValueChanged(int)
{
    updateSubMenuArrows();
}

void CProfileMenu::timerPocess()
{
    QScrollBar *bar = ui->listSubMenu->verticalScrollBar();
    if (scrollUp && bar->value() > 0)
        bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
    else if (!scrollUp && bar->value() < bar->maximum())
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
}

bool CProfileMenu::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride: {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool alt = key->modifiers() & Qt::AltModifier;
        if (key->key() == Qt::Key_Escape || key->key() == Qt::Key_F4
            || (alt && key->key() == Qt::Key_Down)) {
            hide();
            return true;
        }
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            hide();
            emit itemClicked(ui->listSubMenu->currentItem());
            return true;
        }
        break;
    }
    case QEvent::Enter:
        if (watched == ui->menuUpBtn)
            ui->listMenu->scrollToTop();
        else if (watched == ui->menuDownBtn)
            ui->listMenu->scrollToBottom();
        else if (watched == ui->subMenuUpBtn || watched == ui->subMenuDownBtn) {
            scrollUp = watched == ui->subMenuUpBtn;
            scrollTimer->start(200);
        }
        break;
    case QEvent::Leave:
        if (watched == ui->subMenuUpBtn || watched == ui->subMenuDownBtn)
            scrollTimer->stop();
        break;
    case QEvent::FocusIn:
        // The search runs again on what the field holds.
        if (watched == ui->searchLineEdit)
            on_searchLineEdit_textChanged(ui->searchLineEdit->text());
        break;
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

void CProfileMenu::mousePressEvent(QMouseEvent *event)
{
    if (!rect().contains(event->position().toPoint())) {
        setAttribute(Qt::WA_NoMouseReplay);
        hide();
        return;
    }
    QFrame::mousePressEvent(event);
}

void CProfileMenu::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Left)
        ui->listMenu->setFocus();
    else if (event->key() == Qt::Key_Right)
        ui->listSubMenu->setFocus();
    QFrame::keyPressEvent(event);
}

void CProfileMenu::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    setColumnWidths();
}

void CProfileMenu::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() != QEvent::LanguageChange && event->type() != QEvent::LayoutDirectionChange)
        return;
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        ui->searchLineEdit->setText(searchPrompt());
    }
    fontColor = QxSkin::instance()->configValue(QStringLiteral("PROFILE_SUBMENU_FONT_COLOR"),
                                                QStringLiteral("#000000"));
    const int row = ui->listMenu->currentRow();
    addGroupRows();
    if (row >= 0)
        ui->listMenu->setCurrentCell(row, 0);
    fillGroup();
}

// ---- CProfileCombo

CProfileCombo::CProfileCombo(QWidget *parent)
    : QComboBox(parent)
{
    setAccessibleName(tr("Profile"));
    setIconSize(QSize(24, 24));
    rebuildMenu();
    // A profile saved, renamed or removed shows at once, wherever that happened.
    connect(ProfileGroupLoader::changes(), &CatalogueSignals::profilesChanged, this, [this] {
        rebuildMenu();
        if (record.key.isEmpty())
            return;
        const QString key = record.key;
        const QSignalBlocker blocker(ProfileGroupLoader::instance()->hasProfile(key) ? this : nullptr);
        insertProfile(key.section(QLatin1Char(','), 0, 0), key.section(QLatin1Char(','), 1));
    });
}

CProfileCombo::~CProfileCombo() = default;

void CProfileCombo::rebuildMenu()
{
    const QList<QDomNode> groups = ProfileGroupLoader::instance()->groups();
    delete menu;
    menu = nullptr;
    singleGroup = groups.size() == 1;
    if (!singleGroup) {
        menu = new CProfileMenu(this);
        menu->setFrameStyle(QFrame::StyledPanel);
        connect(menu, &CProfileMenu::itemClicked, this, &CProfileCombo::itemClicked);
        menu->hide();
        return;
    }
    const QSignalBlocker blocker(this);
    clear();
    const QString groupId = childValue(groups.first(), QStringLiteral("Id"));
    const QDomNodeList profiles = ProfileGroupLoader::instance()->profiles(groups.first());
    for (int i = 0; i < profiles.size(); ++i) {
        const QDomNode entry = profiles.at(i);
        const ProfileRecord row{ProfileGroupLoader::profileKey(groupId, field(entry, "Id")),
                                field(entry, "IconName"), field(entry, "FileName"),
                                field(entry, "ExtName")};
        addItem(QIcon(ProfileGroupLoader::iconPath(row.iconName)), profileTitle(groupId, entry),
                QVariant::fromValue(row));
    }
}

void CProfileCombo::insertProfile(const QString &groupId, const QString &id)
{
    const QString key = ProfileGroupLoader::profileKey(groupId, id);
    {
        // Emptying says nothing; the insertion below is the one change.
        const QSignalBlocker blocker(this);
        clear();
    }
    if (!ProfileGroupLoader::instance()->hasProfile(key))
        return;
    const QDomNode entry = ProfileGroupLoader::instance()->profile(groupId, id);
    record = {key, field(entry, "IconName"), field(entry, "FileName"), field(entry, "ExtName")};
    addItem(QIcon(ProfileGroupLoader::iconPath(record.iconName)), profileTitle(groupId, entry),
            QVariant::fromValue(record));
}

void CProfileCombo::selectProfile(const QString &groupId, const QString &id)
{
    if (singleGroup) {
        const QString key = ProfileGroupLoader::profileKey(groupId, id);
        int index = 0;
        for (int i = 0; i < count(); ++i) {
            if (itemData(i).value<ProfileRecord>().key == key)
                index = i;
        }
        setCurrentIndex(index);
        record = itemData(index).value<ProfileRecord>();
        return;
    }
    insertProfile(groupId, id);
    setCurrentIndex(0);
    if (menu)
        menu->showCurrent(groupId, id);
}

void CProfileCombo::showSearch()
{
    if (!menu)
        return;
    showPopup();
    menu->searchField()->selectAll();
    menu->searchField()->setFocus();
}

void CProfileCombo::itemClicked(QTableWidgetItem *item)
{
    if (!item)
        return;
    const QString key = item->data(KeyRole).toString();
    if (key.isEmpty())
        return;
    insertProfile(key.section(QLatin1Char(','), 0, 0), key.section(QLatin1Char(','), 1));
}

bool CProfileCombo::event(QEvent *event)
{
    if (event->type() == DelayPopupEvent::DelayPopup) {
        const int turns = static_cast<DelayPopupEvent *>(event)->count;
        if (turns <= 0)
            showPopup();
        else
            QCoreApplication::postEvent(this, new DelayPopupEvent(turns - 1));
        return true;
    }
    return QComboBox::event(event);
}

void CProfileCombo::keyPressEvent(QKeyEvent *event)
{
    const ProfileGroupLoader *catalogue = ProfileGroupLoader::instance();
    QString target;
    bool walk = event->modifiers() == Qt::NoModifier;
    switch (walk ? event->key() : 0) {
    case Qt::Key_Home:
        target = catalogue->firstProfile();
        break;
    case Qt::Key_End:
        target = catalogue->lastProfile();
        break;
    case Qt::Key_Left:
    case Qt::Key_Up:
        target = catalogue->previousProfile(record.key);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        target = catalogue->nextProfile(record.key);
        break;
    default:
        walk = false;
        break;
    }
    if (!walk) {
        QComboBox::keyPressEvent(event);
        return;
    }
    // The ends of the catalogue stop the walk: no wrap.
    if (!target.isEmpty())
        selectProfile(target.section(QLatin1Char(','), 0, 0), target.section(QLatin1Char(','), 1));
    event->accept();
}

void CProfileCombo::showPopup()
{
    if (!menu) {
        QComboBox::showPopup();
        return;
    }
    QStyleOptionComboBox option;
    initStyleOption(&option);
    QRect popup = style()->subControlRect(QStyle::CC_ComboBox, &option,
                                          QStyle::SC_ComboBoxListBoxPopup, this);
    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
    popup.setWidth(qBound(300, popup.width(), 600));
    popup.setHeight(500 + 2 * frame);
    const QPoint below = mapToGlobal(QPoint(popup.left(), height()));
    const QPoint above = mapToGlobal(QPoint(popup.left(), 0));
    const QRect screenRect = (screen() ? screen() : QGuiApplication::primaryScreen())->availableGeometry();
    const int roomBelow = screenRect.bottom() - below.y() + 1;
    const int roomAbove = above.y() - screenRect.top();
    popup.setWidth(qMin(popup.width(), screenRect.width()));
    popup.moveLeft(below.x());
    if (popup.right() > screenRect.right())
        popup.moveRight(screenRect.right());
    if (popup.left() < screenRect.left())
        popup.moveLeft(screenRect.left());
    if (popup.height() <= roomBelow) {
        popup.moveTop(below.y());
    } else if (popup.height() <= roomAbove) {
        popup.moveBottom(above.y() - 1);
    } else if (roomBelow >= roomAbove) {
        popup.setHeight(roomBelow);
        popup.moveTop(below.y());
    } else {
        popup.setHeight(roomAbove);
        popup.moveBottom(above.y() - 1);
    }
    popup.setBottom(popup.bottom() - 2);
    menu->setGeometry(popup);
    if (!record.key.isEmpty())
        selectProfile(record.key.section(QLatin1Char(','), 0, 0),
                      record.key.section(QLatin1Char(','), 1));
    menu->show();
    setCurrentIndex(0);
}

void CProfileCombo::hidePopup()
{
    if (menu)
        menu->hide();
    if (singleGroup)
        QComboBox::hidePopup();
}
