// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace dropshade {

/// A feed with these elements in its channel.
inline QByteArray appcast(const QByteArray& elements) {
    return "<?xml version='1.0' encoding='utf-8'?>\n"
           "<rss version='2.0' xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'>"
           "<channel><title>Dropshade</title>" +
           elements + "</channel></rss>\n";
}

/// The item of a version, with a page and notes.
inline QByteArray appcastItem(const QByteArray& version) {
    return "<item><title>Dropshade</title><sparkle:shortVersionString>" + version +
           "</sparkle:shortVersionString><link>https://dropshade.example/" + version +
           "</link><description><![CDATA[<p>New in " + version + "</p>]]></description></item>";
}

} // namespace dropshade
