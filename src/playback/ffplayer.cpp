#include "ffplayer.h"

#include "filtertext.h"
#include "filtertranslator.h"

extern "C" {
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
#include <libavutil/imgutils.h>
#include <libavutil/opt.h>
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

// The stock filter graph of the edits, run on one picture at a time; built
// again when the picture's size or the edits change.
class EditedPicture
{
public:
    ~EditedPicture() { reset(); }

    // Into `rgb`, which is of the picture's size. False where the graph fails.
    bool run(const PlayerPicture &picture, const QString &graphText, int64_t milliseconds,
             PlayerPicture &rgb)
    {
        if (!configure(picture.width, picture.height, graphText))
            return false;
        AVFrame *in = av_frame_alloc();
        in->format = AV_PIX_FMT_YUV420P;
        in->width = picture.width;
        in->height = picture.height;
        in->pts = milliseconds;
        std::copy(picture.data, picture.data + 4, in->data);
        std::copy(picture.linesize, picture.linesize + 4, in->linesize);
        // Not counted by reference: the source copies it.
        const int sent = av_buffersrc_add_frame_flags(source, in, AV_BUFFERSRC_FLAG_KEEP_REF);
        av_frame_free(&in);
        AVFrame *out = av_frame_alloc();
        const bool made = sent >= 0 && av_buffersink_get_frame(sink, out) >= 0
                          && out->width == rgb.width && out->height == rgb.height;
        if (made)
            av_image_copy(rgb.data, rgb.linesize, const_cast<const uint8_t **>(out->data),
                          out->linesize, AV_PIX_FMT_RGB24, rgb.width, rgb.height);
        av_frame_free(&out);
        if (!made)
            reset(); // built anew next time, rather than left half fed
        return made;
    }

private:
    AVFilterGraph *graph = nullptr;
    AVFilterContext *source = nullptr;
    AVFilterContext *sink = nullptr;
    int width = 0;
    int height = 0;
    QString text;

    void reset()
    {
        avfilter_graph_free(&graph);
        source = sink = nullptr;
        width = height = 0;
        text.clear();
    }

    bool configure(int w, int h, const QString &graphText)
    {
        if (graph && w == width && h == height && graphText == text)
            return true;
        reset();
        graph = avfilter_graph_alloc();
        if (graph)
            graph->nb_threads = 2; // the slower effects work in slices
        const QByteArray args = QStringLiteral("video_size=%1x%2:pix_fmt=%3:time_base=1/1000:"
                                               "pixel_aspect=1/1")
                                    .arg(w)
                                    .arg(h)
                                    .arg(int(AV_PIX_FMT_YUV420P))
                                    .toUtf8();
        const AVPixelFormat rgbOnly[] = {AV_PIX_FMT_RGB24, AV_PIX_FMT_NONE};
        AVFilterInOut *outputs = avfilter_inout_alloc();
        AVFilterInOut *inputs = avfilter_inout_alloc();
        bool ok = graph && outputs && inputs
                  && avfilter_graph_create_filter(&source, avfilter_get_by_name("buffer"), "in",
                                                  args.constData(), nullptr, graph)
                         >= 0
                  && avfilter_graph_create_filter(&sink, avfilter_get_by_name("buffersink"),
                                                  "out", nullptr, nullptr, graph)
                         >= 0
                  && av_opt_set_int_list(sink, "pix_fmts", rgbOnly, AV_PIX_FMT_NONE,
                                         AV_OPT_SEARCH_CHILDREN)
                         >= 0;
        if (ok) {
            outputs->name = av_strdup("in");
            outputs->filter_ctx = source;
            inputs->name = av_strdup("out");
            inputs->filter_ctx = sink;
            ok = avfilter_graph_parse_ptr(graph, graphText.toUtf8().constData(), &inputs,
                                          &outputs, nullptr)
                     >= 0
                 && avfilter_graph_config(graph, nullptr) >= 0;
        }
        avfilter_inout_free(&inputs);
        avfilter_inout_free(&outputs);
        if (!ok) {
            reset();
            return false;
        }
        width = w;
        height = h;
        text = graphText;
        return true;
    }
};

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
    m_edited.reset();
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

bool FFPlayer::sizeRgbLocked()
{
    const int width = m_sourcePicture.width;
    const int height = m_sourcePicture.height;
    if (width <= 0 || height <= 0)
        return false;
    if (width != m_rgbPicture.width || height != m_rgbPicture.height) {
        freePicture(m_rgbPicture);
        m_rgbPicture.linesize[0] = rgbLineSize(width);
        m_rgbPicture.data[0]
            = static_cast<uint8_t *>(av_malloc(size_t(m_rgbPicture.linesize[0]) * height));
        if (!m_rgbPicture.data[0])
            return false;
        m_rgbPicture.width = width;
        m_rgbPicture.height = height;
        m_scaler = sws_getCachedContext(m_scaler, width, height, AV_PIX_FMT_YUV420P, width, height,
                                        AV_PIX_FMT_RGB24, SWS_BICUBIC, nullptr, nullptr, nullptr);
    }
    return m_scaler != nullptr;
}

QImage FFPlayer::originalImage()
{
    std::lock_guard<std::mutex> guard(m_pictureMutex);
    if (!sizeRgbLocked())
        return {};
    sws_scale(m_scaler, m_sourcePicture.data, m_sourcePicture.linesize, 0, m_sourcePicture.height,
              m_rgbPicture.data, m_rgbPicture.linesize);
    return wrapRgb();
}

QImage FFPlayer::wrapRgb()
{
    return QImage(m_rgbPicture.data[0], m_rgbPicture.width, m_rgbPicture.height,
                  m_rgbPicture.linesize[0], QImage::Format_RGB888);
}

QImage FFPlayer::outputImage()
{
    QString chain = pictureEffectText(m_brightness, m_contrast, m_saturation, m_effects);
    if (!m_subtitleFile.isEmpty()) {
        if (!chain.isEmpty())
            chain += QLatin1Char(',');
        chain += subtitleFileText(m_subtitleFont, m_subtitleColor, m_subtitleTransparency,
                                  m_subtitlePosition, m_subtitleStream, m_subtitleFile);
    }
    QString graph = FilterTranslator::translate(chain).graph;
    // A text stream of the source, as the encoder burns it in: on the
    // source's picture, ahead of the edits.
    const int textStream = m_subtitleFile.isEmpty() ? m_engine.textSubtitle() : -1;
    if (textStream >= 0) {
        const QString own
            = FilterTranslator::sourceSubtitleFilter(m_path, textStream, m_engine.startTime());
        graph = graph.isEmpty() ? own : own + QLatin1Char(',') + graph;
    }
    if (graph.isEmpty())
        return originalImage();
    if (!m_edited)
        m_edited = std::make_unique<EditedPicture>();
    const auto milliseconds = int64_t(currentTime() * 1000.0);
    std::lock_guard<std::mutex> guard(m_pictureMutex);
    if (!sizeRgbLocked())
        return {};
    if (!m_edited->run(m_sourcePicture, graph, milliseconds, m_rgbPicture))
        sws_scale(m_scaler, m_sourcePicture.data, m_sourcePicture.linesize, 0,
                  m_sourcePicture.height, m_rgbPicture.data, m_rgbPicture.linesize);
    return wrapRgb();
}

void FFPlayer::setPictureAdjust(int brightness, int contrast, int saturation)
{
    m_brightness = brightness;
    m_contrast = contrast;
    m_saturation = saturation;
}

void FFPlayer::setEffects(const std::vector<int> &types)
{
    m_effects = types;
}

void FFPlayer::setSubtitle(int stream, const QString &file)
{
    // A stream of the source and a VobSub file are the engine's to draw; a
    // text file is ours.
    m_engine.selectSubtitle(stream < 0 || !file.isEmpty() ? PlayerEngine::noTrack : stream);
    m_engine.selectSubpictureFile(FilterTranslator::vobSubIndex(file), stream);
    m_subtitleStream = stream;
    m_subtitleFile = file;
}

void FFPlayer::setSubtitleStyle(int stream, const QString &file, const QFont &font,
                                const QColor &color, int transparency, int position)
{
    setSubtitle(stream, file);
    m_subtitleFont = font;
    m_subtitleColor = color;
    m_subtitleTransparency = transparency;
    m_subtitlePosition = position;
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
    title.subtitle = m_subtitleFile.isEmpty() ? m_subtitleStream : -1;
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
