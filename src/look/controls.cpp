#include "controls.h"

#include "qxskin.h"

#include <QColorDialog>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStyleOptionSlider>
#include <QTimer>

Fade::Fade(QWidget *widget, const char *durationKey, int tick)
    : timer(new QTimer(widget)), interval(tick),
      duration(qMax(1, QxSkin::instance()->configInt(QLatin1String(durationKey), 330)))
{
    QObject::connect(timer, &QTimer::timeout, widget, qOverload<>(&QWidget::update));
}

void Fade::start(int direction)
{
    step = direction;
    timer->start(interval);
}

qreal Fade::advance()
{
    // -1 before the first fade paints like 0.
    const qreal opacity = qMax(0, value) * (1.0 / 255);
    if (step != 0) {
        value += step * interval * 255 / duration;
        if (value < 0 || value > 255) {
            value = qBound(0, value, 255);
            timer->stop();
            step = 0;
        }
    }
    return opacity;
}

bool rightToLeftInterface(const QWidget *widget)
{
    return QCoreApplication::translate("CMainWnd", "LTR") == QLatin1String("RTL")
           || (widget && widget->layoutDirection() == Qt::RightToLeft);
}

// ---- FadePushButton

FadePushButton::FadePushButton(QWidget *parent)
    : QPushButton(parent), fade(this, "START_BUTTON_FADE_DURATION", 33)
{
    reloadImages();
}

void FadePushButton::reloadImages()
{
    const qreal ratio = devicePixelRatioF();
    maskImage = QxSkin::instance()->image(QStringLiteral("startMask.png"), ratio);
    hoverStartImage = QxSkin::instance()->image(QStringLiteral("startMaskHover.png"), ratio);
    hoverStopImage = QxSkin::instance()->image(QStringLiteral("stopMaskHover.png"), ratio);
}

void FadePushButton::enterEvent(QEnterEvent *event)
{
    if (isEnabled())
        startFade(1);
    QPushButton::enterEvent(event);
}

void FadePushButton::leaveEvent(QEvent *event)
{
    if (isEnabled())
        startFade(-1);
    QPushButton::leaveEvent(event);
}

void FadePushButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    if (!isEnabled())
        return;
    QPainter painter(this);
    painter.drawImage(rect(), maskImage);
    painter.setOpacity(fade.advance());
    const QString status = property("status").toString();
    if (status == QLatin1String("start"))
        painter.drawImage(rect(), hoverStartImage);
    else if (status == QLatin1String("stop"))
        painter.drawImage(rect(), hoverStopImage);
}

// ---- FadeToolButton

FadeToolButton::FadeToolButton(QWidget *parent)
    : IconToolButton(parent), fade(this, "TOOLBAR_BUTTON_FADE_DURATION", 10)
{
    reloadImages();
}

void FadeToolButton::reloadImages()
{
    const qreal ratio = devicePixelRatioF();
    maskImage = QxSkin::instance()->image(QStringLiteral("toolbarMask.png"), ratio);
    hoverImage = QxSkin::instance()->image(QStringLiteral("toolbarMaskHover.png"), ratio);
    pressedImage = QxSkin::instance()->image(QStringLiteral("toolbarMaskPressed.png"), ratio);
}

void FadeToolButton::enterEvent(QEnterEvent *event)
{
    if (isEnabled())
        startFade(1);
    IconToolButton::enterEvent(event);
}

void FadeToolButton::leaveEvent(QEvent *event)
{
    if (isEnabled())
        startFade(-1);
    IconToolButton::leaveEvent(event);
}

void FadeToolButton::paintEvent(QPaintEvent *event)
{
    if (isEnabled()) {
        QStyleOptionToolButton option;
        initStyleOption(&option);
        QPainter painter(this);
        if (option.state & QStyle::State_Sunken) {
            painter.drawImage(rect(), pressedImage);
        } else {
            painter.drawImage(rect(), maskImage);
            painter.setOpacity(fade.advance());
            painter.drawImage(rect(), hoverImage);
        }
    }
    IconToolButton::paintEvent(event);
}

// ---- CSlider

CSlider::CSlider(QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QSlider::sliderMoved, this, &QSlider::setValue);
    connect(QxSkin::instance(), &QxSkin::skinChanged, this, &CSlider::onSkinChanged);
    onSkinChanged(0);
}

QPixmap CSlider::picture(const char *name) const
{
    return QxSkin::instance()->pixmap(QLatin1String(name), devicePixelRatioF());
}

void CSlider::onSkinChanged(int)
{
    barPixmap = picture("sliderbar.png");
    handlePixmap = picture(handleDown ? "handlepressed.png" : "handle.png");
    hoverPixmap = picture("handlehover.png");
    groovePixmap = picture("groove.png");
    rangePixmap = picture("trimedtimebg.png");
    handleRect.setSize(handlePixmap.deviceIndependentSize().toSize());
    setHandleValue(value());
}

int CSlider::handleWidth() const
{
    return int(handlePixmap.deviceIndependentSize().width());
}

int CSlider::valueToPixel(int v) const
{
    const int H = handleWidth();
    // A slider without a range, or no wider than its handle, keeps it at the start.
    if (maximum() <= 0 || width() <= H)
        return H / 2;
    return int(H * 0.5 + (width() - H) * double(v) / maximum());
}

int CSlider::pixelToValue(int x) const
{
    const int H = handleWidth();
    if (width() <= H)
        return 0;
    return int(maximum() * double(x - H / 2) / (width() - H));
}

int CSlider::limited(int v) const
{
    return qBound(trimStart, v, qMax(trimStart, maximum() - trimEndDistance));
}

void CSlider::setTrimStart(int v)
{
    trimStart = v;
    update();
}

void CSlider::setTrimEnd(int v)
{
    trimEndDistance = maximum() - v;
    update();
}

void CSlider::setHandleValue(int v)
{
    handleRect.moveTo(valueToPixel(v) - handleWidth() / 2, 0);
    setValue(v);
    update();
}

void CSlider::resizeEvent(QResizeEvent *event)
{
    QSlider::resizeEvent(event);
    setHandleValue(value());
}

void CSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int W = width();
    const int H = handleWidth();
    const int handleHeight = int(handlePixmap.deviceIndependentSize().height());
    painter.drawPixmap(QRect(H / 2, 0, qMax(0, W - H),
                             int(barPixmap.deviceIndependentSize().height())),
                       barPixmap);
    auto band = [&](const QPixmap &pixmap, int from, int to) {
        const QSize size = pixmap.deviceIndependentSize().toSize();
        const int width = qMin(to - from, qMax(0, W - H));
        if (width > 0)
            painter.drawTiledPixmap(QRect(from, (handleHeight - size.height()) / 2, width,
                                          size.height()),
                                    pixmap);
    };
    if (trimStart != minimum() || trimEndDistance != 0)
        band(rangePixmap, valueToPixel(trimStart), valueToPixel(maximum() - trimEndDistance));
    band(groovePixmap, valueToPixel(trimStart), valueToPixel(value()));
    QStyleOptionSlider option;
    initStyleOption(&option);
    const bool hover = option.state & QStyle::State_MouseOver;
    painter.drawPixmap(valueToPixel(value()) - H / 2, 0, hover && !handleDown ? hoverPixmap
                                                                             : handlePixmap);
    if (hasFocus()) {
        // The keys move it: show that it has them.
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = handleRect.adjusted(-1, -1, 1, 1);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void CSlider::mousePressEvent(QMouseEvent *event)
{
    const QPoint at = event->position().toPoint();
    pressX = at.x();
    pressY = at.y();
    if (handleRect.contains(at)) {
        handleDown = true;
        handlePixmap = picture("handlepressed.png");
        update();
        grabOffset = at.x() - handleRect.left();
        emit sliderHandlePressed(true);
    } else if (at.y() < handleRect.bottom() + 2) {
        setHandleValue(limited(pixelToValue(at.x())));
    }
}

void CSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (handleDown)
        setHandleValue(limited(pixelToValue(int(event->position().x()) + handleWidth() / 2 - grabOffset)));
    update();
}

void CSlider::mouseReleaseEvent(QMouseEvent *)
{
    handlePixmap = picture("handle.png");
    if (handleDown) {
        handleDown = false;
        emit sliderHandlePressed(false);
        // Once more, changed or not: the receiver seeks on it.
        emit valueChanged(value());
    }
    update();
}

void CSlider::keyPressEvent(QKeyEvent *event)
{
    int target = value();
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        target -= singleStep();
        break;
    case Qt::Key_Right:
    case Qt::Key_Up:
        target += singleStep();
        break;
    case Qt::Key_PageDown:
        target -= pageStep();
        break;
    case Qt::Key_PageUp:
        target += pageStep();
        break;
    case Qt::Key_Home:
        target = trimStart;
        break;
    case Qt::Key_End:
        target = maximum() - trimEndDistance;
        break;
    default:
        QSlider::keyPressEvent(event);
        return;
    }
    setHandleValue(limited(target));
    event->accept();
}

// ---- VolumSlider

VolumSlider::VolumSlider(QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{
    setProperty("qtVersion", QStringLiteral("0406"));
}

void VolumSlider::mousePressEvent(QMouseEvent *event)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option,
                                                 QStyle::SC_SliderHandle, this);
    if (handle.contains(event->position().toPoint())) {
        QSlider::mousePressEvent(event);
        return;
    }
    // Beside the handle: there at once, the last pixel being the maximum.
    const int x = int(event->position().x());
    int jump = width() > 1 ? maximum() * x / (width() - 1) : 0;
    if (rightToLeftInterface(this))
        jump = maximum() - jump;
    setValue(jump);
    event->accept();
}

// ---- CPlayPauseButton

CPlayPauseButton::CPlayPauseButton(QWidget *parent)
    : QPushButton(parent)
{
    // Keys and mouse alike: a click asks, the receiver decides.
    connect(this, &QPushButton::clicked, this, [this] { emit playPauseButtonPressed(current); });
    setStatus(0);
}

void CPlayPauseButton::setStatus(int status)
{
    setProperty("status", status ? QStringLiteral("pause") : QStringLiteral("play"));
    setAccessibleName(status ? tr("Pause") : tr("Play"));
    // A changed style sheet text makes Qt apply the rules on "status" anew.
    const QString sheet = styleSheet();
    setStyleSheet(sheet.endsWith(QLatin1String("  ")) ? sheet.trimmed() : sheet + QLatin1Char(' '));
    current = status;
}

// ---- ColorPushButton

void ColorPushButton::setColor(const QColor &value)
{
    color = value;
    hasColor = false;
    const QString name = QxSkin::instance()->configValue(QStringLiteral("COLOR_BUTTON_IMAGE"));
    if (name.isEmpty())
        return;
    QImage picture = QxSkin::instance()->image(name, devicePixelRatioF())
                         .convertToFormat(QImage::Format_ARGB32);
    const QRgb fill = color.rgb();
    for (int y = 0; y < picture.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            // Only pure black takes the colour; its transparency stays.
            if ((line[x] & 0x00ffffff) == 0)
                line[x] = (line[x] & 0xff000000) | (fill & 0x00ffffff);
        }
    }
    image = picture;
    hasColor = !image.isNull();
    update();
}

void ColorPushButton::paintEvent(QPaintEvent *event)
{
    // The face first: an opaque skin would hide the colour under it.
    QPushButton::paintEvent(event);
    if (hasColor && isEnabled()) {
        QStyleOptionButton option;
        initStyleOption(&option);
        QPainter painter(this);
        painter.drawImage(style()->subElementRect(QStyle::SE_PushButtonContents, &option, this),
                          image);
    }
}

// ---- QtColorComboBox

QtColorComboBox::QtColorComboBox(QWidget *parent)
    : QComboBox(parent)
{
    connect(this, qOverload<int>(&QComboBox::activated), this, &QtColorComboBox::emitActivatedColor);
    connect(this, qOverload<int>(&QComboBox::highlighted), this,
            &QtColorComboBox::emitHighlightedColor);
}

int QtColorComboBox::colorCount() const
{
    return colorDialogEnabled ? count() - 1 : count();
}

void QtColorComboBox::insertColor(int index, const QColor &value, const QString &name)
{
    QPixmap swatch(12, 12);
    swatch.fill(Qt::transparent);
    if (value.isValid()) {
        QPainter painter(&swatch);
        painter.setPen(Qt::gray);
        painter.setBrush(value);
        painter.drawRect(0, 0, 11, 11);
    }
    // Never past "More...".
    if (colorDialogEnabled && index > colorCount())
        index = colorCount();
    insertItem(index, QIcon(swatch), name, value);
}

void QtColorComboBox::addColor(const QColor &value, const QString &name)
{
    insertColor(colorCount(), value, name);
}

void QtColorComboBox::setColorDialogEnabled(bool enabled)
{
    if (colorDialogEnabled == enabled)
        return;
    colorDialogEnabled = enabled;
    if (enabled)
        addItem(tr("More..."));
}

void QtColorComboBox::addStandardColors()
{
    const std::pair<Qt::GlobalColor, const char *> standard[] = {
        {Qt::black, QT_TR_NOOP("Black")},
        {Qt::white, QT_TR_NOOP("White")},
        {Qt::red, QT_TR_NOOP("Red")},
        {Qt::darkRed, QT_TR_NOOP("Dark red")},
        {Qt::green, QT_TR_NOOP("Green")},
        {Qt::darkGreen, QT_TR_NOOP("Dark green")},
        {Qt::blue, QT_TR_NOOP("Blue")},
        {Qt::darkBlue, QT_TR_NOOP("Dark blue")},
        {Qt::cyan, QT_TR_NOOP("Cyan")},
        {Qt::darkCyan, QT_TR_NOOP("Dark cyan")},
        {Qt::magenta, QT_TR_NOOP("Magenta")},
        {Qt::darkMagenta, QT_TR_NOOP("Dark magenta")},
        {Qt::yellow, QT_TR_NOOP("Yellow")},
        {Qt::darkYellow, QT_TR_NOOP("Dark yellow")},
        {Qt::gray, QT_TR_NOOP("Gray")},
        {Qt::darkGray, QT_TR_NOOP("Dark gray")},
        {Qt::lightGray, QT_TR_NOOP("Light gray")},
    };
    for (const auto &[value, name] : standard)
        addColor(QColor(value), tr(name));
}

QColor QtColorComboBox::color(int index) const
{
    if (index < 0 || index >= colorCount())
        return QColor();
    return itemData(index).value<QColor>();
}

QColor QtColorComboBox::currentColor() const
{
    return color(currentIndex());
}

void QtColorComboBox::setCurrentColor(const QColor &value)
{
    for (int i = 0; i < colorCount(); ++i) {
        if (color(i) == value) {
            setCurrentIndex(i);
            return;
        }
    }
}

void QtColorComboBox::emitActivatedColor(int index)
{
    QColor chosen;
    if (colorDialogEnabled && index == colorCount()) {
        chosen = QColorDialog::getColor(Qt::white, this);
        if (chosen.isValid()) {
            ++userColorCount;
            insertColor(colorCount(), chosen, tr("User color %1").arg(userColorCount));
            setCurrentIndex(colorCount() - 1);
        } else {
            setCurrentColor(lastActivated);
            chosen = lastActivated;
        }
    } else {
        chosen = color(index);
    }
    update();
    lastActivated = chosen;
    emit activated(chosen);
}

void QtColorComboBox::emitHighlightedColor(int index)
{
    if (!colorDialogEnabled || index != colorCount())
        emit highlighted(color(index));
}

QSize QtColorComboBox::sizeHint() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QFontMetrics metrics = fontMetrics();
    const QSize text(metrics.horizontalAdvance(tr("User Color 99")) + 20, metrics.height() + 4);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this);
}

// ---- QxtLabel

QxtLabel::QxtLabel(QWidget *parent)
    : QLabel(parent)
{
}

void QxtLabel::setText(const QString &text)
{
    if (fullText == text)
        return;
    fullText = text;
    // Read whole by screen readers, whatever is shown.
    setAccessibleName(text);
    updateGeometry();
    update();
    emit textChanged(text);
}

void QxtLabel::setElideMode(Qt::TextElideMode elideMode)
{
    if (mode == elideMode)
        return;
    mode = elideMode;
    updateGeometry();
    update();
}

QSize QxtLabel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(fullText), metrics.height()};
}

QSize QxtLabel::minimumSizeHint() const
{
    if (mode == Qt::ElideNone)
        return sizeHint();
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(QStringLiteral("...")), metrics.height()};
}

void QxtLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    QPainter painter(this);
    const QRect area = contentsRect();
    painter.drawText(area, int(alignment()),
                     fontMetrics().elidedText(fullText, mode, area.width()));
}

// ---- GettingStartLabel

void GettingStartLabel::setBorderImage(const QString &path, int top, int right, int bottom,
                                       int left)
{
    if (!borderImage.load(path))
        qDebug("can not load the borderImage of getting start label");
    marginTop = top;
    marginRight = right;
    marginBottom = bottom;
    marginLeft = left;
}

void GettingStartLabel::setLogo(const QString &path)
{
    logo.load(path);
}

void GettingStartLabel::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    if (!borderImage.isNull()) {
        const int W = width(), H = height();
        const int w = borderImage.width(), h = borderImage.height();
        const int l = marginLeft, r = marginRight, t = marginTop, b = marginBottom;
        const int tx[3] = {0, l, W - r}, tw[3] = {l, W - l - r, r};
        const int sx[3] = {0, l, w - r}, sw[3] = {l, w - l - r, r};
        const int ty[3] = {0, t, H - b}, th[3] = {t, H - t - b, b};
        const int sy[3] = {0, t, h - b}, sh[3] = {t, h - t - b, b};
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 3; ++column) {
                if (tw[column] > 0 && th[row] > 0 && sw[column] > 0 && sh[row] > 0)
                    painter.drawImage(QRect(tx[column], ty[row], tw[column], th[row]), borderImage,
                                      QRect(sx[column], sy[row], sw[column], sh[row]));
            }
        }
    }
    const QSize logoSize = logo.deviceIndependentSize().toSize();
    const int left = rightToLeftInterface(this) ? 5 : width() - logoSize.width() - 20;
    painter.drawPixmap(left, height() - logoSize.height() - 20, logo);
    painter.end();
    QLabel::paintEvent(event);
}

// ---- WndTitleLabel

void WndTitleLabel::mouseDoubleClickEvent(QMouseEvent *event)
{
    emit titleClicked();
    QLabel::mouseDoubleClickEvent(event);
}

// ---- QxMacSystemButton

QxMacSystemButton::QxMacSystemButton(QWidget *parent)
    : QPushButton(parent)
{
    setMouseTracking(true);
    if (QWidget *top = parent ? parent->window() : nullptr) {
        if (top->metaObject()->indexOfSignal("hasSysButtonHovered(bool)") >= 0)
            connect(top, SIGNAL(hasSysButtonHovered(bool)), this, SLOT(hasButtonHovered(bool)));
    }
}

void QxMacSystemButton::hasButtonHovered(bool hover)
{
    hovered = hover;
    update();
}

void QxMacSystemButton::enterEvent(QEnterEvent *event)
{
    hovered = true;
    emit buttonIsHovered(hovered);
    QPushButton::enterEvent(event);
}

void QxMacSystemButton::mouseMoveEvent(QMouseEvent *event)
{
    hovered = true;
    emit buttonIsHovered(hovered);
    QPushButton::mouseMoveEvent(event);
}

void QxMacSystemButton::leaveEvent(QEvent *event)
{
    hovered = false;
    emit buttonIsHovered(hovered);
    QPushButton::leaveEvent(event);
}
