// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Button.h"

#include <QImage>
#include <QPixmap>

namespace dropshade {

/// Where the image goes: a zone to drop it on, which asks for a file at a click, and then the image
/// itself, fitted, with a button to remove it.
class ImageZone : public Button {
    Q_OBJECT

public:
    ImageZone(const Look& look, QWidget* parent);

    /// A null image empties the zone. `name` is what a screen reader calls it.
    void setImage(const QImage& image, const QString& name);
    [[nodiscard]] bool hasImage() const { return !m_image.isNull(); }

    /// A drag is over the window that could be dropped.
    void setTargeted(bool targeted);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void browseRequested();
    void removeRequested();

protected:
    void paint(QPainter& painter) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void paintImage(QPainter& painter);
    void paintInvitation(QPainter& painter);
    [[nodiscard]] QRectF imageArea() const;
    [[nodiscard]] const QPixmap& fitted();

    QImage m_image;
    /// The image at the size that it is shown in.
    QPixmap m_fitted;
    bool m_isTargeted = false;
    Button* m_remove;
};

} // namespace dropshade
