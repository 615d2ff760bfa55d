#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QWidget>

#include <vector>

class QPainter;

// The video surface: the output's frame in the widget, the player's picture
// cropped and zoomed inside it, the watermark on top; the skin's logo until
// the first picture.
class PlayerScreen : public QWidget
{
    Q_OBJECT
public:
    explicit PlayerScreen(QWidget *parent = nullptr);

    void setShowVideo(bool show);
    bool showsVideo() const { return showVideo; }
    void setBackgroundColor(const QColor &color);
    void setCrop(int top, int right, int bottom, int left);
    // -1 stretches to the frame, 0 keeps the cropped source's ratio, any
    // other value is the ratio to force.
    void setZoom(double value);
    // -1: no frame, the widget is the frame; 0: the widget is the frame,
    // black; else the width-to-height ratio of a black frame in the middle.
    void setFrameAspect(double aspect);
    void setOutputSize(int width, int height);
    // Degrees clockwise that stand the source's picture upright.
    void setRotation(int degrees);
    void setWatermarkVisible(bool visible);
    void setWatermarkImage(const QImage &image);
    // In output pixels, edges included.
    void setWatermarkRect(int left, int top, int right, int bottom);
    QRect watermarkRect() const { return watermarkOutputRect; }
    QRect watermarkScreenRect() const { return watermarkOnScreen; }
    // 0 opaque to 255 invisible.
    void setWatermarkTransparency(int value);

    // Edits of the picture, handed to the player; a surface with none of them
    // paints the original picture and skips their cost.
    void setPictureAdjust(int brightness, int contrast, int saturation);
    void setEffects(const std::vector<int> &types);
    void setSubtitle(int stream, const QString &file);
    void setSubtitleStyle(int stream, const QString &file, const QFont &font, const QColor &color,
                          int transparency, int position);
    bool paintsOriginal() const { return originalOnly; }

public slots:
    void refreshVideo();
    void disConnect();
    void reConnect();
    void onSkinChanged(int index = 0);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    // The picture and the frame: for surfaces that draw more on top.
    void drawScreen(QPainter &painter);

private:
    void updatePath();

    QImage watermarkImage;
    bool showVideo = false;
    QPixmap backgroundPixmap;
    QPixmap logoPixmap;
    QPixmap tilePixmap;
    QColor backgroundColor;
    int cropTop = 0;
    int cropRight = 0;
    int cropBottom = 0;
    int cropLeft = 0;
    double zoom = 0.0;
    int rotation = 0;
    double frameAspect = -1.0;
    bool originalOnly = true;
    bool hasAdjust = false;
    bool hasEffects = false;
    bool hasSubtitle = false;
    int outputWidth = 0;
    int outputHeight = 0;
    double scale = 1.0;
    int marginTop = 0;
    int marginRight = 0;
    int marginBottom = 0;
    int marginLeft = 0;
    bool watermarkVisible = false;
    QRect watermarkOutputRect;
    QRect watermarkOnScreen;
    double watermarkOpacity = 1.0;
};
