// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/X11ModifierMasks.h"

#include "platform/ModifierKeys.h"
#include "platform/linux/XcbConnection.h"

#include <xcb/xcb_keysyms.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include <array>

namespace dropshade {

namespace {

constexpr int modifierCount = 8;

bool types(xcb_key_symbols_t* symbols, xcb_keycode_t key, xcb_keysym_t wanted) {
    // The first and the second level: Alt is Meta with Shift on many layouts.
    return xcb_key_symbols_get_keysym(symbols, key, 0) == wanted ||
           xcb_key_symbols_get_keysym(symbols, key, 1) == wanted;
}

} // namespace

X11ModifierMasks X11ModifierMasks::read(xcb_connection_t* connection) {
    X11ModifierMasks masks;
    masks.locks = XCB_MOD_MASK_LOCK;
    const XcbReply<xcb_get_modifier_mapping_reply_t> mapping(
        xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection), nullptr));
    if (!mapping)
        return masks;
    const std::array<std::pair<xcb_keysym_t, std::uint16_t*>, 6> wanted{
        {{XKB_KEY_Alt_L, &masks.alt},
         {XKB_KEY_Alt_R, &masks.alt},
         {XKB_KEY_Super_L, &masks.super},
         {XKB_KEY_Super_R, &masks.super},
         {XKB_KEY_Num_Lock, &masks.locks},
         {XKB_KEY_Scroll_Lock, &masks.locks}}};
    xcb_key_symbols_t* symbols = xcb_key_symbols_alloc(connection);
    const xcb_keycode_t* keys = xcb_get_modifier_mapping_keycodes(mapping.get());
    const int keysEach = mapping->keycodes_per_modifier;
    for (int index = 0; index < modifierCount * keysEach; ++index) {
        const auto mask = static_cast<std::uint16_t>(1U << (index / keysEach));
        // A Meta key that is Alt's neighbour on Mod1 makes neither Shift nor Control an Alt.
        const bool isOfItsOwn = mask >= XCB_MOD_MASK_1;
        for (const auto& [keysym, field] : wanted) {
            if (keys[index] != XCB_NO_SYMBOL && isOfItsOwn && types(symbols, keys[index], keysym))
                *field = static_cast<std::uint16_t>(*field | mask);
        }
    }
    xcb_key_symbols_free(symbols);
    return masks;
}

std::optional<std::uint16_t> X11ModifierMasks::state(std::uint32_t carbonModifiers) const {
    const std::array<std::pair<std::uint32_t, std::uint16_t>, 5> bits{
        {{shiftKey, XCB_MOD_MASK_SHIFT},
         {controlKey, XCB_MOD_MASK_CONTROL},
         {optionKey, alt},
         {commandKey, super},
         {functionKey, std::uint16_t(0)}}};
    std::uint16_t state = 0;
    for (const auto& [carbonBit, mask] : bits) {
        if ((carbonModifiers & carbonBit) == 0)
            continue;
        if (mask == 0)
            return std::nullopt;
        state = static_cast<std::uint16_t>(state | mask);
    }
    return state;
}

std::vector<std::uint16_t> X11ModifierMasks::lockStates() const {
    // All subsets of the bits: each is the one before, less one, within the mask.
    std::vector<std::uint16_t> states;
    std::uint16_t subset = locks;
    while (subset != 0) {
        states.push_back(subset);
        subset = static_cast<std::uint16_t>((subset - 1) & locks);
    }
    states.push_back(0);
    return states;
}

} // namespace dropshade
