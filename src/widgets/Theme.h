// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <array>

namespace dropshade {

/// A blurred shadow: how far it falls, how wide its edge is (logical pixels), and its colour.
struct Shadow {
    double offset = 0.0;
    double blur = 0.0;
    QColor color;
};

/// Every colour of the interface by purpose, for one scheme of the desktop. Grey is grey: only
/// accent, danger and state colours have a hue. Text colours reach 4.5:1 on every ground that they
/// are meant for, in every state.
struct Theme {
    enum class Scheme { Light, Dark };
    /// What the desktop asks for: `High` draws every edge in the colour of `lineControl`.
    enum class Contrast { Normal, High };

    [[nodiscard]] static Theme of(Scheme scheme, Contrast contrast = Contrast::Normal);

    Scheme scheme = Scheme::Light;

    // Grounds
    QColor surfaceWindow;  ///< Every window.
    QColor surfaceRaised;  ///< Popovers, sheets, menus, alerts.
    QColor surfaceField;   ///< Text fields, recorders, lists, drop zones.
    QColor surfaceButton;  ///< Buttons, drop-down pickers, slider thumbs.
    QColor surfaceSunken;  ///< Segmented tracks, empty previews, letterboxes of images.
    QColor surfaceSegment; ///< The selected segment.
    QColor surfacePlate;   ///< Tooltips, the loupe's plate, buttons that lie on an image.
    QColor overlayScrim;   ///< Over the window that a sheet covers.

    // Text and icons
    QColor textPrimary;   ///< Names, values, digits.
    QColor textSecondary; ///< Labels, captions, the code around digits, icons at rest.
    QColor textTertiary;  ///< Placeholders, hints, what is disabled.
    QColor textOnPlate;
    QColor textOnAccent;
    QColor textOnInk;
    QColor textOnDanger;

    // Laid over any ground
    QColor fillHover;
    QColor fillPressed;

    // Lines
    QColor lineHairline;    ///< Separators, one pixel.
    QColor lineEdge;        ///< Edges of controls, one device pixel.
    QColor lineTrackBar;    ///< Edges of the hue and alpha tracks, outer ring of their thumbs.
    QColor lineTrackSquare; ///< Edge of the saturation square.
    QColor lineControl;     ///< Toggles, slider tracks, rulers, dashed zones, selected segments.
    QColor lineSwatch;      ///< One device pixel inside every colour shown.
    QColor lineLift;        ///< Edge of a dragged swatch.
    QColor linePlate;

    // Here: focus, the current row, on, selected, drop target
    QColor accentBase;
    QColor accentSoft;        ///< Selected rows, phantom slots, selected text.
    QColor accentFaint;       ///< The row that a drop would go to.
    QColor accentSoftHover;   ///< An icon toggle that is on, under the pointer.
    QColor accentSoftPressed; ///< An icon toggle that is on, pressed.
    QColor toggleKnobOn;

    // The default button
    QColor inkBase;
    QColor inkHover;
    QColor inkPressed;

    // Errors and what destroys
    QColor dangerBase;
    QColor dangerHover;
    QColor dangerPressed;
    QColor dangerEdge; ///< Edge of a field whose text is refused.

    QColor stateWarning;
    QColor statePass; ///< Icons of verdicts and of a connection that is well.
    QColor stateFail; ///< Icons of verdicts.

    // Tiles with an icon
    QColor fillTileRest;
    QColor fillTileHover;
    QColor fillTileSelected;

    std::array<Shadow, 2> shadowPopup; ///< Under popovers, sheets, menus, alerts.
    Shadow shadowDrag;                 ///< Under what floats over everything.

    // Colour selectors
    QColor checkerLight; ///< Under colours that let light through.
    QColor checkerDark;
    QColor thumbRing;

    // The loupe lies on any picture, so its edges are double: one shows wherever the other does
    // not.
    QColor loupeRing;
    QColor loupeRingEdge;
    QColor loupeInk;
    QColor loupeGrid;
    QColor loupePlateInnerEdge;
    QColor loupePlateOuterEdge;
};

} // namespace dropshade
