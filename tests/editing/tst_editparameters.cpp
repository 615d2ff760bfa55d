#include "editparameters.h"

#include <QTemporaryDir>
#include <QTest>

class TestEditParameters : public QObject
{
    Q_OBJECT

private:
    static MediaInfo sourceWithStreams()
    {
        MediaInfo info;
        AudioStreamInfo ac3;
        ac3.codec = QStringLiteral("ac3");
        ac3.language = QStringLiteral("en");
        AudioStreamInfo mp2;
        mp2.codec = QStringLiteral("mp2");
        info.audioStreams = {ac3, mp2};
        SubtitleStreamInfo de;
        de.language = QStringLiteral("de");
        info.subtitleStreams = {de};
        return info;
    }

    // A 20x10 picture, left half red, right half blue.
    static QImage halves()
    {
        QImage image(20, 10, QImage::Format_ARGB32);
        image.fill(Qt::red);
        for (int y = 0; y < 10; ++y) {
            for (int x = 10; x < 20; ++x)
                image.setPixel(x, y, qRgb(0, 0, 255));
        }
        return image;
    }

    QTemporaryDir dir;

private slots:
    void defaults()
    {
        const EditParameters edit;
        QCOMPARE(edit.zoomMode, QStringLiteral("Keep Original"));
        QCOMPARE(edit.effectCount(), 18);
        for (int i = 0; i < 18; ++i) {
            QCOMPARE(edit.effect(i).type, i + 1);
            QVERIFY(!edit.effect(i).enabled);
        }
        QCOMPARE(edit.watermarks.size(), size_t(1));
        QCOMPARE(edit.watermark().font.pointSize(), 20);
        QCOMPARE(edit.watermark().right, 160);
        QVERIFY(!edit.hasWatermark());
        QCOMPARE(edit.watermarkRight, -1);
        // The watermark entry is always there.
        QVERIFY(edit.isEdited());
        QCOMPARE(EffectEntry::name(13), QStringLiteral("Flip Horizontal"));
        QCOMPARE(EffectEntry::name(18), QStringLiteral("Soften"));
        QCOMPARE(EffectEntry::name(19), QStringLiteral("Unknown"));
        QCOMPARE(EffectEntry::name(0), QStringLiteral("Unknown"));
    }

    void copyIsDeep()
    {
        EditParameters original;
        original.addStreamSubtitle(0, sourceWithStreams());
        original.addAudioFile(QStringLiteral("/music/a.mp3"));
        original.watermark().text = QStringLiteral("mark");
        original.rotation = 90;

        EditParameters copy(original);
        QCOMPARE(copy.rotation, 90);
        QCOMPARE(copy.watermark().text, QStringLiteral("mark"));
        QCOMPARE(copy.watermark().id, original.watermark().id);
        copy.subtitles[0]->color = Qt::red;
        copy.subtitles[0]->position = 10;
        copy.audioTracks[0]->loop = true;
        copy.watermark().text = QStringLiteral("other");
        QCOMPARE(original.subtitles[0]->color, QColor(Qt::white));
        QCOMPARE(original.subtitles[0]->position, 90);
        QVERIFY(!original.audioTracks[0]->loop);
        QCOMPARE(original.watermark().text, QStringLiteral("mark"));
    }

    void assignmentLeavesWatermarkAndRotation()
    {
        EditParameters source;
        source.zoomMode = QStringLiteral("16:9");
        source.trimStart = 1.5;
        source.trimEnd = 9.0;
        source.convertEnd = 8.0;
        source.cropLeft = 8;
        source.padTop = 28;
        source.innerHeight = 422;
        source.brightness = 30;
        source.rotation = 180;
        source.setEffectEnabled(2, true);
        source.watermark().text = QStringLiteral("source");
        source.watermarkFile = QStringLiteral("/tmp/x.png");
        source.watermarkX = 5;
        source.addStreamAudio(1, sourceWithStreams());

        EditParameters target;
        target.rotation = 270;
        target.watermark().picturePath = QStringLiteral("/pictures/logo.png");
        target.convertEnd = 3.0;
        target = source;
        QCOMPARE(target.zoomMode, QStringLiteral("16:9"));
        QCOMPARE(target.trimStart, 1.5);
        QCOMPARE(target.trimEnd, 9.0);
        QCOMPARE(target.cropLeft, 8);
        QCOMPARE(target.padTop, 28);
        QCOMPARE(target.innerHeight, 422);
        QCOMPARE(target.brightness, 30);
        QCOMPARE(target.enabledEffects(), std::vector<int>{3});
        QCOMPARE(target.selectedAudioStream(), -1);
        QCOMPARE(target.audioTracks.size(), size_t(1));
        QVERIFY(target.audioTracks[0] != source.audioTracks[0]);
        QCOMPARE(target.audioTracks[0]->info.audioStreams.size(), size_t(2));
        // Left as they were.
        QCOMPARE(target.rotation, 270);
        QCOMPARE(target.convertEnd, 3.0);
        QCOMPARE(target.watermark().picturePath, QStringLiteral("/pictures/logo.png"));
        QVERIFY(target.watermark().text.isEmpty());
        QVERIFY(target.watermarkFile.isEmpty());
        QCOMPARE(target.watermarkX, 0);

        target.assignAll(source);
        QCOMPARE(target.rotation, 180);
        QCOMPARE(target.watermark().text, QStringLiteral("source"));
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
        QCOMPARE(edit.effect(2).type, 5);
        QCOMPARE(edit.effect(3).type, 3);
        QCOMPARE(edit.effect(4).type, 4);
        edit.moveEffectDown(2);
        QCOMPARE(edit.enabledEffects(), (std::vector<int>{3, 5}));
        // The ends stay put.
        edit.moveEffectUp(0);
        edit.moveEffectDown(17);
        QCOMPARE(edit.effect(0).type, 1);
        QCOMPARE(edit.effect(17).type, 18);
    }

    void flips()
    {
        EditParameters edit;
        QVERIFY(edit.isFlipped(13, false));
        QVERIFY(!edit.isFlipped(13, true));
        QVERIFY(!edit.isFlipped(3, false));
        QVERIFY(edit.setFlip(14, true));
        QVERIFY(edit.isFlipped(14, true));
        QCOMPARE(edit.enabledEffects(), std::vector<int>{14});

        // A list without the flip gets one appended.
        edit.effects.erase(edit.effects.begin() + 12);
        QVERIFY(!edit.isFlipped(13, false));
        QVERIFY(edit.setFlip(13, true));
        QCOMPARE(edit.effects.back().type, 13);
        QCOMPARE(edit.enabledEffects(), (std::vector<int>{14, 13}));
        QVERIFY(!edit.setFlip(12, true));
    }

    void audioSelection()
    {
        EditParameters edit;
        const MediaInfo source = sourceWithStreams();
        edit.addStreamAudio(0, source);
        edit.addStreamAudio(1, source);
        const int added = edit.addAudioFile(QStringLiteral("/music/song.mp3"));
        QCOMPARE(added, 2);
        QCOMPARE(edit.audioTracks[0]->text(), QStringLiteral("ac3 (en)"));
        QCOMPARE(edit.audioTracks[1]->text(), QStringLiteral("mp2"));
        QCOMPARE(edit.audioTracks[2]->text(), QStringLiteral("song.mp3"));

        QVERIFY(!edit.anyAudioSelected());
        QCOMPARE(edit.selectedAudioStream(), -1);
        QVERIFY(edit.selectAudio(added));
        QVERIFY(edit.anyAudioSelected());
        // The added file is selected: no stream of the input.
        QCOMPARE(edit.selectedAudioStream(), -1);
        QVERIFY(edit.selectAudio(1));
        QCOMPARE(edit.selectedAudioStream(), 1);
        QVERIFY(!edit.selectAudio(3));
        QVERIFY(!edit.selectAudio(-1));
        edit.clearAudioSelection();
        QVERIFY(!edit.anyAudioSelected());

        QVERIFY(!edit.removeAudioFile(0));
        QVERIFY(!edit.removeAudioFile(7));
        QVERIFY(edit.removeAudioFile(added));
        QCOMPARE(edit.audioTracks.size(), size_t(2));
        edit.addAudioFile(QStringLiteral("/a.wav"));
        edit.addAudioFile(QStringLiteral("/b.wav"));
        edit.removeAllAudioFiles();
        QCOMPARE(edit.audioTracks.size(), size_t(2));
        QVERIFY(!edit.audioTracks[1]->external);
    }

    void subtitleSelection()
    {
        EditParameters edit;
        edit.addStreamSubtitle(0, sourceWithStreams());
        QVERIFY(!edit.subtitles[0]->customStyle);
        const int file
            = edit.addSubtitleFile(QStringLiteral("/subs/movie.idx"), QStringLiteral("fr"), 0);
        const int plain = edit.addSubtitleFile(QStringLiteral("/subs/movie.srt"), QString(), 0);
        QVERIFY(edit.subtitles[size_t(file)]->customStyle);
        QCOMPARE(edit.subtitles[0]->text(), QStringLiteral("de"));
        QCOMPARE(edit.subtitles[size_t(file)]->text(), QStringLiteral("movie.idx(fr)"));
        QCOMPARE(edit.subtitles[size_t(plain)]->text(), QStringLiteral("movie.srt"));

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
        QCOMPARE(stream.codec, QStringLiteral("mp2"));

        edit.addAudioFile(dir.filePath(QStringLiteral("missing.mp3")));
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
        edited.zoomMode = QStringLiteral("Full Screen");
        edited.brightness = 40;

        EditParameters other;
        other.cropTop = 2;
        edited.applyCropTo(other, width, height);
        QCOMPARE(other.cropLeft, left);
        QCOMPARE(other.cropRight, left ? 140 : 0);
        QCOMPARE(other.cropTop, top ? 10 : 2);
        QCOMPARE(other.cropBottom, top);
        QCOMPARE(other.zoomMode, QStringLiteral("Full Screen"));
        QCOMPARE(other.brightness, 0);
    }

    void applyImageAndWatermark()
    {
        EditParameters edited;
        edited.brightness = -20;
        edited.contrast = 15;
        edited.saturation = 100;
        edited.setEffectEnabled(0, true);
        edited.watermark().text = QStringLiteral("mine");
        edited.watermark().left = 40;

        EditParameters other;
        edited.applyImageTo(other);
        QCOMPARE(other.brightness, -20);
        QCOMPARE(other.contrast, 15);
        QCOMPARE(other.saturation, 100);
        QVERIFY(other.enabledEffects().empty());

        edited.applyWatermarkTo(other);
        QCOMPARE(other.watermark().text, QStringLiteral("mine"));
        QCOMPARE(other.watermark().left, 40);
        QVERIFY(other.watermark().id != edited.watermark().id);
        other.watermark().text = QStringLiteral("changed");
        QCOMPARE(edited.watermark().text, QStringLiteral("mine"));
    }

    void renderPictureWatermark_data()
    {
        QTest::addColumn<QRect>("entry"); // inclusive rectangle in output pixels
        QTest::addColumn<QRect>("placed");
        QTest::addColumn<QColor>("leftColour");
        QTest::addColumn<QColor>("rightColour");
        QTest::newRow("inside") << QRect(QPoint(10, 5), QPoint(29, 14))
                                << QRect(QPoint(10, 5), QPoint(29, 14)) << QColor(Qt::red)
                                << QColor(Qt::blue);
        QTest::newRow("past right and bottom")
            << QRect(QPoint(90, 45), QPoint(109, 54)) << QRect(QPoint(90, 45), QPoint(99, 49))
            << QColor(Qt::red) << QColor(Qt::red);
        QTest::newRow("left of the frame")
            << QRect(QPoint(-10, 0), QPoint(9, 9)) << QRect(QPoint(0, 0), QPoint(9, 9))
            << QColor(Qt::blue) << QColor(Qt::blue);
        QTest::newRow("scaled to the rectangle")
            << QRect(QPoint(0, 0), QPoint(39, 19)) << QRect(QPoint(0, 0), QPoint(39, 19))
            << QColor(Qt::red) << QColor(Qt::blue);
    }

    void renderPictureWatermark()
    {
        QFETCH(QRect, entry);
        QFETCH(QRect, placed);
        QFETCH(QColor, leftColour);
        QFETCH(QColor, rightColour);
        const QString picture = dir.filePath(QStringLiteral("halves.png"));
        QVERIFY(halves().save(picture));

        EditParameters edit;
        WatermarkEntry &mark = edit.watermark();
        mark.picturePath = picture;
        mark.left = entry.left();
        mark.top = entry.top();
        mark.right = entry.right();
        mark.bottom = entry.bottom();
        const QString path
            = dir.filePath(QStringLiteral("Watermark/%1.png")
                               .arg(QString::fromUtf8(QTest::currentDataTag())
                                        .replace(QLatin1Char(' '), QLatin1Char('-'))));
        QVERIFY(edit.renderWatermark(100, 50, path));
        QCOMPARE(edit.watermarkFile, path);
        QCOMPARE(edit.watermarkX, placed.left());
        QCOMPARE(edit.watermarkY, placed.top());
        QCOMPARE(edit.watermarkRight, placed.right());
        QCOMPARE(edit.watermarkBottom, placed.bottom());

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
        mark.text = QStringLiteral("WWWW");
        mark.color = Qt::green;
        mark.transparency = 128;
        mark.left = 4;
        mark.top = 6;
        mark.right = 83;
        mark.bottom = 35;
        const QString path = dir.filePath(QStringLiteral("text.png"));
        QVERIFY(edit.renderWatermark(320, 240, path));
        const QImage saved(path);
        QCOMPARE(saved.size(), QSize(80, 30));
        QCOMPARE(edit.watermarkX, 4);
        QCOMPARE(edit.watermarkY, 6);

        // The text's strokes are green at about half opacity; nothing is
        // stronger than that.
        int strokes = 0;
        int maxAlpha = 0;
        for (int y = 0; y < saved.height(); ++y) {
            for (int x = 0; x < saved.width(); ++x) {
                const QColor pixel = saved.pixelColor(x, y);
                maxAlpha = std::max(maxAlpha, pixel.alpha());
                if (pixel.alpha() > 100 && pixel.green() > 200 && pixel.red() < 60)
                    ++strokes;
            }
        }
        QVERIFY(strokes > 20);
        QVERIFY2(maxAlpha >= 120 && maxAlpha <= 135, qPrintable(QString::number(maxAlpha)));
    }

    void renderNothing_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QRect>("entry");
        QTest::newRow("no watermark") << QString() << QRect(QPoint(1, 1), QPoint(160, 120));
        QTest::newRow("inverted width")
            << QStringLiteral("x") << QRect(QPoint(50, 1), QPoint(20, 120));
        QTest::newRow("inverted height")
            << QStringLiteral("x") << QRect(QPoint(1, 50), QPoint(160, 10));
        QTest::newRow("outside the frame")
            << QStringLiteral("x") << QRect(QPoint(400, 1), QPoint(500, 20));
    }

    void renderNothing()
    {
        QFETCH(QString, text);
        QFETCH(QRect, entry);
        EditParameters edit;
        edit.watermark().text = text;
        edit.watermark().left = entry.left();
        edit.watermark().top = entry.top();
        edit.watermark().right = entry.right();
        edit.watermark().bottom = entry.bottom();
        const QString path = dir.filePath(QStringLiteral("nothing.png"));
        QVERIFY(!edit.renderWatermark(320, 240, path));
        QVERIFY(!QFile::exists(path));
        QVERIFY(edit.watermarkFile.isEmpty());
    }

    void watermarkPathIsFresh()
    {
        const QString first = EditParameters::newWatermarkPath();
        QVERIFY(first.startsWith(QDir::tempPath() + QStringLiteral("/Watermark/")));
        QVERIFY(first.endsWith(QStringLiteral(".png")));
        QVERIFY(first != EditParameters::newWatermarkPath());
    }
};

QTEST_MAIN(TestEditParameters)
#include "tst_editparameters.moc"
