#include "playerscreen.h"

#include "ffplayer.h"
#include "qxskin.h"

#include <QDir>
#include <QPainter>
#include <QTransform>

PlayerScreen::PlayerScreen(QWidget *parent)
    : QWidget(parent)
{
    setMouseTracking(true);
    setAccessibleName(tr("Video"));
    reConnect();
    connect(QxSkin::instance(), &QxSkin::skinChanged, this, &PlayerScreen::onSkinChanged);
    onSkinChanged();
}

void PlayerScreen::refreshVideo()
{
    showVideo = true;
    update();
}

void PlayerScreen::disConnect()
{
    disconnect(FFPlayer::instance(), &FFPlayer::videoChanged, this, &PlayerScreen::refreshVideo);
}

void PlayerScreen::reConnect()
{
    connect(FFPlayer::instance(), &FFPlayer::videoChanged, this, &PlayerScreen::refreshVideo,
            Qt::UniqueConnection);
}

void PlayerScreen::onSkinChanged(int)
{
    const QxSkin *skin = QxSkin::instance();
    const qreal ratio = devicePixelRatioF();
    logoPixmap = QDir(QStringLiteral("subproduct")).exists()
                     ? QPixmap(QStringLiteral("subproduct/playwnddefault.png"))
                     : skin->pixmap(QStringLiteral("playwnddefault.png"), ratio);
    backgroundPixmap = skin->pixmap(QStringLiteral("playerbg.png"), ratio);
    const QColor first(skin->configValue(QStringLiteral("PLAYER_TRANSPARENT_FIRST_COLOR"),
                                         QStringLiteral("#C8C8C8")));
    const QColor next(skin->configValue(QStringLiteral("PLAYER_TRANSPARENT_NEXT_COLOR"),
                                        QStringLiteral("#E9E9E9")));
    tilePixmap = QPixmap(20, 20);
    tilePixmap.fill(first);
    QPainter tile(&tilePixmap);
    tile.fillRect(10, 0, 10, 10, next);
    tile.fillRect(0, 10, 10, 10, next);
    update();
}

void PlayerScreen::setShowVideo(bool show)
{
    showVideo = show;
    update();
}

void PlayerScreen::setBackgroundColor(const QColor &color)
{
    backgroundColor = color;
    update();
}

void PlayerScreen::setCrop(int top, int right, int bottom, int left)
{
    cropTop = top;
    cropRight = right;
    cropBottom = bottom;
    cropLeft = left;
    update();
}

void PlayerScreen::setZoom(double value)
{
    zoom = value;
    update();
}

void PlayerScreen::setFrameAspect(double aspect)
{
    frameAspect = aspect;
    const double W = width();
    const double H = std::max(height(), 1);
    // Without an output size yet the map can't be made; nothing divides by 0.
    if (aspect > 0.0 && W / H < aspect) {
        scale = W > 0 ? outputWidth / W : 1.0;
        marginTop = marginBottom = int((H - W / aspect) * 0.5);
        marginLeft = marginRight = 0;
    } else {
        scale = outputHeight / H;
        marginLeft = marginRight = aspect > 0.0 ? int((W - H * aspect) * 0.5) : 0;
        marginTop = marginBottom = 0;
    }
    if (scale <= 0.0)
        scale = 1.0;
    setWatermarkRect(watermarkOutputRect.left(), watermarkOutputRect.top(),
                     watermarkOutputRect.right(), watermarkOutputRect.bottom());
    update();
}

void PlayerScreen::setOutputSize(int width, int height)
{
    outputWidth = width;
    outputHeight = height;
    setFrameAspect(width > 0 && height > 0 ? double(width) / height : 0.0);
}

void PlayerScreen::setRotation(int degrees)
{
    rotation = ((degrees % 360) + 360) % 360;
    update();
}

void PlayerScreen::setWatermarkVisible(bool visible)
{
    watermarkVisible = visible;
    update();
}

void PlayerScreen::setWatermarkImage(const QImage &image)
{
    watermarkImage = image;
    update();
}

void PlayerScreen::setWatermarkRect(int left, int top, int right, int bottom)
{
    watermarkOutputRect = QRect(QPoint(left, top), QPoint(right, bottom));
    const double k = 1.0 / scale;
    const int screenLeft = int(left * k + marginLeft);
    const int screenTop = int(top * k + marginTop);
    const int screenRight = int((right - left + 1) / scale) + screenLeft - 1;
    const int screenBottom = int((bottom - top + 1) / scale) + screenTop - 1;
    watermarkOnScreen = QRect(QPoint(screenLeft, screenTop), QPoint(screenRight, screenBottom));
    update();
}

void PlayerScreen::setWatermarkTransparency(int value)
{
    watermarkOpacity = (255 - value) * 0.00392156862745098;
    update();
}

void PlayerScreen::setPictureAdjust(int brightness, int contrast, int saturation)
{
    FFPlayer::instance()->setPictureAdjust(brightness, contrast, saturation);
    hasAdjust = brightness != 0 || contrast != 0 || saturation != 0;
    updatePath();
}

void PlayerScreen::setEffects(const std::vector<int> &types)
{
    FFPlayer::instance()->setEffects(types);
    hasEffects = !types.empty();
    updatePath();
}

void PlayerScreen::setSubtitle(int stream, const QString &file)
{
    FFPlayer::instance()->setSubtitle(stream, file);
    hasSubtitle = stream >= 0 || !file.isEmpty();
    updatePath();
}

void PlayerScreen::setSubtitleStyle(int stream, const QString &file, const QFont &font,
                                    const QColor &color, int transparency, int position)
{
    FFPlayer::instance()->setSubtitleStyle(stream, file, font, color, transparency, position);
    hasSubtitle = stream >= 0 || !file.isEmpty();
    updatePath();
}

void PlayerScreen::updatePath()
{
    originalOnly = !hasAdjust && !hasEffects && !hasSubtitle;
    update();
}

void PlayerScreen::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // The watermark keeps its place on the picture.
    setFrameAspect(frameAspect);
}

void PlayerScreen::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawScreen(painter);
}

void PlayerScreen::drawScreen(QPainter &painter)
{
    const int W = width();
    const int H = height();
    if (!showVideo) {
        painter.drawPixmap(rect(), backgroundPixmap);
        const QSize logo = logoPixmap.deviceIndependentSize().toSize();
        painter.drawPixmap((W - logo.width()) / 2, (H - logo.height()) / 2, logoPixmap);
        return;
    }
    if (backgroundColor.isValid())
        painter.fillRect(rect(), backgroundColor);
    else
        painter.drawTiledPixmap(rect(), tilePixmap);
    if (W <= 0 || H <= 0)
        return;

    const double A = double(W) / H;
    QRect frame = rect();
    double fa = A;
    if (frameAspect == 0.0) {
        painter.fillRect(frame, Qt::black);
    } else if (frameAspect > 0.0) {
        if (A < frameAspect) {
            const int h = int(W / frameAspect);
            frame = QRect(0, (H - h) / 2, W, h);
        } else {
            const int w = int(H * frameAspect);
            frame = QRect((W - w) / 2, 0, w, H);
        }
        fa = frameAspect;
        painter.fillRect(frame, Qt::black);
    }

    FFPlayer *player = FFPlayer::instance();
    QImage picture = originalOnly ? player->originalImage() : player->outputImage();
    if (rotation != 0 && !picture.isNull())
        picture = picture.transformed(QTransform().rotate(rotation));
    const QRect source(cropLeft, cropTop, picture.width() - cropLeft - cropRight,
                       picture.height() - cropTop - cropBottom);
    if (!picture.isNull() && source.width() > 0 && source.height() > 0 && frame.height() > 0) {
        const double pa = zoom == -1.0 ? fa
                          : zoom == 0.0 ? double(source.width()) / source.height()
                                        : zoom;
        QSize size;
        if (pa <= fa)
            size = QSize(int(frame.height() * pa), frame.height());
        else
            size = QSize(frame.width(), int(frame.width() / pa));
        const QRect target(frame.left() + (frame.width() - size.width()) / 2,
                           frame.top() + (frame.height() - size.height()) / 2, size.width(),
                           size.height());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(target, picture, source);
    }

    if (watermarkVisible && !watermarkImage.isNull()) {
        painter.setOpacity(watermarkOpacity);
        painter.drawImage(watermarkOnScreen, watermarkImage);
        painter.setOpacity(1.0);
    }
}
