// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/WaylandKeymap.h"

#include "libraries/LateLibrary.h"

#include <cstring>

#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

namespace dropshade {

namespace {

constexpr int interfaceVersion = 0;
constexpr std::uint32_t firstVersion = 1;

/// What is needed of libwayland-client, which programs under X11 don't load.
struct LibWayland {
    decltype(&wl_display_connect) connect = nullptr;
    decltype(&wl_display_disconnect) disconnect = nullptr;
    decltype(&wl_display_roundtrip) roundTrip = nullptr;
    decltype(&wl_proxy_marshal_flags) request = nullptr;
    decltype(&wl_proxy_add_listener) addListener = nullptr;
    decltype(&wl_proxy_destroy) destroy = nullptr;
    const wl_interface* registry = nullptr;
    const wl_interface* seat = nullptr;
    const wl_interface* keyboard = nullptr;

    /// True where all of it is there.
    [[nodiscard]] bool load() {
        LateLibrary library(QStringLiteral("wayland-client"), interfaceVersion);
        library.resolve("wl_display_connect", connect)
            .resolve("wl_display_disconnect", disconnect)
            .resolve("wl_display_roundtrip", roundTrip)
            .resolve("wl_proxy_marshal_flags", request)
            .resolve("wl_proxy_add_listener", addListener)
            .resolve("wl_proxy_destroy", destroy)
            .resolve("wl_registry_interface", registry)
            .resolve("wl_seat_interface", seat)
            .resolve("wl_keyboard_interface", keyboard);
        return library.isWhole();
    }
};

/// One connection to the compositor, for one question.
class KeymapReading {
public:
    explicit KeymapReading(const LibWayland& library)
        : m_library(library), m_display(library.connect(nullptr)) {}

    ~KeymapReading() {
        for (wl_proxy* proxy : {m_keyboard, m_seat, m_registry}) {
            if (proxy)
                m_library.destroy(proxy);
        }
        if (m_display)
            m_library.disconnect(m_display);
    }

    KeymapReading(const KeymapReading&) = delete;
    KeymapReading& operator=(const KeymapReading&) = delete;

    [[nodiscard]] QByteArray text() {
        if (!m_display)
            return {};
        m_registry =
            m_library.request(reinterpret_cast<wl_proxy*>(m_display), WL_DISPLAY_GET_REGISTRY,
                              m_library.registry, firstVersion, 0, nullptr);
        listen(m_registry, registryListener);
        // What the compositor has, what the seat has, the keymap.
        constexpr int answers = 3;
        for (int answer = 0; answer < answers; ++answer) {
            if (m_library.roundTrip(m_display) < 0)
                break;
        }
        return m_text;
    }

private:
    template <typename Listener>
    void listen(wl_proxy* proxy, const Listener& listener) {
        auto* functions = const_cast<Listener*>(&listener);
        m_library.addListener(proxy, reinterpret_cast<void (**)()>(functions), this);
    }

    static void foundGlobal(void* data, wl_registry* registry, std::uint32_t name,
                            const char* interface, std::uint32_t) {
        auto* self = static_cast<KeymapReading*>(data);
        const LibWayland& library = self->m_library;
        if (self->m_seat || std::strcmp(interface, library.seat->name) != 0)
            return;
        self->m_seat =
            library.request(reinterpret_cast<wl_proxy*>(registry), WL_REGISTRY_BIND, library.seat,
                            firstVersion, 0, name, library.seat->name, firstVersion, nullptr);
        self->listen(self->m_seat, seatListener);
    }

    static void foundDevices(void* data, wl_seat*, std::uint32_t devices) {
        auto* self = static_cast<KeymapReading*>(data);
        if (self->m_keyboard || (devices & WL_SEAT_CAPABILITY_KEYBOARD) == 0)
            return;
        const LibWayland& library = self->m_library;
        self->m_keyboard = library.request(self->m_seat, WL_SEAT_GET_KEYBOARD, library.keyboard,
                                           firstVersion, 0, nullptr);
        self->listen(self->m_keyboard, keyboardListener);
    }

    static void foundKeymap(void* data, wl_keyboard*, std::uint32_t format, int file,
                            std::uint32_t size) {
        void* memory = format == WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1
                           ? mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0)
                           : MAP_FAILED;
        close(file);
        if (memory == MAP_FAILED)
            return;
        const auto* text = static_cast<const char*>(memory);
        static_cast<KeymapReading*>(data)->m_text =
            QByteArray(text, static_cast<qsizetype>(strnlen(text, size)));
        munmap(memory, size);
    }

    // The library ends the program at an event without a function.
    static constexpr wl_registry_listener registryListener{
        foundGlobal, [](void*, wl_registry*, std::uint32_t) {}};
    static constexpr wl_seat_listener seatListener{foundDevices,
                                                   [](void*, wl_seat*, const char*) {}};
    static constexpr wl_keyboard_listener keyboardListener{
        foundKeymap,
        [](void*, wl_keyboard*, std::uint32_t, wl_surface*, wl_array*) {},
        [](void*, wl_keyboard*, std::uint32_t, wl_surface*) {},
        [](void*, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t) {},
        [](void*, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t,
           std::uint32_t) {},
        [](void*, wl_keyboard*, std::int32_t, std::int32_t) {}};

    const LibWayland& m_library;
    wl_display* m_display;
    wl_proxy* m_registry = nullptr;
    wl_proxy* m_seat = nullptr;
    wl_proxy* m_keyboard = nullptr;
    QByteArray m_text;
};

} // namespace

QByteArray waylandKeymap() {
    static LibWayland library;
    static const bool isThere = library.load();
    return isThere ? KeymapReading(library).text() : QByteArray();
}

} // namespace dropshade
