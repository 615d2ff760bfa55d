#pragma once

#include "playerengine.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QObject>
#include <QString>

#include <memory>
#include <mutex>
#include <vector>

struct SwsContext;
class EditedPicture;

// The one player of the process: drives the engine and keeps the last
// picture it showed, for the video surfaces to paint.
class FFPlayer : public QObject
{
    Q_OBJECT
public:
    static FFPlayer *instance();
    ~FFPlayer() override;

    // `pgc` >= 0 opens that title of the DVD whose IFO is `path`, with the
    // audio track and subtitle stream selected before; `format` forces a
    // demuxer for a file. The result need not be looked at: a failure
    // reports state 0.
    bool open(const QString &path, const QString &format, int pgc);
    void playPause();
    void seek(double seconds);
    void stop();
    // 0.0 to 1.0.
    void setVolume(double level);
    double volume() const { return m_engine.volume(); }
    double currentTime() const;
    // -1 for none.
    void setAudioTrack(int index);
    int audioTrack() const { return m_audioTrack; }
    int state() const { return m_state; }
    QString fileName() const { return m_path; }
    QString errorString() const { return m_engine.errorString(); }
    double duration() const { return m_engine.duration(); }
    PlayerEngine &engine() { return m_engine; }

    // The edits that outputImage() shows, as the encoder gets them: the
    // picture values from -100 to 100, effect numbers in order, a subtitle
    // stream of the source or a subtitle file (its stream `stream`) in a style.
    void setPictureAdjust(int brightness, int contrast, int saturation);
    void setEffects(const std::vector<int> &types);
    void setSubtitle(int stream, const QString &file);
    void setSubtitleStyle(int stream, const QString &file, const QFont &font, const QColor &color,
                          int transparency, int position);

    // The last picture, without edits, and with them. Both share a buffer
    // that the next call overwrites; null before the first picture.
    QImage originalImage();
    QImage outputImage();

signals:
    // 0 stopped, 1 playing, 2 paused; always through the event queue.
    void playStateChanged(int state);
    // A new picture; emitted on the engine's thread.
    void videoChanged();

private:
    FFPlayer();
    int showPicture(const PlayerPicture &picture);

    PlayerEngine m_engine;
    QString m_path;
    int m_state = 0;
    int m_subtitleStream = -1;
    int m_audioTrack = 0;
    int m_brightness = 0;
    int m_contrast = 0;
    int m_saturation = 0;
    std::vector<int> m_effects;
    QString m_subtitleFile;
    QFont m_subtitleFont;
    QColor m_subtitleColor = Qt::white;
    int m_subtitleTransparency = 0;
    int m_subtitlePosition = 90;

    // The pictures are written on the engine's thread and read on the
    // window's; the lock keeps a size change from freeing a buffer in use.
    std::mutex m_pictureMutex;
    PlayerPicture m_sourcePicture;
    PlayerPicture m_rgbPicture;
    SwsContext *m_scaler = nullptr;
    std::unique_ptr<EditedPicture> m_edited;

    // Under the picture lock: the RGB buffer and scaler of the picture's size.
    bool sizeRgbLocked();
    QImage wrapRgb();
};
