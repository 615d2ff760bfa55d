#include "editparameters.h"

#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestEditParameters : public QObject
{
    Q_OBJECT

private:
    static MediaInfo sourceWithStreams()
    {
        MediaInfo info;
        info.audioStreams = {{0, u"en"_s, 0, 0, 0, u"ac3"_s}, {0, {}, 0, 0, 0, u"mp2"_s}};
        info.subtitleStreams = {{0, u"de"_s, {}}};
        return info;
    }

    static void place(WatermarkEntry &mark, const QRect &rect)
    {
        mark.left = rect.left();
        mark.top = rect.top();
        mark.right = rect.right();
        mark.bottom = rect.bottom();
    }

    static QList<int> types(const EditParameters &edit)
    {
        QList<int> types;
        for (const EffectEntry &effect : edit.effects)
            types << effect.type;
        return types;
    }

    QTemporaryDir dir;

private slots:
    void defaults()
    {
        const EditParameters edit;
        QCOMPARE(edit.effectCount(), 18);
        for (int i = 0; i < 18; ++i)
            QVERIFY(edit.effect(i).type == i + 1 && !edit.effect(i).enabled);
        QCOMPARE(edit.watermarks.size(), size_t(1));
        QVERIFY(!edit.hasWatermark());
        // The watermark entry is always there.
        QVERIFY(edit.isEdited());
        QCOMPARE(EffectEntry::name(18) + EffectEntry::name(19) + EffectEntry::name(0),
                 u"SoftenUnknownUnknown"_s);
    }

    void copies()
    {
        EditParameters source;
        source.addStreamSubtitle(0, sourceWithStreams());
        source.addStreamAudio(1, sourceWithStreams());
        source.zoomMode = u"16:9"_s;
        source.trimEnd = source.convertEnd = 8.0;
        source.cropLeft = source.padTop = source.innerHeight = source.brightness = 30;
        source.rotation = 180;
        source.setEffectEnabled(2, true);
        source.watermark().text = u"source"_s;
        source.watermarkFile = u"/tmp/x.png"_s;

        // A copy is deep and whole.
        EditParameters copy(source);
        QCOMPARE(copy.rotation + copy.convertEnd, 188.0);
        QCOMPARE(copy.watermark().text + copy.watermarkFile, u"source/tmp/x.png"_s);
        QCOMPARE(copy.watermark().id, source.watermark().id);
        copy.subtitles[0]->color = Qt::red;
        copy.audioTracks[0]->loop = true;
        copy.watermark().text = u"other"_s;
        QCOMPARE(source.subtitles[0]->color, QColor(Qt::white));
        QVERIFY(!source.audioTracks[0]->loop);
        QCOMPARE(source.watermark().text, u"source"_s);

        // Assignment leaves the watermark, rotation and converted length.
        EditParameters target;
        target.rotation = 270;
        target.watermark().picturePath = u"/pictures/logo.png"_s;
        target.convertEnd = 3.0;
        target = source;
        QCOMPARE(u"%1 %2 %3 %4 %5 %6"_s.arg(target.zoomMode)
                     .arg(target.trimEnd)
                     .arg(target.cropLeft)
                     .arg(target.padTop)
                     .arg(target.innerHeight)
                     .arg(target.brightness),
                 u"16:9 8 30 30 30 30"_s);
        QCOMPARE(target.enabledEffects(), std::vector<int>{3});
        QVERIFY(target.audioTracks.size() == 1 && target.audioTracks[0] != source.audioTracks[0]);
        QCOMPARE(target.audioTracks[0]->info.audioStreams.size(), size_t(2));
        QCOMPARE(target.rotation + target.convertEnd, 273.0);
        QCOMPARE(target.watermark().picturePath, u"/pictures/logo.png"_s);
        QVERIFY(target.watermark().text.isEmpty() && target.watermarkFile.isEmpty());

        target.assignAll(source);
        QCOMPARE(target.rotation + target.convertEnd, 188.0);
        QCOMPARE(target.watermark().text + target.watermarkFile, u"source/tmp/x.png"_s);
        QVERIFY(&target.watermark() != &source.watermark());
    }

    void effectOrder()
    {
        EditParameters edit;
        edit.setEffectEnabled(2, true); // type 3
        edit.setEffectEnabled(4, true); // type 5
        QCOMPARE(edit.enabledEffects(), (std::vector<int>{3, 5}));
        edit.moveEffectUp(4);
        edit.moveEffectUp(3);
        QCOMPARE(edit.enabledEffects(), (std::vector<int>{5, 3}));
        QCOMPARE(edit.effectCount(), 18);
        QCOMPARE(types(edit).mid(0, 6), (QList<int>{1, 2, 5, 3, 4, 6}));
        edit.moveEffectDown(2);
        QCOMPARE(edit.enabledEffects(), (std::vector<int>{3, 5}));
        // The ends stay put.
        edit.moveEffectUp(0);
        edit.moveEffectDown(17);
        QCOMPARE(types(edit).first() * 100 + types(edit).last(), 118);

        // Flips are effects 13 and 14; a list without one gets it appended.
        QVERIFY(edit.isFlipped(13, false) && !edit.isFlipped(13, true)
                && !edit.isFlipped(3, false));
        QVERIFY(edit.setFlip(14, true));
        QVERIFY(edit.isFlipped(14, true));
        edit.effects.erase(edit.effects.begin() + 12);
        QVERIFY(!edit.isFlipped(13, false));
        QVERIFY(edit.setFlip(13, true));
        QCOMPARE(edit.effects.back().type, 13);
        QCOMPARE(edit.enabledEffects(), (std::vector<int>{3, 5, 14, 13}));
        QVERIFY(!edit.setFlip(12, true));
    }

    void audioSelection()
    {
        EditParameters edit;
        edit.addStreamAudio(0, sourceWithStreams());
        edit.addStreamAudio(1, sourceWithStreams());
        const int added = edit.addAudioFile(u"/music/song.mp3"_s);
        QCOMPARE(added, 2);
        QStringList texts;
        for (const auto &track : edit.audioTracks)
            texts << track->text();
        QCOMPARE(texts, (QStringList{u"ac3 (en)"_s, u"mp2"_s, u"song.mp3"_s}));

        QVERIFY(!edit.anyAudioSelected());
        QCOMPARE(edit.selectedAudioStream(), -1);
        QVERIFY(edit.selectAudio(added));
        QVERIFY(edit.anyAudioSelected());
        // The added file is selected: no stream of the input.
        QCOMPARE(edit.selectedAudioStream(), -1);
        QVERIFY(edit.selectAudio(1));
        QCOMPARE(edit.selectedAudioStream(), 1);
        QVERIFY(!edit.selectAudio(3) && !edit.selectAudio(-1));
        edit.clearAudioSelection();
        QVERIFY(!edit.anyAudioSelected());

        QVERIFY(!edit.removeAudioFile(0) && !edit.removeAudioFile(7));
        QVERIFY(edit.removeAudioFile(added));
        QCOMPARE(edit.audioTracks.size(), size_t(2));
        edit.addAudioFile(u"/a.wav"_s);
        edit.addAudioFile(u"/b.wav"_s);
        edit.removeAllAudioFiles();
        QCOMPARE(edit.audioTracks.size(), size_t(2));
        QVERIFY(!edit.audioTracks[1]->external);
    }

    void subtitleSelection()
    {
        EditParameters edit;
        edit.addStreamSubtitle(0, sourceWithStreams());
        const int file = edit.addSubtitleFile(u"/subs/movie.idx"_s, u"fr"_s, 0);
        const int plain = edit.addSubtitleFile(u"/subs/movie.srt"_s, QString(), 0);
        QVERIFY(!edit.subtitles[0]->customStyle && edit.subtitles[size_t(file)]->customStyle);
        QStringList texts;
        for (const auto &subtitle : edit.subtitles)
            texts << subtitle->text();
        QCOMPARE(texts, (QStringList{u"de"_s, u"movie.idx(fr)"_s, u"movie.srt"_s}));

        QVERIFY(!edit.selectedSubtitleFile());
        QVERIFY(edit.selectSubtitle(plain));
        QCOMPARE(edit.selectedSubtitleFile(), edit.subtitles[size_t(plain)].get());
        // An added file's track counts in its own language list.
        QCOMPARE(edit.selectedSubtitleStream(), -1);
        QVERIFY(edit.selectSubtitle(0));
        QCOMPARE(edit.selectedSubtitleStream(), 0);
        edit.clearSubtitleSelection();
        QVERIFY(!edit.anySubtitleSelected());
        edit.removeAllSubtitleFiles();
        QCOMPARE(edit.subtitles.size(), size_t(1));
    }

    void loadAudioInfoOfStreams()
    {
        EditParameters edit;
        edit.addStreamAudio(1, sourceWithStreams());
        AudioStreamInfo stream;
        QVERIFY(EditParameters::loadAudioInfo(*edit.audioTracks[0], stream));
        QCOMPARE(stream.codec, u"mp2"_s);

        edit.addAudioFile(dir.filePath(u"missing.mp3"_s));
        QVERIFY(!EditParameters::loadAudioInfo(*edit.audioTracks[1], stream));
        QVERIFY(!edit.audioTracks[1]->infoLoaded);
    }

    void applyCrop_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("left");
        QTest::addColumn<int>("top");
        QTest::newRow("too narrow") << 300 << 480 << 0 << 10;
        QTest::newRow("wide enough") << 307 << 480 << 150 << 10;
        QTest::newRow("too low") << 720 << 36 << 150 << 0;
        QTest::newRow("just high enough") << 720 << 37 << 150 << 10;
    }

    void applyCrop()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(int, left);
        QFETCH(int, top);
        EditParameters edited;
        edited.cropLeft = 150;
        edited.cropRight = 140;
        edited.cropTop = 10;
        edited.cropBottom = 10;
        edited.zoomMode = u"Full Screen"_s;
        edited.brightness = 40;

        EditParameters other;
        other.cropTop = 2;
        edited.applyCropTo(other, width, height);
        QCOMPARE(QList<int>({other.cropLeft, other.cropRight, other.cropTop, other.cropBottom}),
                 QList<int>({left, left ? 140 : 0, top ? 10 : 2, top}));
        QCOMPARE(other.zoomMode, u"Full Screen"_s);
        QCOMPARE(other.brightness, 0);
    }

    void applyImageAndWatermark()
    {
        EditParameters edited;
        edited.brightness = -20;
        edited.contrast = 15;
        edited.saturation = 100;
        edited.setEffectEnabled(0, true);
        edited.watermark().text = u"mine"_s;
        edited.watermark().left = 40;

        EditParameters other;
        edited.applyImageTo(other);
        QCOMPARE(QList<int>({other.brightness, other.contrast, other.saturation}),
                 QList<int>({-20, 15, 100}));
        QVERIFY(other.enabledEffects().empty());
        edited.applyWatermarkTo(other);
        QCOMPARE(other.watermark().text, u"mine"_s);
        QCOMPARE(other.watermark().left, 40);
        QVERIFY(other.watermark().id != edited.watermark().id);
        other.watermark().text = u"changed"_s;
        QCOMPARE(edited.watermark().text, u"mine"_s);
    }

    void renderWatermark_data()
    {
        QTest::addColumn<QString>("text"); // none: a picture, its left half red, the right blue
        QTest::addColumn<QRect>("entry");  // inclusive rectangle in output pixels
        QTest::addColumn<QRect>("placed"); // none: nothing made
        QTest::addColumn<QColor>("leftColour");
        QTest::addColumn<QColor>("rightColour");
        const auto row = [](const char *name, const char *text, QRect entry, QRect placed,
                            QColor left = {}, QColor right = {}) {
            QTest::newRow(name) << QString::fromLatin1(text) << entry << placed << left << right;
        };
        const QColor red(Qt::red), blue(Qt::blue);
        row("inside", "", QRect(10, 5, 20, 10), QRect(10, 5, 20, 10), red, blue);
        row("past right and bottom", "", QRect(90, 45, 20, 10), QRect(90, 45, 10, 5), red, red);
        row("left of the frame", "", QRect(-10, 0, 20, 10), QRect(0, 0, 10, 10), blue, blue);
        row("scaled to the rectangle", "", QRect(0, 0, 40, 20), QRect(0, 0, 40, 20), red, blue);
        row("no watermark", nullptr, QRect(1, 1, 160, 120), QRect());
        row("inverted width", "x", QRect(QPoint(50, 1), QPoint(20, 40)), QRect());
        row("inverted height", "x", QRect(QPoint(1, 30), QPoint(60, 10)), QRect());
        row("outside the frame", "x", QRect(400, 1, 100, 20), QRect());
    }

    void renderWatermark()
    {
        QFETCH(QString, text);
        QFETCH(QRect, entry);
        QFETCH(QRect, placed);
        QFETCH(QColor, leftColour);
        QFETCH(QColor, rightColour);
        EditParameters edit;
        edit.watermark().text = text;
        if (text.isEmpty() && !text.isNull()) {
            QImage halves(20, 10, QImage::Format_ARGB32);
            halves.fill(Qt::red);
            QPainter(&halves).fillRect(10, 0, 10, 10, Qt::blue);
            edit.watermark().picturePath = dir.filePath(u"halves.png"_s);
            QVERIFY(halves.save(edit.watermark().picturePath));
        }
        place(edit.watermark(), entry);
        const QString path = dir.filePath(u"Watermark/%1.png"_s.arg(
            QString::fromUtf8(QTest::currentDataTag()).replace(u' ', u'-')));
        QCOMPARE(edit.renderWatermark(100, 50, path), !placed.isNull());
        if (placed.isNull()) {
            QVERIFY(!QFile::exists(path));
            QVERIFY(edit.watermarkFile.isEmpty());
            return;
        }
        QCOMPARE(edit.watermarkFile, path);
        QCOMPARE(QRect(QPoint(edit.watermarkX, edit.watermarkY),
                       QPoint(edit.watermarkRight, edit.watermarkBottom)),
                 placed);
        const QImage saved(path);
        QCOMPARE(saved.size(), placed.size());
        const int y = saved.height() / 2;
        QCOMPARE(saved.pixelColor(1, y), leftColour);
        QCOMPARE(saved.pixelColor(saved.width() - 2, y), rightColour);
    }

    void renderTransparentText()
    {
        EditParameters edit;
        WatermarkEntry &mark = edit.watermark();
        mark.text = u"WWWW"_s;
        mark.color = Qt::green;
        mark.transparency = 128;
        place(mark, QRect(4, 6, 80, 30));
        const QString path = dir.filePath(u"text.png"_s);
        QVERIFY(edit.renderWatermark(320, 240, path));
        const QImage saved(path);
        QCOMPARE(QRect(QPoint(edit.watermarkX, edit.watermarkY), saved.size()),
                 QRect(4, 6, 80, 30));

        // The text's strokes are green at about half opacity; nothing is
        // stronger than that.
        int strokes = 0, maxAlpha = 0;
        for (int i = 0; i < saved.width() * saved.height(); ++i) {
            const QColor pixel = saved.pixelColor(i % saved.width(), i / saved.width());
            maxAlpha = std::max(maxAlpha, pixel.alpha());
            strokes += pixel.alpha() > 100 && pixel.green() > 200 && pixel.red() < 60;
        }
        QVERIFY(strokes > 20);
        QVERIFY2(maxAlpha >= 120 && maxAlpha <= 135, qPrintable(QString::number(maxAlpha)));
    }

    void watermarkPathIsFresh()
    {
        const QString first = EditParameters::newWatermarkPath();
        QVERIFY(first.startsWith(QDir::tempPath() + u"/Watermark/"_s));
        QVERIFY(first.endsWith(u".png"_s));
        QVERIFY(first != EditParameters::newWatermarkPath());
    }
};

QTEST_MAIN(TestEditParameters)
#include "tst_editparameters.moc"
