// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageZone.h"

#include "widgets/FocusRing.h"
#include "widgets/Icon.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/TypeScale.h"

#include <QCoreApplication>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace dropshade {

namespace {

constexpr int leastHeight = 160;
constexpr int iconSide = 40;
constexpr int iconGap = 16;
constexpr int checkerSquare = 8;
constexpr double hoveredPlate = 0.14;
constexpr double pressedPlate = 0.24;

/// On a plate of its own, for it lies on any image.
class RemoveButton : public Button {
public:
    RemoveButton(const Look& look, QWidget* parent) : Button(look, parent) {
        //: Tooltip of the button that takes the image out again
        const QString name = QCoreApplication::translate("ImageZone", "Remove image");
        setAccessibleName(name);
        setToolTip(name);
        setFixedSize(metrics::iconButtonField, metrics::iconButtonField);
        setCursor(Qt::ArrowCursor);
    }

protected:
    void paint(QPainter& painter) override {
        const double share = isPressed() ? pressedPlate : hoveredPlate * hoverAmount();
        fillRounded(painter, rect(), cornerRadius(),
                    blended(theme().surfacePlate, theme().textOnPlate, share));
        strokeEdge(painter, rect(), cornerRadius(), theme().linePlate);
        const int corner = (width() - metrics::icon) / 2;
        painter.drawPixmap(
            corner, corner,
            iconPixmap(Icon::Close, theme().textOnPlate, metrics::icon, devicePixelRatioF()));
    }
};

} // namespace

ImageZone::ImageZone(const Look& look, QWidget* parent)
    : Button(look, parent), m_remove(new RemoveButton(look, this)) {
    setCornerRadius(metrics::radiusSurface);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (!hasImage())
            Q_EMIT browseRequested();
    });
    connect(m_remove, &QAbstractButton::clicked, this, &ImageZone::removeRequested);
    setImage(QImage(), QString());
}

void ImageZone::setImage(const QImage& image, const QString& name) {
    const bool hadFocus = hasFocus() || m_remove->hasFocus();
    m_image = image;
    m_fitted = QPixmap();
    m_remove->setVisible(hasImage());
    // With an image in it there is nothing to press but the button.
    setFocusPolicy(hasImage() ? Qt::NoFocus : Qt::TabFocus);
    setCursor(hasImage() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    //: In the zone that takes an image
    setText(tr("Drop an image, paste, or click to browse"));
    //: The kinds of images that are taken
    setAccessibleDescription(hasImage() ? QString()
                                        : tr("PNG, JPEG, HEIC, TIFF, GIF, BMP, or WebP"));
    setAccessibleName(hasImage() ? name : text());
    if (hadFocus)
        (hasImage() ? m_remove : static_cast<Button*>(this))->setFocus(Qt::OtherFocusReason);
    update();
}

void ImageZone::setTargeted(bool targeted) {
    m_isTargeted = targeted;
    update();
}

QSize ImageZone::sizeHint() const {
    return {metrics::sheetWidth, leastHeight};
}

void ImageZone::resizeEvent(QResizeEvent* event) {
    Button::resizeEvent(event);
    m_remove->move(width() - m_remove->width() - metrics::space8, metrics::space8);
}

void ImageZone::paint(QPainter& painter) {
    if (hasImage())
        paintImage(painter);
    else
        paintInvitation(painter);
}

QRectF ImageZone::imageArea() const {
    const QSizeF size = QSizeF(m_image.size()).scaled(QSizeF(this->size()), Qt::KeepAspectRatio);
    const QSizeF whole(std::max(1.0, std::round(size.width())),
                       std::max(1.0, std::round(size.height())));
    return {QPointF(std::floor((width() - whole.width()) / 2.0),
                    std::floor((height() - whole.height()) / 2.0)),
            whole};
}

const QPixmap& ImageZone::fitted() {
    const double ratio = devicePixelRatioF();
    const QSize wanted = (imageArea().size() * ratio).toSize();
    if (m_fitted.size() != wanted) {
        const bool grows = wanted.width() > m_image.width();
        m_fitted = QPixmap::fromImage(
            m_image.scaled(wanted, Qt::IgnoreAspectRatio,
                           grows ? Qt::FastTransformation : Qt::SmoothTransformation));
        m_fitted.setDevicePixelRatio(ratio);
    }
    return m_fitted;
}

void ImageZone::paintImage(QPainter& painter) {
    const QRectF zone = rect();
    fillRounded(painter, zone, metrics::radiusSurface, theme().surfaceSunken);
    QPainterPath shape;
    shape.addRoundedRect(zone, metrics::radiusSurface, metrics::radiusSurface);
    painter.save();
    painter.setClipPath(shape);
    const QRectF area = imageArea();
    if (m_image.hasAlphaChannel())
        drawCheckerboard(painter, area, checkerSquare, theme());
    painter.drawPixmap(area.topLeft(), fitted());
    painter.restore();
    strokeEdge(painter, zone, metrics::radiusSurface, theme().lineSwatch);
    if (m_isTargeted)
        strokeInside(painter, zone, metrics::radiusSurface, metrics::focusWidth,
                     theme().accentBase);
}

void ImageZone::paintInvitation(QPainter& painter) {
    drawDropZone(painter, rect(), theme(), m_isTargeted, filled(theme().surfaceField));
    const QFont title = textFont(TextStyle::Strong);
    const int titleHeight = lineHeight(TextStyle::Strong) + metrics::space4;
    const int block = iconSide + iconGap + titleHeight + lineHeight(TextStyle::Body);
    int top = (height() - block) / 2;
    painter.drawPixmap((width() - iconSide) / 2, top,
                       iconPixmap(Icon::ImageDrop,
                                  m_isTargeted ? theme().accentBase : theme().textSecondary,
                                  iconSide, devicePixelRatioF()));
    top += iconSide + iconGap;
    const int left = metrics::space8;
    const int room = width() - metrics::space16;
    painter.setFont(title);
    painter.setPen(theme().textPrimary);
    painter.drawText(QRect(left, top, room, lineHeight(TextStyle::Strong)), Qt::AlignCenter,
                     text());
    painter.setFont(textFont(TextStyle::Body));
    painter.setPen(theme().textSecondary);
    painter.drawText(QRect(left, top + titleHeight, room, lineHeight(TextStyle::Body)),
                     Qt::AlignCenter, accessibleDescription());
}

} // namespace dropshade
