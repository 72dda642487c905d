// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"
#include "platform/CloudKeyValueStore.h"
#include "platform/Scheduler.h"
#include "sync/Tombstone.h"

#include <QHash>

#include <optional>
#include <stop_token>

namespace dropshade {

namespace cloudKeys {

inline const QString palettePrefix = QStringLiteral("palette.");
inline const QString order = QStringLiteral("palette.order");
inline const QString orderUpdatedAt = QStringLiteral("palette.order.updatedAt");
inline const QString tombstones = QStringLiteral("palette.tombstones");

[[nodiscard]] QString palette(const QUuid& id);
/// The palette whose key this is, or nothing.
[[nodiscard]] std::optional<QUuid> paletteId(const QString& key);

} // namespace cloudKeys

/// The bytes of a value at which a palette is too large to be shared.
inline constexpr qsizetype palettesTooLarge = 900'000;

/// The palettes in the cloud: a key for each, one for their order, one for what was deleted. What
/// can't be read counts as missing.
///
/// Whose value hasn't changed is not decoded twice: a glance at a large library is cheap.
class CloudPalettes {
public:
    CloudPalettes(CloudKeyValueStore& store, Scheduler& scheduler);

    /// The palettes whose key and content agree, by when they were last modified.
    [[nodiscard]] QHash<QUuid, ReferenceTime> stamps();
    /// That of one palette.
    [[nodiscard]] std::optional<ReferenceTime> stamp(const QUuid& id);
    [[nodiscard]] std::optional<Palette> palette(const QUuid& id);

    /// Those of the palettes that the cloud lacks or has an earlier copy of, as far as the last
    /// looks at it tell.
    [[nodiscard]] QList<Palette> lacking(const QList<Palette>& palettes) const;

    /// What a palette is in the cloud, made of it beforehand.
    struct Prepared {
        Palette palette;
        /// Nothing where it is too large, or has no form in JSON.
        std::optional<QByteArray> value;
        QByteArray digest;
    };
    /// On any thread; as many as there are until nobody waits for them any more.
    [[nodiscard]] static QList<Prepared> prepared(const QList<Palette>& palettes,
                                                  const std::stop_token& token = {});

    /// Leaves a palette that is too large unwritten.
    void save(const Palette& palette);
    /// Has `save` take these as they are, for as long as the palettes are the same, up to the next
    /// `forgetDecoded`.
    void setPrepared(const QList<Prepared>& prepared);
    void remove(const QUuid& id);

    /// Without those that have expired.
    [[nodiscard]] QList<Tombstone> loadTombstones() const;
    void saveTombstones(const QList<Tombstone>& tombstones);

    [[nodiscard]] QList<QUuid> loadRemoteOrder() const;
    /// Seconds since 1970 of the last write of the order; 0 where there was none.
    [[nodiscard]] double orderUpdatedAt() const;
    void saveOrder(const QList<QUuid>& ids);

    /// Lets go of the palettes decoded and prepared since the last call; what is known of their
    /// values stays.
    void forgetDecoded();
    /// The text in a value of a key, or nothing.
    [[nodiscard]] static std::optional<QByteArray> text(const std::optional<CloudValue>& value);

private:
    struct Glance {
        QByteArray digest;
        /// Nothing where the value is no palette of that key.
        std::optional<ReferenceTime> lastModified;
    };

    [[nodiscard]] std::optional<ReferenceTime> glanceAt(const QUuid& id, const CloudValue& value);
    [[nodiscard]] std::optional<Palette> decoded(const QUuid& id, const CloudValue& value,
                                                 ReferenceTime now) const;

    CloudKeyValueStore& m_store;
    Scheduler& m_scheduler;
    QHash<QUuid, Glance> m_glances;
    QHash<QUuid, Palette> m_decoded;
    QHash<QUuid, Prepared> m_prepared;
};

} // namespace dropshade
