// Puts a piece of the window on the screen as a user would see it and saves
// the whole screen as a picture: for looking at by eye and for the pictures
// in docs/. Run under Xvfb; QT_SCALE_FACTOR=2 for a HiDPI screen. Not shipped.
//
//   uishots picker OUT.png             the profile popup with a search in progress
//   uishots settings LANG OUT.png      the settings window in a language, both tabs
//   uishots controls OUT.png           every custom control and a property tree
//   uishots surface MEDIA SRT OUT.png  the video surface playing MEDIA with an
//                                      effect, a watermark and the subtitle file
//   uishots main FIXTURES OUT.png [LANG]  the main window with a disc's titles
//                                      and two files of the test fixtures
//   uishots start OUT.png [LANG]       the main window's start page
//   uishots batch FIXTURES OUT.png [LANG]  the main window half-way through
//                                      converting the disc's three titles
//   uishots preview FIXTURES OUT.png [LANG]  the main window previewing the
//                                      first title with an effect, paused

#include "cmainwnd.h"
#include "controls.h"
#include "dvddisc.h"
#include "mediaimagereader.h"
#include "profilegrouploader.h"
#include "tasklist.h"
#include "ffplayer.h"
#include "playerscreen.h"
#include "cprofilecombo.h"
#include "editablecombo.h"
#include "focusoutcombo.h"
#include "qttreepropertybrowser.h"
#include "qtvariantproperty.h"
#include "qxlanguage.h"
#include "settings.h"
#include "settingswindow.h"
#include "qxmainwidget.h"
#include "qxskin.h"

#include <QApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QTabWidget>
#include <QTranslator>
#include <QTreeWidget>
#include <QTest>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>

namespace {

int surfaceShot(const QString &media, const QString &subtitle, const QString &out)
{
    QWidget backdrop(nullptr, Qt::FramelessWindowHint);
    backdrop.setStyleSheet(QStringLiteral("background: #6b7785;"));
    backdrop.setGeometry(QGuiApplication::primaryScreen()->geometry());
    backdrop.show();
    // A 4:3 source in a 16:9 output: the bars are part of the picture.
    PlayerScreen screen;
    screen.setWindowFlag(Qt::FramelessWindowHint);
    screen.setGeometry(40, 40, 640, 360);
    screen.setOutputSize(1280, 720);
    screen.setZoom(0.0);
    screen.setPictureAdjust(5, 10, 20);
    screen.setEffects({8});
    screen.setSubtitleStyle(-1, subtitle, QFont(QStringLiteral("DejaVu Sans"), 22), Qt::white, 0,
                            90);
    QImage mark(240, 60, QImage::Format_ARGB32_Premultiplied);
    mark.fill(Qt::transparent);
    {
        QPainter painter(&mark);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::white);
        painter.setFont(QFont(QStringLiteral("DejaVu Sans"), 26, QFont::Bold));
        painter.drawText(mark.rect(), Qt::AlignCenter, QStringLiteral("Kestrove"));
    }
    screen.setWatermarkImage(mark);
    screen.setWatermarkRect(980, 40, 1219, 99);
    screen.setWatermarkTransparency(60);
    screen.setWatermarkVisible(true);
    screen.show();
    FFPlayer *player = FFPlayer::instance();
    player->open(media, QString(), -1);
    player->seek(1.5);
    player->playPause();
    QTimer::singleShot(1500, qApp, [&] {
        player->playPause();
        QTimer::singleShot(500, qApp, [&] {
            QGuiApplication::primaryScreen()->grabWindow(0, 24, 24, 672, 392).save(out);
            player->stop();
            QCoreApplication::quit();
        });
    });
    return QApplication::exec();
}

enum class MainShot { List, Preview, Batch };

int mainShot(const QString &fixtures, const QString &out, MainShot kind = MainShot::List)
{
    const bool preview = kind == MainShot::Preview;
    // Encoders at the media's own pace, so that a batch is still under way at the grab.
    QTemporaryDir work;
    if (kind == MainShot::Batch) {
        QFile paced(work.filePath(QStringLiteral("ffmpeg")));
        paced.open(QIODevice::WriteOnly);
        paced.write("#!/bin/bash\nargs=()\nfor a in \"$@\"; do [ \"$a\" = -i ] && args+=(-re); "
                    "args+=(\"$a\"); done\nexec ffmpeg \"${args[@]}\"\n");
        paced.close();
        paced.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        qputenv("KESTROVE_FFMPEG", QFile::encodeName(paced.fileName()));
        overrideSetting(QStringLiteral("OutputDir"), work.filePath(QStringLiteral("out")));
        overrideSetting(QStringLiteral("ProcessCount"), 2);
    }
    CMainWnd window;
    window.setGeometry(40, 40, 980, 620);
    window.show();
    TaskList *list = window.tasks();
    const QString key = ProfileGroupLoader::instance()->defaultProfile();
    if (!fixtures.isEmpty()) {
        const auto disc = LoadDvdDisc(fixtures + QStringLiteral("/dvd-main"), false);
        for (int i = 0; disc && i < int(disc->titles.size()); ++i)
            list->addTitle(key, *disc->titles[i], i + 1, 1);
        if (kind != MainShot::Batch) {
            list->addFile(key, fixtures + QStringLiteral("/movie.mkv"));
            list->addFile(key, fixtures + QStringLiteral("/clip.mp4"));
        }
        window.addTaskRows();
        // Down to the files, below the disc's titles.
        window.treeTask->scrollToBottom();
    }
    for (int i = 0; i < list->count(); ++i)
        Logical::MediaImageReader::instance()->requestImage(list->at(i)->id, 1.0, false);
    if (preview && list->count() > 0) {
        // Old film on the first title with its subpicture, played a moment and paused.
        EditParameters &edit = list->at(0)->item(0)->edit;
        edit.setEffectEnabled(7, true);
        edit.selectSubtitle(0);
        window.treeTask->scrollToTop();
        window.treeTask->setCurrentItem(window.itemOf(list->at(0)->id));
        window.playPauseBtn->click();
        QTimer::singleShot(1500, qApp, [&] { window.playPauseBtn->click(); });
    }
    if (kind == MainShot::Batch) {
        window.treeTask->scrollToTop();
        QTimer::singleShot(300, qApp, [&] { window.btnStart->click(); });
    }
    QTimer::singleShot(kind == MainShot::Batch ? 2600 : 2500, qApp, [&] {
        QGuiApplication::primaryScreen()->grabWindow(0, 24, 24, 1012, 652).save(out);
        window.converterManager()->stopAll();
        QCoreApplication::quit();
    });
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() < 3) {
        std::fprintf(stderr, "usage: uishots picker OUT.png | settings LANG OUT.png\n");
        return 2;
    }
    QTranslator application, browser, toolkit;
    for (QTranslator *t : {&application, &browser, &toolkit})
        QCoreApplication::installTranslator(t);
    QxLanguage::setTranslators(&application, &browser, &toolkit);
    if (args.at(1) == QLatin1String("surface") && args.size() == 5)
        return surfaceShot(args.at(2), args.at(3), args.at(4));
    if (args.at(1) == QLatin1String("main") && args.size() >= 4) {
        QxLanguage::instance()->setLanguage(args.value(4, QStringLiteral("en")));
        return mainShot(args.at(2), args.at(3));
    }
    if (args.at(1) == QLatin1String("preview") && args.size() >= 4) {
        QxLanguage::instance()->setLanguage(args.value(4, QStringLiteral("en")));
        return mainShot(args.at(2), args.at(3), MainShot::Preview);
    }
    if (args.at(1) == QLatin1String("batch") && args.size() >= 4) {
        QxLanguage::instance()->setLanguage(args.value(4, QStringLiteral("en")));
        return mainShot(args.at(2), args.at(3), MainShot::Batch);
    }
    if (args.at(1) == QLatin1String("start")) {
        QxLanguage::instance()->setLanguage(args.value(3, QStringLiteral("en")));
        return mainShot(QString(), args.at(2));
    }
    const bool settings = args.at(1) == QLatin1String("settings");
    // "picker OUT.png LANG" shows the popup in a language too.
    QxLanguage::instance()->setLanguage(settings ? args.value(2) : args.value(3, QStringLiteral("en")));
    const QString out = args.value(settings ? 3 : 2);
    QWidget backdrop(nullptr, Qt::FramelessWindowHint);
    backdrop.setStyleSheet(QStringLiteral("background: #6b7785;"));
    backdrop.setGeometry(QGuiApplication::primaryScreen()->geometry());
    backdrop.show();

    QxMainWidget window;
    QMenuBar bar(&window);
    bar.addMenu(QxSkin::instance()->createMenu(&window));
    bar.hide();
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(20, 40, 20, 20);
    auto *row = new QHBoxLayout;
    auto *label = new QLabel(QCoreApplication::translate("CMainWnd", "Profile:"), &window);
    auto *combo = new CProfileCombo(&window);
    combo->setMinimumWidth(320);
    label->setBuddy(combo);
    row->addWidget(label);
    row->addWidget(combo, 1);
    layout->addLayout(row);
    layout->addStretch();
    window.setGeometry(40, 40, 700, 620);
    if (settings) {
        // Both tabs side by side: the Simple one and the Advanced tree.
        auto grabBoth = std::make_shared<std::vector<std::unique_ptr<SettingsWindow>>>();
        for (int tab : {0, 1}) {
            auto dialog = std::make_unique<SettingsWindow>();
            dialog->setProfile(QStringLiteral("mp4.xml"), nullptr);
            dialog->findChild<QTabWidget *>(QStringLiteral("tabWidget"))->setCurrentIndex(tab);
            dialog->setGeometry(40 + tab * 340, 40, 320, 640);
            dialog->show();
            grabBoth->push_back(std::move(dialog));
        }
        QTimer::singleShot(800, &app, [&, grabBoth] {
            QGuiApplication::primaryScreen()->grabWindow(0, 24, 24, 692, 672).save(out);
            QCoreApplication::quit();
        });
        return app.exec();
    }
    if (args.at(1) == QLatin1String("controls")) {
        delete combo;
        delete label;
        auto *form = new QFormLayout;
        layout->insertLayout(0, form);
        auto *start = new FadePushButton(&window);
        start->setObjectName(QStringLiteral("btnStart"));
        start->setProperty("status", QStringLiteral("start"));
        start->setFixedSize(120, 44);
        form->addRow(QStringLiteral("FadePushButton"), start);
        auto *tool = new FadeToolButton(&window);
        tool->setObjectName(QStringLiteral("btnTrim"));
        tool->setProperty("type", QStringLiteral("toolBtn"));
        tool->setText(QStringLiteral("Trim"));
        tool->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        form->addRow(QStringLiteral("FadeToolButton"), tool);
        auto *slider = new CSlider(&window);
        slider->setRange(0, 1000);
        slider->setTrimStart(200);
        slider->setTrimEnd(800);
        slider->setHandleValue(450);
        slider->setMinimumHeight(20);
        form->addRow(QStringLiteral("CSlider"), slider);
        auto *volume = new VolumSlider(&window);
        volume->setRange(0, 100);
        volume->setValue(70);
        form->addRow(QStringLiteral("VolumSlider"), volume);
        auto *play = new CPlayPauseButton(&window);
        play->setObjectName(QStringLiteral("btnPlay"));
        play->setText(QStringLiteral("Play"));
        form->addRow(QStringLiteral("CPlayPauseButton"), play);
        auto *colour = new ColorPushButton(&window);
        colour->setColor(QColor(61, 165, 244));
        colour->setFixedSize(40, 26);
        form->addRow(QStringLiteral("ColorPushButton"), colour);
        auto *colours = new QtColorComboBox(&window);
        colours->addStandardColors();
        colours->setColorDialogEnabled();
        colours->setCurrentIndex(6);
        form->addRow(QStringLiteral("QtColorComboBox"), colours);
        auto *elided = new QxtLabel(&window);
        elided->setText(QStringLiteral("A holiday film with a very long name that the label elides.mkv"));
        elided->setMaximumWidth(220);
        form->addRow(QStringLiteral("QxtLabel"), elided);
        auto *focusOut = new FocusOutCombo(&window);
        focusOut->setEditable(true);
        focusOut->addItems({QStringLiteral("Auto"), QStringLiteral("640*480")});
        form->addRow(QStringLiteral("FocusOutCombo"), focusOut);

        auto *browser = new QtTreePropertyBrowser(&window);
        auto *variants = new QtVariantPropertyManager(&window);
        auto *combos = new EditableComboManager(&window);
        browser->setFactoryForManager(variants, new QtVariantEditorFactory(&window));
        browser->setFactoryForManager(combos, new EditableComboFactory(&window));
        browser->setPropertiesWithoutValueMarked(true);
        QtProperty *video = variants->addProperty(QtVariantPropertyManager::groupTypeId(), QStringLiteral("Video"));
        QtProperty *codec = variants->addProperty(QtVariantPropertyManager::enumTypeId(), QStringLiteral("Video Codec"));
        variants->setAttribute(codec, QStringLiteral("enumNames"), QStringList{QStringLiteral("h264"), QStringLiteral("mpeg4")});
        QtProperty *size = combos->addProperty(QStringLiteral("Video Size"));
        combos->setCandidateValues(size, {QStringLiteral("Auto"), QStringLiteral("640*480")});
        combos->setValue(size, QStringLiteral("640*480"));
        size->setModified(true);
        QtProperty *title = variants->addProperty(QMetaType::QString, QStringLiteral("Title"));
        variants->setValue(title, QStringLiteral("Holiday"));
        QtProperty *locked = variants->addProperty(QMetaType::QString, QStringLiteral("Disabled"));
        locked->setEnabled(false);
        for (QtProperty *p : {codec, size, title, locked})
            video->addSubProperty(p);
        QtProperty *audio = variants->addProperty(QtVariantPropertyManager::groupTypeId(), QStringLiteral("Audio"));
        QtProperty *rate = combos->addProperty(QStringLiteral("Sample Rate"));
        combos->setValue(rate, QStringLiteral("44100"));
        audio->addSubProperty(rate);
        browser->addProperty(video);
        browser->addProperty(audio);
        browser->setMinimumHeight(230);
        browser->setResizeMode(QtTreePropertyBrowser::ResizeToContents);
        layout->insertWidget(1, browser);
        window.setGeometry(40, 40, 520, 700);
        window.show();
        QTimer::singleShot(600, &app, [&] {
            QGuiApplication::primaryScreen()
                ->grabWindow(0, 24, 24, 552, 732)
                .save(out);
            QCoreApplication::quit();
        });
        return app.exec();
    }
    window.show();
    combo->selectProfile(QStringLiteral("14"), QStringLiteral("126"));

    QTimer::singleShot(300, &app, [&] {
        combo->showSearch();
        QTest::keyClicks(combo->profileMenu()->searchField(), QStringLiteral("ipad"));
        QTimer::singleShot(500, &app, [&] {
            const QRect area = window.frameGeometry()
                                   .united(combo->profileMenu()->geometry())
                                   .adjusted(-16, -16, 16, 16);
            QGuiApplication::primaryScreen()
                ->grabWindow(0, area.x(), area.y(), area.width(), area.height())
                .save(out);
            QCoreApplication::quit();
        });
    });
    return app.exec();
}
