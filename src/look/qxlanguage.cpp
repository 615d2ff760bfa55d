#include "qxlanguage.h"

#include "qxskin.h"
#include "settings.h"
#include "version.h"

#include <QActionGroup>
#include <QApplication>
#include <QLocale>
#include <QMenu>
#include <QSplashScreen>
#include <QTranslator>

namespace {

QTranslator *applicationTranslator = nullptr;
QTranslator *browserTranslator = nullptr;
QTranslator *toolkitTranslator = nullptr;

void load(QTranslator *translator, const char *prefix, const QString &locale)
{
    // Loading empties the translator first: a language without a file of
    // this kind keeps those texts in English.
    if (translator)
        (void)translator->load(
            QStringLiteral(":/translations/%1%2").arg(QLatin1String(prefix), locale));
}

} // namespace

QxLanguage::QxLanguage()
    : locales{QStringLiteral("en"), QStringLiteral("fr"),    QStringLiteral("de"),
              QStringLiteral("es"), QStringLiteral("it"),    QStringLiteral("ja"),
              QStringLiteral("zh_CN"), QStringLiteral("zh_TW"), QStringLiteral("ar"),
              QStringLiteral("cz"), QStringLiteral("pt")},
      // Each in its own language: never translated.
      names{QStringLiteral("English"),  QStringLiteral("Français"),
            QStringLiteral("Deutsch"),  QStringLiteral("Español"),
            QStringLiteral("Italiano"), QStringLiteral("日本語"),
            QStringLiteral("简体中文"), QStringLiteral("繁體中文"),
            QStringLiteral("العربية"),  QStringLiteral("Čeština"),
            QStringLiteral("Português")},
      group(new QActionGroup(this))
{
    group->setExclusive(true);
}

QxLanguage *QxLanguage::instance()
{
    static QxLanguage *language = new QxLanguage;
    return language;
}

void QxLanguage::setTranslators(QTranslator *application, QTranslator *browser,
                                QTranslator *toolkit)
{
    applicationTranslator = application;
    browserTranslator = browser;
    toolkitTranslator = toolkit;
}

QString QxLanguage::systemLocale()
{
    return QLocale::system().name();
}

void QxLanguage::setLanguage(QString locale)
{
    if (locale.isEmpty()) {
        locale = systemLocale();
        if (!locales.contains(locale)) {
            const QString language = locale.section(QLatin1Char('_'), 0, 0);
            locale = locale.contains(QLatin1Char('_')) && locales.contains(language)
                         ? language
                         : QStringLiteral("en");
        }
    }
    load(applicationTranslator, "kestrove_", locale);
    load(toolkitTranslator, "qt_", locale);
    load(browserTranslator, "qtpropertybrowser_", locale);
    // The toolkit turns the layout round by its own translation when the
    // LanguageChange that loading posts arrives.
    emit languageChanged(locale);
    if (menu)
        menu->setTitle(tr("&Language"));
    const QList<QAction *> actions = group->actions();
    for (int i = 0; i < actions.size(); ++i) {
        const bool chosen = actions[i]->data().toString() == locale;
        if (chosen)
            current = i;
        actions[i]->setChecked(chosen);
        actions[i]->setEnabled(!chosen);
    }
    if (!menu)
        current = qMax(0, locales.indexOf(locale));
    setSettingString(QStringLiteral("UiLanguage"), locale);
}

QString QxLanguage::currentLocale() const
{
    return locales.value(current);
}

int QxLanguage::languageCount() const
{
    return locales.size();
}

QMenu *QxLanguage::createMenu(QWidget *parent)
{
    menu = new QMenu(tr("&Language"), parent);
    connect(group, &QActionGroup::triggered, this, &QxLanguage::OnChangeLanguage,
            Qt::UniqueConnection);
    for (int i = 0; i < locales.size(); ++i) {
        auto *action = new QAction(names[i], menu);
        action->setCheckable(true);
        action->setData(locales[i]);
        const bool english = i == 0;
        action->setChecked(english);
        action->setEnabled(!english);
        menu->addAction(action);
        group->addAction(action);
    }
    return menu;
}

void QxLanguage::OnChangeLanguage(QAction *action)
{
    setLanguage(action->data().toString());
}

std::unique_ptr<QSplashScreen> showSplash()
{
    auto splash = std::make_unique<QSplashScreen>(QPixmap(QxSkin::instance()->imagePath(
        QStringLiteral("about.png"))));
    QFont font(QFont().family(), 11);
    splash->setFont(font);
    const QString message
        = QCoreApplication::translate("splash", "© %1 %2. All rights reserved.")
              .arg(QString::fromLatin1(__DATE__).right(4), QStringLiteral("Tessarine"))
          + QLatin1Char('\n')
          + QCoreApplication::translate("splash", "Version: %1").arg(productVersion())
          + QLatin1String("\n\n");
    splash->showMessage(message, Qt::AlignHCenter | Qt::AlignBottom,
                        QColor(QxSkin::instance()->configValue(QStringLiteral("ABOUT_LINK_COLOR"),
                                                               QStringLiteral("#000000"))));
    splash->show();
    QCoreApplication::processEvents();
    return splash;
}
