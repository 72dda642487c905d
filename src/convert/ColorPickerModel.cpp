// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "convert/ColorPickerModel.h"

#include "color/ColorConversions.h"
#include "color/ColorParser.h"

namespace dropshade {

ColorPickerModel::ColorPickerModel(UserDefaults& defaults, AppSettings& settings,
                                   ColorCopier& copier)
    : m_defaults(defaults), m_settings(settings), m_copier(copier) {}

void ColorPickerModel::setInput(const QString& input) {
    storeInput(input);
    parseInput();
}

void ColorPickerModel::storeInput(const QString& input) {
    if (input == m_input)
        return;
    m_input = input;
    Q_EMIT inputDidChange();
}

void ColorPickerModel::parseInput() {
    const QString text = m_input.trimmed();
    if (text.isEmpty()) {
        setResult(std::nullopt, false);
        return;
    }
    const auto color = parseColor(text.toStdString());
    setResult(color, !color);
}

void ColorPickerModel::setResult(const std::optional<SRGBColor>& parsed, bool didFail) {
    const bool isNewColor = parsed != m_parsed;
    const bool isNewFailure = didFail != m_didParseFail;
    // Both before anybody hears of either, for they belong together.
    m_parsed = parsed;
    m_didParseFail = didFail;
    if (isNewColor)
        Q_EMIT parsedDidChange();
    if (isNewFailure)
        Q_EMIT didParseFailDidChange();
}

void ColorPickerModel::prefill(const QString& clipboard) {
    const QString text = clipboard.trimmed();
    if (text.isEmpty())
        return;
    const auto color = parseColor(text.toStdString());
    if (!color || (m_parsed && rgba255(*m_parsed) == rgba255(*color)))
        return;
    setInput(text);
}

void ColorPickerModel::applyColor(const SRGBColor& color) {
    storeInput(m_copier.text(color));
    setResult(color, false);
}

void ColorPickerModel::applySample(const SRGBColor& color) {
    countCheck(m_defaults);
    applyColor(color);
}

void ColorPickerModel::raiseFocusToken() {
    ++m_focusToken;
    Q_EMIT focusTokenDidChange();
}

QString ColorPickerModel::rowValue(ColorFormat format) const {
    return m_parsed ? m_copier.text(*m_parsed, format) : QStringLiteral("\u2014");
}

void ColorPickerModel::copyRowColor(std::optional<ColorFormat> format) {
    if (!m_parsed)
        return;
    const QString text = m_copier.copyAndRecord(*m_parsed, format);
    Q_EMIT didCopy(text, format);
    // A copy, for to close is to unset it.
    const auto close = closeAction;
    if (m_settings.closeConvertDialogOnCopy() && close)
        close();
}

} // namespace dropshade
