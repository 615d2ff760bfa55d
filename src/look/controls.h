#pragma once

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>

class QTimer;

// A hover picture fading in and out: the timer only asks for a paint, and
// each paint moves the fade by the timer's interval.
class Fade
{
public:
    Fade(QWidget *widget, const char *durationKey, int interval);
    // +1 fades in, -1 out; a fade under way turns round where it stands.
    void start(int step);
    // The opacity to paint with now; moves the fade on.
    qreal advance();
    int alpha() const { return value; }

private:
    QTimer *timer;
    int interval;
    int duration;
    int value = -1;
    int step = 0;
};

// The start button: a mask over the face, and a hover picture that fades in
// and out with the pointer. Its property "status" ("start" or "stop")
// picks the hover picture.
class FadePushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit FadePushButton(QWidget *parent = nullptr);
    void reloadImages();
    void startFade(int step) { fade.start(step); }
    int fadeAlpha() const { return fade.alpha(); }

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QImage maskImage;
    QImage hoverStartImage;
    QImage hoverStopImage;
    Fade fade;
};

class IconToolButton : public QToolButton
{
    Q_OBJECT

public:
    using QToolButton::QToolButton;
};

// A tool bar button with the same fade, quicker, and a pressed picture.
class FadeToolButton : public IconToolButton
{
    Q_OBJECT

public:
    explicit FadeToolButton(QWidget *parent = nullptr);
    void reloadImages();
    void startFade(int step) { fade.start(step); }
    int fadeAlpha() const { return fade.alpha(); }

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QImage maskImage;
    QImage hoverImage;
    QImage pressedImage;
    Fade fade;
};

// The playback slider: its handle stays between the trim marks, a click
// beside the handle puts it there at once, and letting go of the handle
// reports the value again.
class CSlider : public QSlider
{
    Q_OBJECT

public:
    explicit CSlider(QWidget *parent = nullptr);

    void setTrimStart(int value);
    void setTrimEnd(int value);
    int trimStartValue() const { return trimStart; }
    int trimEndValue() const { return maximum() - trimEndDistance; }
    void setHandleValue(int value);
    QRect handleRectangle() const { return handleRect; }
    // The centre of the handle at that value, and the value under a pixel.
    int valueToPixel(int value) const;
    int pixelToValue(int x) const;

signals:
    void sliderHandlePressed(bool pressed);

public slots:
    void onSkinChanged(int index);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    int handleWidth() const;
    int limited(int value) const;
    QPixmap picture(const char *name) const;

    int trimStart = 0;
    int trimEndDistance = 0;
    QPixmap barPixmap;
    QPixmap handlePixmap;
    QPixmap hoverPixmap;
    QPixmap groovePixmap;
    QPixmap rangePixmap;
    QRect handleRect;
    bool handleDown = false;
    int grabOffset = 0;
    int pressX = 0;
    int pressY = 0;
};

// The volume slider: a click beside the handle jumps there.
class VolumSlider : public QSlider
{
    Q_OBJECT

public:
    explicit VolumSlider(QWidget *parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent *event) override;
};

// Shows play or pause; it doesn't toggle itself: the receiver of
// playPauseButtonPressed sets the new status.
class CPlayPauseButton : public QPushButton
{
    Q_OBJECT

public:
    explicit CPlayPauseButton(QWidget *parent = nullptr);
    void setStatus(int status);
    int status() const { return current; }

signals:
    void playPauseButtonPressed(int status);

private:
    int current = 0;
};

// A button that shows a colour in the skin's picture: the picture's pure
// black pixels take the colour.
class ColorPushButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;
    void setColor(const QColor &color);
    QColor currentColor() const { return color; }
    QImage colouredImage() const { return image; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage image;
    QColor color;
    bool hasColor = false;
};

// A combo of colours with a swatch each, and optionally a last row
// "More..." that asks for any colour.
class QtColorComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit QtColorComboBox(QWidget *parent = nullptr);

    void setColorDialogEnabled(bool enabled = true);
    bool isColorDialogEnabled() const { return colorDialogEnabled; }
    void insertColor(int index, const QColor &color, const QString &name);
    void addColor(const QColor &color, const QString &name);
    void addStandardColors();
    QColor currentColor() const;
    QColor color(int index) const;
    void setCurrentColor(const QColor &color);
    QSize sizeHint() const override;

signals:
    void activated(QColor color);
    void highlighted(QColor color);

public slots:
    void emitActivatedColor(int index);
    void emitHighlightedColor(int index);

private:
    int colorCount() const;

    QColor lastActivated;
    int userColorCount = 0;
    bool colorDialogEnabled = false;
};

// A label that elides its text to the room it has.
class QxtLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)

public:
    explicit QxtLabel(QWidget *parent = nullptr);
    QString text() const { return fullText; }
    Qt::TextElideMode elideMode() const { return mode; }
    void setElideMode(Qt::TextElideMode elideMode);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void textChanged(QString text);

public slots:
    void setText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString fullText;
    Qt::TextElideMode mode = Qt::ElideRight;
};

// The start page: rich text in a nine-piece border, with a logo.
class GettingStartLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
    void setBorderImage(const QString &path, int top, int right, int bottom, int left);
    void setLogo(const QString &path);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage borderImage;
    QPixmap logo;
    int marginTop = 0;
    int marginRight = 0;
    int marginBottom = 0;
    int marginLeft = 0;
};

// A window's title: a double click asks to maximise or restore.
class WndTitleLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

signals:
    void titleClicked();

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
};

// The title bar buttons of another platform's layout; kept hidden here.
class QxMacSystemButton : public QPushButton
{
    Q_OBJECT

public:
    explicit QxMacSystemButton(QWidget *parent = nullptr);

signals:
    void buttonIsHovered(bool hovered);

public slots:
    void hasButtonHovered(bool hover);

protected:
    void enterEvent(QEnterEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    bool hovered = false;
};

// Whether the interface runs right to left: by the translation or the layout.
bool rightToLeftInterface(const QWidget *widget);
