// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "Require.h"

#include "app/ReleaseNotes.h"
#include "app/UpdateFeed.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace dropshade {
namespace {

constexpr qsizetype mostNotes = 4000;

void requireHarmless(const QString& notes) {
    require(notes.size() <= mostNotes, "notes have an end");
    require(notes.isValidUtf16(), "notes are text");
    require(std::none_of(notes.begin(), notes.end(),
                         [](QChar character) {
                             return character.category() == QChar::Other_Format ||
                                    (character.category() == QChar::Other_Control &&
                                     character != u'\n' && character != u'\t');
                         }),
            "notes show all that they are");
}

void requireSound(const UpdateItem& item, const UpdateItem& newest) {
    require(isSafeToOpen(item.downloadPage), "every page is safe to open");
    require(isSafeToOpen(QUrl(item.downloadPage.toString(QUrl::FullyEncoded), QUrl::StrictMode)),
            "every page is safe to open as another program reads it");
    require(VersionNumber::parse(item.version.text()) == item.version, "a version is its text");
    require(item.version <= newest.version, "the newest is the newest");
    requireHarmless(item.notes);
}

} // namespace
} // namespace dropshade

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace dropshade;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (const auto feed = UpdateFeed::parse(bytes)) {
        require(feed->items.empty() == (feed->newest() == nullptr),
                "a feed with items has a newest");
        for (const UpdateItem& item : feed->items)
            requireSound(item, *feed->newest());
    }
    requireHarmless(plainReleaseNotes(QString::fromUtf8(bytes)));
    return 0;
}
