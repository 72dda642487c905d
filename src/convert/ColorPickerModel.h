// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppSettings.h"
#include "app/ColorCopier.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace dropshade {

/// One colour, and the text it was typed as: what the convert window shows. It outlives the window,
/// so that closing loses nothing.
///
/// After each parse a text that is not blank has either a colour or `didParseFail`; a blank one has
/// neither.
class ColorPickerModel : public QObject {
    Q_OBJECT

public:
    /// All must outlive this object.
    ColorPickerModel(UserDefaults& defaults, AppSettings& settings, ColorCopier& copier);

    /// As the user typed it.
    const QString& input() const { return m_input; }
    /// The colour now shown, unrounded.
    const std::optional<SRGBColor>& parsed() const { return m_parsed; }
    bool didParseFail() const { return m_didParseFail; }
    /// Raised each time that the window is brought forward.
    int focusToken() const { return m_focusToken; }

    /// How the window closes, and how it samples. Unset while there is no window.
    std::function<void()> closeAction;
    std::function<void()> pickAction;

    /// The user edits the field.
    void setInput(const QString& input);

    /// Takes over the clipboard's text, trimmed, if that is a colour and another one than is shown,
    /// by its 8-bit components: the user's own way of writing the colour stays.
    void prefill(const QString& clipboard);

    /// Makes `color` the current one, with its text in the format of the settings for the field.
    /// The colour itself is kept: a format of low precision changes nothing in the rows.
    void applyColor(const SRGBColor& color);

    /// A sampled colour: counted and applied, but not copied.
    void applySample(const SRGBColor& color);

    void raiseFocusToken();

    /// The colour's text in that format, or a dash without a colour.
    [[nodiscard]] QString rowValue(ColorFormat format) const;
    /// Whether there is something to copy.
    [[nodiscard]] bool rowsEnabled() const { return m_parsed.has_value(); }

    /// Copies the colour in `format`, or else in that of the settings, and closes the window if the
    /// settings want that. Nothing without a colour.
    void copyRowColor(std::optional<ColorFormat> format = std::nullopt);

Q_SIGNALS:
    void inputDidChange();
    void parsedDidChange();
    void didParseFailDidChange();
    void focusTokenDidChange();
    /// The text is on the clipboard.
    void didCopy(const QString& text, std::optional<dropshade::ColorFormat> format);

private:
    void parseInput();
    void setResult(const std::optional<SRGBColor>& parsed, bool didFail);
    void storeInput(const QString& input);

    UserDefaults& m_defaults;
    AppSettings& m_settings;
    ColorCopier& m_copier;
    QString m_input;
    std::optional<SRGBColor> m_parsed;
    bool m_didParseFail = false;
    int m_focusToken = 0;
};

} // namespace dropshade
