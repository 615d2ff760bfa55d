#include "editparameters.h"

#include <QDebug>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

MediaInfo sourceWithStreams()
{
    MediaInfo info;
    info.audioStreams = {{0, u"en"_s, 0, 0, 0, u"ac3"_s}, {0, {}, 0, 0, 0, u"mp2"_s}};
    info.subtitleStreams = {{0, u"de"_s, {}}};
    return info;
}

// The values in one line, as QDebug writes them.
template<typename... Values>
QString line(const Values &...values)
{
    QString text;
    (QDebug(&text).noquote() << ... << values);
    return text.chopped(1); // the space after the last
}

// The fields that copies and assignments treat differently.
QString fields(const EditParameters &edit)
{
    return line(edit.zoomMode, edit.trimEnd, edit.cropLeft, edit.padTop, edit.innerHeight,
                edit.brightness, edit.enabledEffects(), edit.audioTracks.size(), "|", edit.rotation,
                edit.convertEnd,
                edit.watermark().text + edit.watermark().picturePath + edit.watermarkFile);
}

template<typename Entry>
QString texts(const std::vector<std::unique_ptr<Entry>> &entries)
{
    QStringList texts;
    for (const auto &entry : entries)
        texts << entry->text();
    return texts.join(u'|');
}

QString types(const EditParameters &edit)
{
    QStringList types;
    for (const EffectEntry &effect : edit.effects)
        types << QString::number(effect.type) + (effect.enabled ? u"*"_s : u""_s);
    return types.join(u' ');
}

} // namespace

class TestEditParameters : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;

private slots:
    void defaults()
    {
        const EditParameters edit;
        QCOMPARE(types(edit), u"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18"_s);
        // The watermark entry is always there, empty: that counts as edited.
        QVERIFY(edit.watermarks.size() == 1 && !edit.hasWatermark() && edit.isEdited());
        QCOMPARE(EffectEntry::name(18) + EffectEntry::name(19) + EffectEntry::name(0),
                 u"SoftenUnknownUnknown"_s);
        const QString path = EditParameters::newWatermarkPath();
        QVERIFY(path.startsWith(QDir::tempPath() + u"/Watermark/"_s) && path.endsWith(u".png"_s));
        QVERIFY(path != EditParameters::newWatermarkPath());
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
        source.watermarkFile = u"/x.png"_s;
        const QString whole = u"16:9 8 30 30 30 30 std::vector(3) 1 | 180 8 source/x.png"_s;

        // A copy is deep and whole.
        EditParameters copy(source);
        QCOMPARE(fields(copy), whole);
        QCOMPARE(copy.watermark().id, source.watermark().id);
        copy.subtitles[0]->color = Qt::red;
        copy.audioTracks[0]->loop = true;
        copy.watermark().text = u"other"_s;
        QVERIFY(source.subtitles[0]->color == Qt::white && !source.audioTracks[0]->loop);
        QCOMPARE(fields(source), whole);

        // Assignment leaves the watermark, rotation and converted length.
        EditParameters target;
        target.rotation = 270;
        target.watermark().picturePath = u"/logo.png"_s;
        target.convertEnd = 3.0;
        target = source;
        QCOMPARE(fields(target), u"16:9 8 30 30 30 30 std::vector(3) 1 | 270 3 /logo.png"_s);
        QVERIFY(target.audioTracks[0] != source.audioTracks[0]);
        QCOMPARE(target.audioTracks[0]->info.audioStreams.size(), size_t(2));

        target.assignAll(source);
        QCOMPARE(fields(target), whole);
        QVERIFY(&target.watermark() != &source.watermark());
    }

    void effectOrder()
    {
        EditParameters edit;
        edit.setEffectEnabled(2, true); // type 3
        edit.setEffectEnabled(4, true); // type 5
        edit.moveEffectUp(4);
        edit.moveEffectUp(3);
        QCOMPARE(edit.enabledEffects(), (std::vector<int>{5, 3}));
        edit.moveEffectDown(2);
        // The ends stay put.
        edit.moveEffectUp(0);
        edit.moveEffectDown(17);
        QCOMPARE(types(edit), u"1 2 3* 5* 4 6 7 8 9 10 11 12 13 14 15 16 17 18"_s);

        // Flips are effects 13 and 14; a list without one gets it appended.
        QVERIFY(edit.isFlipped(13, false) && !edit.isFlipped(13, true)
                && !edit.isFlipped(3, false));
        QVERIFY(edit.setFlip(14, true) && edit.isFlipped(14, true));
        edit.effects.erase(edit.effects.begin() + 12);
        QVERIFY(!edit.isFlipped(13, false));
        QVERIFY(edit.setFlip(13, true) && !edit.setFlip(12, true));
        QCOMPARE(edit.enabledEffects(), (std::vector<int>{3, 5, 14, 13}));
    }

    // Audio tracks and subtitles: streams of the input and added files.
    void selection()
    {
        EditParameters edit;
        edit.addStreamAudio(0, sourceWithStreams());
        edit.addStreamAudio(1, sourceWithStreams());
        const int added = edit.addAudioFile(u"/music/song.mp3"_s);
        QCOMPARE(texts(edit.audioTracks), u"ac3 (en)|mp2|song.mp3"_s);
        // Whether any track is selected, and which stream of the input.
        const auto audio = [&edit] {
            return line(edit.anyAudioSelected(), edit.selectedAudioStream());
        };
        QStringList states{audio()};
        QVERIFY(edit.selectAudio(added));
        states << audio(); // the added file: no stream of the input
        QVERIFY(edit.selectAudio(1) && !edit.selectAudio(3) && !edit.selectAudio(-1));
        states << audio();
        edit.clearAudioSelection();
        QCOMPARE((states << audio()).join(u", "), u"false -1, true -1, true 1, false -1"_s);

        QVERIFY(!edit.removeAudioFile(0) && !edit.removeAudioFile(7));
        QVERIFY(edit.removeAudioFile(added));
        edit.addAudioFile(u"/a.wav"_s);
        // A stream of the input needs no file read.
        AudioStreamInfo stream;
        QVERIFY(EditParameters::loadAudioInfo(*edit.audioTracks[1], stream));
        QCOMPARE(stream.codec, u"mp2"_s);
        edit.removeAllAudioFiles();
        QCOMPARE(texts(edit.audioTracks), u"ac3 (en)|mp2"_s);

        edit.addStreamSubtitle(0, sourceWithStreams());
        const int file = edit.addSubtitleFile(u"/subs/movie.idx"_s, u"fr"_s, 0);
        const int plain = edit.addSubtitleFile(u"/subs/movie.srt"_s, QString(), 0);
        QVERIFY(!edit.subtitles[0]->customStyle && edit.subtitles[size_t(file)]->customStyle);
        QCOMPARE(texts(edit.subtitles), u"de|movie.idx(fr)|movie.srt"_s);
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
        QCOMPARE(texts(edit.subtitles), u"de"_s);
    }

    void applyCrop_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<QString>("crop"); // left right top bottom
        QTest::newRow("too narrow") << 300 << 480 << u"0 0 10 10"_s;
        QTest::newRow("wide enough") << 307 << 480 << u"150 140 10 10"_s;
        QTest::newRow("too low") << 720 << 36 << u"150 140 2 0"_s;
        QTest::newRow("just high enough") << 720 << 37 << u"150 140 10 10"_s;
    }

    void applyCrop()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(QString, crop);
        EditParameters edited;
        edited.cropLeft = 150;
        edited.cropRight = 140;
        edited.cropTop = edited.cropBottom = 10;
        edited.zoomMode = u"Full Screen"_s;
        edited.brightness = 40;
        EditParameters other;
        other.cropTop = 2;
        edited.applyCropTo(other, width, height);
        QCOMPARE(line(other.cropLeft, other.cropRight, other.cropTop, other.cropBottom,
                      other.zoomMode, other.brightness),
                 crop + u" Full Screen 0"_s);

        // The watermark goes over as a copy of its own.
        edited.watermark().text = u"mine"_s;
        edited.applyWatermarkTo(other);
        QVERIFY(other.watermark().id != edited.watermark().id);
        other.watermark().text += u" too"_s;
        QCOMPARE(edited.watermark().text + u'/' + other.watermark().text, u"mine/mine too"_s);
    }

    void renderWatermark_data()
    {
        QTest::addColumn<QString>("text");    // empty: a picture, its left half red, the right blue
        QTest::addColumn<QRect>("entry");     // inclusive rectangle in output pixels
        QTest::addColumn<QRect>("placed");    // none: nothing made
        QTest::addColumn<QString>("colours"); // left, right, most opaque alpha
        const auto row = [](const char *name, const char *text, QRect entry, QRect placed,
                            const char *colours = "") {
            QTest::newRow(name) << text << entry << placed << colours;
        };
        row("inside", "", QRect(10, 5, 20, 10), QRect(10, 5, 20, 10), "#ff0000 #0000ff 255");
        row("past right and bottom", "", QRect(90, 45, 20, 10), QRect(90, 45, 10, 5),
            "#ff0000 #ff0000 255");
        row("left of the frame", "", QRect(-10, 0, 20, 10), QRect(0, 0, 10, 10),
            "#0000ff #0000ff 255");
        row("scaled to the rectangle", "", QRect(0, 0, 40, 20), QRect(0, 0, 40, 20),
            "#ff0000 #0000ff 255");
        // Green strokes at half opacity: nothing is stronger than that.
        row("half transparent text", "WWWW", QRect(4, 6, 80, 30), QRect(4, 6, 80, 30));
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
        QFETCH(QString, colours);
        EditParameters edit;
        WatermarkEntry &mark = edit.watermark();
        mark.text = text;
        mark.color = Qt::green;
        mark.transparency = text.isEmpty() ? 0 : 128;
        if (text.isEmpty() && !text.isNull()) {
            QImage halves(20, 10, QImage::Format_ARGB32);
            halves.fill(Qt::red);
            QPainter(&halves).fillRect(10, 0, 10, 10, Qt::blue);
            mark.picturePath = dir.filePath(u"halves.png"_s);
            QVERIFY(halves.save(mark.picturePath));
        }
        std::tie(mark.left, mark.top, mark.right, mark.bottom)
            = std::tuple(entry.left(), entry.top(), entry.right(), entry.bottom());
        const QString path = dir.filePath(u"Watermark/%1.png"_s.arg(
            QString::fromUtf8(QTest::currentDataTag()).replace(u' ', u'-')));
        QCOMPARE(edit.renderWatermark(100, 50, path), !placed.isNull());
        QCOMPARE(edit.watermarkFile, placed.isNull() ? QString() : path);
        QCOMPARE(QFile::exists(path), !placed.isNull());
        if (placed.isNull())
            return;
        QCOMPARE(QRect(QPoint(edit.watermarkX, edit.watermarkY),
                       QPoint(edit.watermarkRight, edit.watermarkBottom)),
                 placed);
        const QImage saved(path);
        QCOMPARE(saved.size(), placed.size());
        int strokes = 0, maxAlpha = 0;
        for (int i = 0; i < saved.width() * saved.height(); ++i) {
            const QColor pixel = saved.pixelColor(i % saved.width(), i / saved.width());
            maxAlpha = std::max(maxAlpha, pixel.alpha());
            strokes += pixel.alpha() > 100 && pixel.green() > 200 && pixel.red() < 60;
        }
        if (!text.isEmpty()) {
            QVERIFY(strokes > 20);
            QVERIFY2(maxAlpha >= 120 && maxAlpha <= 135, qPrintable(QString::number(maxAlpha)));
            return;
        }
        const int y = saved.height() / 2;
        QCOMPARE(line(saved.pixelColor(1, y).name(), saved.pixelColor(saved.width() - 2, y).name(),
                      maxAlpha),
                 colours);
    }
};

QTEST_MAIN(TestEditParameters)
#include "tst_editparameters.moc"
