// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ColorSelector/SelectorFields.h"

#include <functional>
#include <optional>
#include <utility>

namespace dropshade {

/// What the popover of a colour well does to its colour: every change is stored at once, and taken
/// back where the user cancels. The hue of a colour that has none is that of the time before.
class ColorWellEdit {
public:
    /// The way to the colour.
    struct Binding {
        std::function<SRGBColor()> read;
        std::function<void(const SRGBColor&)> write;
    };

    explicit ColorWellEdit(Binding binding) : m_binding(std::move(binding)) {}

    const HSBComponents& fields() const { return m_fields; }
    bool showingPicker() const { return m_initialColor.has_value(); }

    /// The popover opens.
    void open();

    /// The user moved a selector. The colour loses any alpha that it had.
    void setFields(const HSBComponents& fields);

    /// The user does not want the changes; the popover is about to close.
    void cancel() { m_didCancel = true; }

    /// The popover has closed, in whatever way.
    void didClose();

private:
    Binding m_binding;
    HSBComponents m_fields = firstSelectorFields;
    std::optional<SRGBColor> m_initialColor;
    bool m_didCancel = false;
};

} // namespace dropshade
