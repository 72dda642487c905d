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

/// Which keys are modifiers, by bit.
class ModifierMapping {
public:
    explicit ModifierMapping(xcb_connection_t* connection)
        : m_reply(xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection),
                                                 nullptr)),
          m_symbols(xcb_key_symbols_alloc(connection)) {}
    ~ModifierMapping() { xcb_key_symbols_free(m_symbols); }
    ModifierMapping(const ModifierMapping&) = delete;
    ModifierMapping& operator=(const ModifierMapping&) = delete;

    /// The bit of the key that makes the symbol; 0 where there is none. Only the bits count that
    /// have no fixed meaning.
    [[nodiscard]] std::uint16_t bitOf(xcb_keysym_t symbol) const {
        if (!m_reply)
            return 0;
        const xcb_keycode_t* keys = xcb_get_modifier_mapping_keycodes(m_reply.get());
        const int keysEach = m_reply->keycodes_per_modifier;
        for (int index = 0; index < modifierCount * keysEach; ++index) {
            const auto bit = static_cast<std::uint16_t>(1U << (index / keysEach));
            if (bit >= XCB_MOD_MASK_1 && keys[index] != XCB_NO_SYMBOL && makes(keys[index], symbol))
                return bit;
        }
        return 0;
    }

private:
    /// At the first or the second level: Shift makes a Meta of Alt on many layouts.
    [[nodiscard]] bool makes(xcb_keycode_t key, xcb_keysym_t symbol) const {
        return xcb_key_symbols_get_keysym(m_symbols, key, 0) == symbol ||
               xcb_key_symbols_get_keysym(m_symbols, key, 1) == symbol;
    }

    XcbReply<xcb_get_modifier_mapping_reply_t> m_reply;
    xcb_key_symbols_t* m_symbols;
};

} // namespace

X11ModifierMasks X11ModifierMasks::read(xcb_connection_t* connection) {
    const ModifierMapping mapping(connection);
    const auto bitOfEither = [&mapping](xcb_keysym_t left, xcb_keysym_t right) {
        const std::uint16_t bit = mapping.bitOf(left);
        return bit != 0 ? bit : mapping.bitOf(right);
    };
    X11ModifierMasks masks;
    masks.alt = bitOfEither(XKB_KEY_Alt_L, XKB_KEY_Alt_R);
    masks.super = bitOfEither(XKB_KEY_Super_L, XKB_KEY_Super_R);
    masks.locks = std::uint16_t(XCB_MOD_MASK_LOCK | mapping.bitOf(XKB_KEY_Num_Lock) |
                                mapping.bitOf(XKB_KEY_Scroll_Lock));
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
