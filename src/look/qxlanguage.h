#pragma once

#include <QObject>
#include <QStringList>

#include <memory>

class QAction;
class QActionGroup;
class QMenu;
class QSplashScreen;
class QTranslator;
class QWidget;

// The interface languages: which one to use on the first start, the
// translations of the program, the toolkit and the property browser, the
// language menu, and the stored choice. A change shows at once: whatever
// shows text follows languageChanged (or the LanguageChange event).
class QxLanguage : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QxLanguage)

public:
    // Made on first use, after the QApplication.
    static QxLanguage *instance();

    // The three translators live with the entry point, installed and empty,
    // before the first setLanguage.
    static void setTranslators(QTranslator *application, QTranslator *browser,
                               QTranslator *toolkit);

    // The system's language, as "de_DE" or "de".
    static QString systemLocale();

    // An empty `locale` takes the system's, reduced to a language of the
    // table ("fr_CA" gives "fr", one that isn't there "en"). Loads the
    // translations, says so, marks the menu and stores the choice.
    void setLanguage(QString locale);
    QString currentLocale() const;
    int languageCount() const;
    QStringList localeCodes() const { return locales; }

    QMenu *createMenu(QWidget *parent);

signals:
    void languageChanged(QString strLocale);

public slots:
    void OnChangeLanguage(QAction *action);

private:
    QxLanguage();

    QStringList locales;
    QStringList names;
    QActionGroup *group = nullptr;
    int current = 0;
    QMenu *menu = nullptr;
};

// The splash screen with the skin's picture, the notice and the version,
// painted once before the main window is built.
std::unique_ptr<QSplashScreen> showSplash();
