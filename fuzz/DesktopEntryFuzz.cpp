// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "Require.h"

#include "platform/linux/DesktopEntry.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace dropshade;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const DesktopEntry entry = DesktopEntry::parse(bytes);
    for (const char* key : {"Hidden", "Exec", "TryExec", "OnlyShowIn", "NotShowIn"}) {
        const QString name = QLatin1String(key);
        require(entry.string(name).has_value() || !entry.boolean(name), "a boolean is a value");
        require(entry.string(name).has_value() || entry.strings(name).isEmpty(),
                "a list is a value");
    }
    const QString text = QString::fromUtf8(bytes).remove(QChar(0));
    const QByteArray written = "[Desktop Entry]\nExec=" + desktopEntryString(text).toUtf8() + "\n";
    // Other white space around a value than blanks is lost, as the format has no escape for it.
    if (text == text.trimmed())
        require(DesktopEntry::parse(written).string(QStringLiteral("Exec")) == text,
                "what is written reads back");
    return 0;
}
