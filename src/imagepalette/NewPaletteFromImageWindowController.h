// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/NewPaletteFromImageModel.h"
#include "palettes/UserPaletteStore.h"
#include "platform/FilePanels.h"
#include "platform/UserDefaults.h"
#include "widgets/Look.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace dropshade {

class NewPaletteFromImageView;

/// Owns the sheet that makes a palette from an image. Each presentation is a new one, which
/// remembers nothing of the last; its palette comes last in the store, under its name as it is.
class NewPaletteFromImageWindowController : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        const Look& look;
        UserDefaults& defaults;
        UserPaletteStore& store;
        FilePanels& filePanels;
        NewPaletteFromImageModel::Surroundings model;
        std::function<void(const SRGBColor&)> copyColor;
    };

    explicit NewPaletteFromImageWindowController(Surroundings surroundings);
    ~NewPaletteFromImageWindowController() override;

    /// Shows the sheet over `host`, or alone where there is none. One that is up already comes to
    /// the front instead, and keeps its image. `filename` is without its extension.
    void present(QWidget* host, std::optional<LoadedImage> image = std::nullopt,
                 std::optional<QString> filename = std::nullopt);

    /// The sheet, while it is up.
    [[nodiscard]] NewPaletteFromImageView* window() const { return m_window.get(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct LaterDeleter {
        void operator()(QObject* object) const { object->deleteLater(); }
    };

    void attach(QWidget& host);
    void save(const Palette& palette);
    void forget();

    Surroundings m_surroundings;
    std::unique_ptr<NewPaletteFromImageModel, LaterDeleter> m_model;
    std::unique_ptr<NewPaletteFromImageView, LaterDeleter> m_window;
    QPointer<QWidget> m_hostWindow;
};

} // namespace dropshade
