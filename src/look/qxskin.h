#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

#include <memory>
#include <vector>

class QAction;
class QActionGroup;
class QMenu;
class QImage;
class QPixmap;
class QWidget;

// One skin found below the skin root: its number N and its name.
struct SkinEntry
{
    int index = 0;
    QString name;
};

// The process-wide skin manager: finds the skins, applies one to the whole
// application, and answers where a picture lies and what a skin value is.
class QxSkin : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QxSkin)

public:
    // Made on first use, after the QApplication; lives until the process ends.
    static QxSkin *instance();

    // The folder "skins" beside the executable if it exists, else ":/skins".
    static QString defaultRoot();

    // Scans `rootPath`; falls back to the resources when it holds no skin.
    explicit QxSkin(const QString &rootPath, QObject *parent = nullptr);
    ~QxSkin() override;

    QString configValue(const QString &key, const QString &defaultValue = QString()) const;
    int configInt(const QString &key, int defaultValue) const;
    QString imagePath(const QString &name) const;
    // A picture of the skin for a screen of that pixel ratio: its "@2x"
    // twin where the ratio asks for it and the skin has one.
    QPixmap pixmap(const QString &name, qreal devicePixelRatio = 1.0) const;
    QImage image(const QString &name, qreal devicePixelRatio = 1.0) const;
    QString skinFolder() const;
    QString rootFolder() const;
    int currentSkin() const { return current; }
    QList<int> skinNumbers() const;

    // Builds the skin menu and applies the current skin through it.
    QMenu *createMenu(QWidget *parent);
    void retranslate();

    // Applies skin N (number, not position); false when N isn't known or is current.
    bool setSkin(int index);

signals:
    void skinChanged(int index);

public slots:
    void OnChangeSkin(QAction *action);

private:
    void scan();
    void loadConfig(int index);
    QString skinFile(int index, const QString &suffix) const;
    int positionOf(int index) const;

    QActionGroup *group = nullptr;
    int current = -1;
    QString root;
    QMap<QString, QString> config;
    std::vector<std::unique_ptr<SkinEntry>> skins;
    QMenu *menu = nullptr;
};
