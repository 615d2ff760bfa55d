#include "ffplayer.h"

extern "C" {
#include <libavutil/imgutils.h>
#include <libavutil/mem.h>
#include <libswscale/swscale.h>
}

#include <QCoreApplication>
#include <QPointer>

namespace {

void freePicture(PlayerPicture &picture)
{
    av_freep(&picture.data[0]);
    picture = PlayerPicture();
}

// Packed RGB with lines a multiple of four bytes long, as QImage wants them.
int rgbLineSize(int width)
{
    return ((width + 1) * 3 / 4) * 4;
}

} // namespace

FFPlayer *FFPlayer::instance()
{
    // Lives as long as the application, so that its threads end before Qt does.
    static QPointer<FFPlayer> player;
    if (!player) {
        player = new FFPlayer;
        player->setParent(QCoreApplication::instance());
    }
    return player;
}

FFPlayer::FFPlayer()
{
    m_engine.setStateCallback([this](int state) {
        QMetaObject::invokeMethod(
            this,
            [this, state] {
                m_state = state;
                emit playStateChanged(state);
            },
            Qt::QueuedConnection);
    });
    m_engine.setFrameCallback([this](const PlayerPicture &picture) { return showPicture(picture); });
}

FFPlayer::~FFPlayer()
{
    m_engine.setStateCallback(nullptr);
    m_engine.stop();
    freePicture(m_sourcePicture);
    freePicture(m_rgbPicture);
    sws_freeContext(m_scaler);
}

int FFPlayer::showPicture(const PlayerPicture &picture)
{
    {
        std::lock_guard<std::mutex> guard(m_pictureMutex);
        if (picture.width != m_sourcePicture.width || picture.height != m_sourcePicture.height) {
            freePicture(m_sourcePicture);
            if (av_image_alloc(m_sourcePicture.data, m_sourcePicture.linesize, picture.width,
                               picture.height, AV_PIX_FMT_YUV420P, 16)
                < 0)
                return 0;
            m_sourcePicture.width = picture.width;
            m_sourcePicture.height = picture.height;
        }
        av_image_copy(m_sourcePicture.data, m_sourcePicture.linesize,
                      const_cast<const uint8_t **>(picture.data), picture.linesize,
                      AV_PIX_FMT_YUV420P, picture.width, picture.height);
    }
    emit videoChanged();
    return 0;
}

QImage FFPlayer::originalImage()
{
    std::lock_guard<std::mutex> guard(m_pictureMutex);
    const int width = m_sourcePicture.width;
    const int height = m_sourcePicture.height;
    if (width <= 0 || height <= 0)
        return {};
    if (width != m_rgbPicture.width || height != m_rgbPicture.height) {
        freePicture(m_rgbPicture);
        m_rgbPicture.linesize[0] = rgbLineSize(width);
        m_rgbPicture.data[0] = static_cast<uint8_t *>(av_malloc(size_t(m_rgbPicture.linesize[0]) * height));
        if (!m_rgbPicture.data[0])
            return {};
        m_rgbPicture.width = width;
        m_rgbPicture.height = height;
        m_scaler = sws_getCachedContext(m_scaler, width, height, AV_PIX_FMT_YUV420P, width, height,
                                        AV_PIX_FMT_RGB24, SWS_BICUBIC, nullptr, nullptr, nullptr);
    }
    if (!m_scaler)
        return {};
    sws_scale(m_scaler, m_sourcePicture.data, m_sourcePicture.linesize, 0, height,
              m_rgbPicture.data, m_rgbPicture.linesize);
    return QImage(m_rgbPicture.data[0], width, height, m_rgbPicture.linesize[0],
                  QImage::Format_RGB888);
}

bool FFPlayer::open(const QString &path, const QString &format, int pgc)
{
    m_path = path;
    if (pgc < 0)
        return m_engine.open(path, TitleSelection(), format);
    // A title offers its demuxer the chosen tracks only.
    TitleSelection title;
    title.pgc = pgc;
    title.audioTrack = m_audioTrack;
    title.subtitle = m_subtitleStream;
    return m_engine.open(path, title);
}

void FFPlayer::playPause()
{
    if (m_engine.state() == PlayerEngine::Stopped)
        m_engine.play();
    else
        m_engine.pause();
}

void FFPlayer::seek(double seconds)
{
    m_engine.seek(seconds);
}

void FFPlayer::stop()
{
    m_engine.stop();
}

void FFPlayer::setVolume(double level)
{
    m_engine.setVolume(level);
}

double FFPlayer::currentTime() const
{
    return m_engine.clock();
}

void FFPlayer::setAudioTrack(int index)
{
    m_audioTrack = index;
    m_engine.selectAudio(index < 0 ? PlayerEngine::noTrack : index);
}
