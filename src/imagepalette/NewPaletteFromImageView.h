// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/NewPaletteFromImageModel.h"
#include "platform/FilePanels.h"
#include "widgets/Announcer.h"
#include "widgets/FloatingWindow.h"

#include <functional>

class QBoxLayout;
class QGridLayout;

namespace dropshade {

class ImageZone;
class Label;
class PreviewStrip;
class SegmentedControl;
class Slider;
class Spinner;
class TextField;

/// The sheet that makes a palette from an image: a thin view over `NewPaletteFromImageModel`, in a
/// window of its own over its host.
class NewPaletteFromImageView : public FloatingWindow {
    Q_OBJECT

public:
    struct Surroundings {
        FilePanels& filePanels;
        const Pasteboard& pasteboard;
        /// A colour's text in the user's format.
        std::function<QString(const QuantizedColor&)> nameOf;
        std::function<void(const QuantizedColor&)> copy;
    };

    /// `model` must outlive the view.
    NewPaletteFromImageView(const Look& look, const Surroundings& surroundings,
                            NewPaletteFromImageModel& model);
    ~NewPaletteFromImageView() override;

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void addZone(QBoxLayout& column);
    void addError(QBoxLayout& column);
    void addControls(QBoxLayout& column);
    void addCount(QGridLayout& grid);
    void addPreview(QBoxLayout& column);
    void addName(QBoxLayout& column);
    void addFooter(QBoxLayout& column);
    void addKeys();
    void follow();
    [[nodiscard]] Label* makeLabel(const QString& words);
    void browse();
    void showImage();
    void showError();

    Surroundings m_surroundings;
    NewPaletteFromImageModel& m_model;
    Announcer m_announcer;
    ImageZone* m_zone = nullptr;
    QWidget* m_errorRow = nullptr;
    Label* m_error = nullptr;
    Slider* m_slider = nullptr;
    Label* m_count = nullptr;
    Spinner* m_spinner = nullptr;
    SegmentedControl* m_algorithm = nullptr;
    PreviewStrip* m_strip = nullptr;
    TextField* m_name = nullptr;
    /// Alive for as long as an open panel may still answer.
    QObject m_life;
};

} // namespace dropshade
