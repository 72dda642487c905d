// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/SwatchEdit.h"

#include "app/SettingsReaders.h"
#include "color/ColorParser.h"

#include <utility>

namespace dropshade {

SwatchEdit::SwatchEdit(const UserDefaults& defaults, OnCommit onCommit)
    : m_defaults(defaults), m_onCommit(std::move(onCommit)), m_valueText(formattedColor()) {}

SwatchEdit::SwatchEdit(const UserDefaults& defaults, const PaletteSwatch& swatch, OnCommit onCommit)
    : m_defaults(defaults), m_onCommit(std::move(onCommit)), m_snapshot(swatch),
      m_color(swatch.color()), m_valueText(formattedColor()),
      m_label(swatch.label().value_or(QString())) {}

SwatchEdit::~SwatchEdit() = default;

QString SwatchEdit::formattedColor() const {
    return QString::fromStdString(
        formatted(m_color, colorFormat(m_defaults), formatOptions(m_defaults)));
}

void SwatchEdit::setInvalid(bool isInvalid) {
    if (m_isInvalid == isInvalid)
        return;
    m_isInvalid = isInvalid;
    Q_EMIT isInvalidDidChange();
}

void SwatchEdit::pickColor(const SRGBColor& color) {
    if (color == m_color)
        return;
    m_color = color;
    m_valueText = formattedColor();
    Q_EMIT colorDidChange();
    Q_EMIT valueTextDidChange();
    setInvalid(false);
    commitLive();
}

void SwatchEdit::typeValue(const QString& text) {
    if (text == m_valueText)
        return;
    m_valueText = text;
    const auto parsed = parseColor(text.toStdString());
    setInvalid(!parsed && text != formattedColor());
    if (parsed && *parsed != m_color) {
        m_color = *parsed;
        Q_EMIT colorDidChange();
    }
    commitLive();
}

void SwatchEdit::typeLabel(const QString& label) {
    if (label == m_label)
        return;
    m_label = label;
    commitLive();
}

PaletteSwatch SwatchEdit::builtSwatch() const {
    const QString trimmed = m_label.trimmed();
    const auto label = trimmed.isEmpty() ? std::nullopt : std::optional(trimmed);
    const SRGBColor color = parseColor(m_valueText.toStdString()).value_or(m_color);
    const FormatOptions options{.useHashPrefix = true, .useLowercase = true};
    const QString value = QString::fromStdString(formatted(color, ColorFormat::hex, options));
    return m_snapshot ? PaletteSwatch(m_snapshot->id(), value, label) : PaletteSwatch(value, label);
}

void SwatchEdit::add() {
    if (isNew())
        m_onCommit(builtSwatch());
}

void SwatchEdit::commitLive() {
    if (!isNew() && !m_isCancelling)
        m_onCommit(builtSwatch());
}

void SwatchEdit::cancel() {
    m_isCancelling = true;
    if (m_snapshot)
        m_onCommit(*m_snapshot);
}

} // namespace dropshade
