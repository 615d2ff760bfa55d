#include "qxskin.h"

#include "settings.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPixmap>
#include <QMenu>

namespace {

const QString resourceRoot = QStringLiteral(":/skins");
const QString skinIndexKey = QStringLiteral("SkinIndex");
// The most skins looked for: numbers 0 to 9.
constexpr int maxSkins = 10;

QString readText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return QString();
    return QString::fromUtf8(file.readAll());
}

// KEY=VALUE per line; only the first "=" splits, later lines win.
void parseLines(const QString &text, QMap<QString, QString> &into)
{
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &raw : lines) {
        const QString line = raw.trimmed();
        const int equals = line.indexOf(QLatin1Char('='));
        if (equals < 0)
            continue;
        into.insert(line.left(equals), line.mid(equals + 1));
    }
}

// The block between the two markers inside a comment of the style sheet.
QString configBlock(const QString &styleSheet)
{
    const int begin = styleSheet.indexOf(QLatin1String("__CONFIG_BEBIN__"));
    const int end = styleSheet.indexOf(QLatin1String("__CONFIG_END__"));
    if (begin <= 0 || end < begin)
        return QString();
    const int from = begin + int(qstrlen("__CONFIG_BEBIN__"));
    return styleSheet.mid(from, end - from);
}

} // namespace

// The skins live in the library's resources; a static library needs this
// once, before anything looks at ":/skins". Must stay outside any namespace.
static void initResources()
{
    static const bool done = [] {
        Q_INIT_RESOURCE(skins);
        return true;
    }();
    Q_UNUSED(done);
}

QxSkin *QxSkin::instance()
{
    static QxSkin *skin = new QxSkin(defaultRoot(), qApp);
    return skin;
}

QString QxSkin::defaultRoot()
{
    initResources();
    const QString onDisk = QCoreApplication::applicationDirPath() + QStringLiteral("/skins");
    return QDir(onDisk).exists() ? onDisk : resourceRoot;
}

QxSkin::QxSkin(const QString &rootPath, QObject *parent)
    : QObject(parent)
    , group(new QActionGroup(this))
    , root(rootPath)
{
    initResources();
    scan();
    if (skins.empty() && root != resourceRoot) {
        // A folder without a usable style sheet must not leave us skinless.
        root = resourceRoot;
        scan();
    }

    int position = Setting::skinIndex();
    if (position < 0 || position >= int(skins.size()))
        position = 0;
    if (!skins.empty()) {
        current = skins[size_t(position)]->index;
        loadConfig(current);
    }
    connect(group, &QActionGroup::triggered, this, &QxSkin::OnChangeSkin);
}

QxSkin::~QxSkin() = default;

void QxSkin::scan()
{
    skins.clear();
    for (int n = 0; n < maxSkins; ++n) {
        if (!QFile::exists(skinFile(n, QStringLiteral(".qss"))))
            continue;
        loadConfig(n);
        auto entry = std::make_unique<SkinEntry>();
        entry->index = n;
        entry->name = configValue(QStringLiteral("SKIN_NAME"));
        skins.push_back(std::move(entry));
    }
    config.clear();
}

QString QxSkin::skinFile(int index, const QString &suffix) const
{
    return root + QStringLiteral("/skin") + QString::number(index) + suffix;
}

void QxSkin::loadConfig(int index)
{
    config.clear();
    parseLines(configBlock(readText(skinFile(index, QStringLiteral(".qss")))), config);
    parseLines(readText(skinFile(index, QStringLiteral(".ini"))), config);
}

int QxSkin::positionOf(int index) const
{
    for (size_t i = 0; i < skins.size(); ++i) {
        if (skins[i]->index == index)
            return int(i);
    }
    return -1;
}

QString QxSkin::configValue(const QString &key, const QString &defaultValue) const
{
    const auto found = config.constFind(key);
    return found == config.constEnd() ? defaultValue : found.value();
}

int QxSkin::configInt(const QString &key, int defaultValue) const
{
    bool ok = false;
    const int value = config.value(key).toInt(&ok, 10);
    return ok ? value : defaultValue;
}

QString QxSkin::imagePath(const QString &name) const
{
    return skinFolder() + name;
}

QImage QxSkin::image(const QString &name, qreal devicePixelRatio) const
{
    if (devicePixelRatio > 1.0) {
        const QFileInfo info(imagePath(name));
        QImage twin(info.path() + QLatin1Char('/') + info.completeBaseName()
                    + QStringLiteral("@2x.") + info.suffix());
        if (!twin.isNull()) {
            twin.setDevicePixelRatio(2.0);
            return twin;
        }
    }
    return QImage(imagePath(name));
}

QPixmap QxSkin::pixmap(const QString &name, qreal devicePixelRatio) const
{
    return QPixmap::fromImage(image(name, devicePixelRatio));
}

QString QxSkin::skinFolder() const
{
    return root + QStringLiteral("/skin") + QString::number(current) + QLatin1Char('/');
}

QString QxSkin::rootFolder() const
{
    return root;
}

QList<int> QxSkin::skinNumbers() const
{
    QList<int> numbers;
    for (const auto &entry : skins)
        numbers.append(entry->index);
    return numbers;
}

QMenu *QxSkin::createMenu(QWidget *parent)
{
    const QList<QAction *> old = group->actions();
    for (QAction *action : old) {
        group->removeAction(action);
        delete action;
    }

    menu = new QMenu(tr("&Skin"), parent);
    QAction *toTrigger = nullptr;
    for (const auto &entry : skins) {
        auto *action = new QAction(entry->name, menu);
        action->setCheckable(true);
        action->setData(entry->index);
        menu->addAction(action);
        group->addAction(action);
        if (entry->index == current)
            toTrigger = action;
    }
    if (toTrigger) {
        // Forget the current skin so that the trigger applies it for real.
        current = -1;
        toTrigger->trigger();
    }
    retranslate();
    return menu;
}

void QxSkin::retranslate()
{
    const QList<QAction *> actions = group->actions();
    for (QAction *action : actions) {
        const int index = action->data().toInt();
        const int position = positionOf(index);
        if (position < 0)
            continue;
        const QByteArray key = QByteArrayLiteral("Skin") + QByteArray::number(index);
        const QString translated = QCoreApplication::translate("QxSkin", key.constData());
        const QString &name = skins[size_t(position)]->name;
        action->setText(translated == QLatin1String(key) && !name.isEmpty() ? name : translated);
    }
    if (menu)
        menu->setTitle(tr("&Skin"));
}

void QxSkin::OnChangeSkin(QAction *action)
{
    setSkin(action->data().toInt());
    const QList<QAction *> actions = group->actions();
    for (QAction *each : actions) {
        each->setChecked(each == action);
        each->setEnabled(each != action);
    }
}

bool QxSkin::setSkin(int index)
{
    int position = positionOf(index);
    if (position < 0) {
        if (skins.empty())
            return false;
        position = 0;
        index = skins.front()->index;
    }
    if (current == index)
        return false;
    current = index;

    QString styleSheet = readText(skinFile(index, QStringLiteral(".qss")));
    // Style sheets name their pictures by resource path; a skin on disk
    // finds them on disk.
    styleSheet.replace(resourceRoot, root);
    if (qApp)
        qApp->setStyleSheet(styleSheet);
    loadConfig(index);

    const bool stored = settingInt(skinIndexKey, -1) >= 0;
    if (stored || position != 0)
        setSettingInt(skinIndexKey, position);

    emit skinChanged(current);
    return true;
}
