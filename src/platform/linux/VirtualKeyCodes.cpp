// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/VirtualKeyCodes.h"

#include <linux/input-event-codes.h>

#include <algorithm>
#include <array>

namespace dropshade {

namespace {

// Where the two kinds of keyboard differ, keys at the same place go together: Help is Insert, and
// Clear of the keypad is NumLock.
constexpr std::array rows{
    VirtualKey{0, KEY_A},           VirtualKey{1, KEY_S},           VirtualKey{2, KEY_D},
    VirtualKey{3, KEY_F},           VirtualKey{4, KEY_H},           VirtualKey{5, KEY_G},
    VirtualKey{6, KEY_Z},           VirtualKey{7, KEY_X},           VirtualKey{8, KEY_C},
    VirtualKey{9, KEY_V},           VirtualKey{10, KEY_102ND},      VirtualKey{11, KEY_B},
    VirtualKey{12, KEY_Q},          VirtualKey{13, KEY_W},          VirtualKey{14, KEY_E},
    VirtualKey{15, KEY_R},          VirtualKey{16, KEY_Y},          VirtualKey{17, KEY_T},
    VirtualKey{18, KEY_1},          VirtualKey{19, KEY_2},          VirtualKey{20, KEY_3},
    VirtualKey{21, KEY_4},          VirtualKey{22, KEY_6},          VirtualKey{23, KEY_5},
    VirtualKey{24, KEY_EQUAL},      VirtualKey{25, KEY_9},          VirtualKey{26, KEY_7},
    VirtualKey{27, KEY_MINUS},      VirtualKey{28, KEY_8},          VirtualKey{29, KEY_0},
    VirtualKey{30, KEY_RIGHTBRACE}, VirtualKey{31, KEY_O},          VirtualKey{32, KEY_U},
    VirtualKey{33, KEY_LEFTBRACE},  VirtualKey{34, KEY_I},          VirtualKey{35, KEY_P},
    VirtualKey{36, KEY_ENTER},      VirtualKey{37, KEY_L},          VirtualKey{38, KEY_J},
    VirtualKey{39, KEY_APOSTROPHE}, VirtualKey{40, KEY_K},          VirtualKey{41, KEY_SEMICOLON},
    VirtualKey{42, KEY_BACKSLASH},  VirtualKey{43, KEY_COMMA},      VirtualKey{44, KEY_SLASH},
    VirtualKey{45, KEY_N},          VirtualKey{46, KEY_M},          VirtualKey{47, KEY_DOT},
    VirtualKey{48, KEY_TAB},        VirtualKey{49, KEY_SPACE},      VirtualKey{50, KEY_GRAVE},
    VirtualKey{51, KEY_BACKSPACE},  VirtualKey{53, KEY_ESC},        VirtualKey{64, KEY_F17},
    VirtualKey{65, KEY_KPDOT},      VirtualKey{67, KEY_KPASTERISK}, VirtualKey{69, KEY_KPPLUS},
    VirtualKey{71, KEY_NUMLOCK},    VirtualKey{72, KEY_VOLUMEUP},   VirtualKey{73, KEY_VOLUMEDOWN},
    VirtualKey{74, KEY_MUTE},       VirtualKey{75, KEY_KPSLASH},    VirtualKey{76, KEY_KPENTER},
    VirtualKey{78, KEY_KPMINUS},    VirtualKey{79, KEY_F18},        VirtualKey{80, KEY_F19},
    VirtualKey{81, KEY_KPEQUAL},    VirtualKey{82, KEY_KP0},        VirtualKey{83, KEY_KP1},
    VirtualKey{84, KEY_KP2},        VirtualKey{85, KEY_KP3},        VirtualKey{86, KEY_KP4},
    VirtualKey{87, KEY_KP5},        VirtualKey{88, KEY_KP6},        VirtualKey{89, KEY_KP7},
    VirtualKey{90, KEY_F20},        VirtualKey{91, KEY_KP8},        VirtualKey{92, KEY_KP9},
    VirtualKey{93, KEY_YEN},        VirtualKey{94, KEY_RO},         VirtualKey{95, KEY_KPCOMMA},
    VirtualKey{96, KEY_F5},         VirtualKey{97, KEY_F6},         VirtualKey{98, KEY_F7},
    VirtualKey{99, KEY_F3},         VirtualKey{100, KEY_F8},        VirtualKey{101, KEY_F9},
    VirtualKey{102, KEY_HANJA},     VirtualKey{103, KEY_F11},       VirtualKey{104, KEY_HANGEUL},
    VirtualKey{105, KEY_F13},       VirtualKey{106, KEY_F16},       VirtualKey{107, KEY_F14},
    VirtualKey{109, KEY_F10},       VirtualKey{110, KEY_COMPOSE},   VirtualKey{111, KEY_F12},
    VirtualKey{113, KEY_F15},       VirtualKey{114, KEY_INSERT},    VirtualKey{115, KEY_HOME},
    VirtualKey{116, KEY_PAGEUP},    VirtualKey{117, KEY_DELETE},    VirtualKey{118, KEY_F4},
    VirtualKey{119, KEY_END},       VirtualKey{120, KEY_F2},        VirtualKey{121, KEY_PAGEDOWN},
    VirtualKey{122, KEY_F1},        VirtualKey{123, KEY_LEFT},      VirtualKey{124, KEY_RIGHT},
    VirtualKey{125, KEY_DOWN},      VirtualKey{126, KEY_UP},
};

template <typename Member>
const VirtualKey* find(Member member, std::uint32_t code) {
    const auto* found = std::find_if(
        rows.begin(), rows.end(), [member, code](const auto& row) { return row.*member == code; });
    return found == rows.end() ? nullptr : found;
}

} // namespace

std::span<const VirtualKey> virtualKeys() {
    return rows;
}

std::optional<std::uint32_t> linuxKeyCode(std::uint32_t virtualKeyCode) {
    const VirtualKey* row = find(&VirtualKey::virtualCode, virtualKeyCode);
    return row ? std::optional(row->linuxCode) : std::nullopt;
}

std::optional<std::uint32_t> virtualKeyCode(std::uint32_t linuxKeyCode) {
    const VirtualKey* row = find(&VirtualKey::linuxCode, linuxKeyCode);
    return row ? std::optional(row->virtualCode) : std::nullopt;
}

} // namespace dropshade
