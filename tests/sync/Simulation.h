// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/SettingsReaders.h"
#include "palettes/PaletteJson.h"
#include "platform/linux/ReplicatedKeyValueStore.h"
#include "support/Machine.h"
#include "support/ManualBackgroundQueue.h"
#include "support/SimulatedServer.h"
#include "sync/CloudSyncEngine.h"
#include "json/UuidText.h"

#include <QSet>

#include <random>

namespace dropshade {

/// A whole machine: its defaults, its palettes, its engine and its replica on the disk.
class SimulatedMachine {
public:
    SimulatedMachine(SimulatedServer& server, const QString& replica, double clock)
        : m_server(server), m_replica(replica) {
        m_machine.defaults().setValue(keys::userPalettes, QByteArray("[]"));
        m_machine.defaults().setValue(keys::collapsedPaletteIds, QStringList());
        m_machine.scheduler().setNow(ReferenceTime{clock});
        launch();
    }

    void launch() {
        m_kvs = std::make_unique<ReplicatedKeyValueStore>(
            m_machine.defaults(), m_machine.scheduler(),
            ReplicatedKeyValueStore::Means{[this](const CloudAccount&) {
                                               auto made = std::make_unique<SimulatedTransport>(
                                                   m_server, isReachable);
                                               m_transport = made.get();
                                               return made;
                                           },
                                           [this](const CloudAccount&) { return m_replica; }});
        m_engine = std::make_unique<CloudSyncEngine>(
            CloudSyncEngine::Surroundings{*m_kvs, m_machine.defaults(), m_machine.scheduler(),
                                          m_machine.settings(), m_machine.store(), m_queue});
        QObject::connect(&m_machine.store(), &UserPaletteStore::didChange, [this] { ++saves; });
        m_engine->start();
    }
    /// Ends as a program should, and starts again.
    void restart() {
        if (m_machine.store().hasPendingSave())
            m_machine.store().flushPendingSave();
        if (m_machine.settings().hasPendingPins())
            m_machine.settings().flushPendingPins();
        m_engine->flushPendingPushes();
        kill();
    }
    /// Ends without a word, and starts again.
    void kill() {
        m_engine.reset();
        m_transport = nullptr;
        m_kvs.reset();
        m_machine.kill();
        launch();
    }

    void advance(int milliseconds) { m_machine.scheduler().advance(milliseconds); }
    bool pump() { return m_transport->pump(); }
    void loseAnswer() { m_transport->loseAnswer(); }

    UserPaletteStore& store() { return m_machine.store(); }
    UserDefaults& defaults() { return m_machine.defaults(); }
    ManualScheduler& scheduler() { return m_machine.scheduler(); }
    CloudKeyValueStore& kvs() { return *m_kvs; }

    bool isReachable = true;
    int saves = 0;

private:
    SimulatedServer& m_server;
    QString m_replica;
    Machine m_machine;
    ManualBackgroundQueue m_queue;
    std::unique_ptr<ReplicatedKeyValueStore> m_kvs;
    SimulatedTransport* m_transport = nullptr;
    std::unique_ptr<CloudSyncEngine> m_engine;
};

/// Machines of one user that do random things for as long as the test wants, and must then agree.
class Simulation {
public:
    Simulation(int machineCount, std::uint64_t seed, const QString& folder) : m_random(seed) {
        for (int number = 0; number < machineCount; ++number) {
            // Clocks some minutes apart, and by an odd bit, so that no two edits share a moment.
            const double skew = double(below(600)) - 300.0 + below(1'000'003) / 1'000'003.0;
            m_machines.push_back(std::make_unique<SimulatedMachine>(
                m_server, QStringLiteral("%1/replica%2.sqlite").arg(folder).arg(number),
                700'000'000.0 + skew));
        }
    }

    void step() {
        SimulatedMachine& machine = *m_machines[below(unsigned(m_machines.size()))];
        const unsigned what = below(100);
        if (what < 30)
            edit(machine);
        else if (what < 85)
            pass(below(10) == 0 ? int(below(100'000)) : int(below(800)));
        else if (what < 89)
            machine.isReachable = !machine.isReachable;
        else if (what < 92)
            machine.loseAnswer();
        else if (what < 95)
            machine.restart();
        else if (what < 96)
            machine.kill();
        else if (what < 97)
            m_server.compact();
        else
            machine.pump();
        ++m_steps;
    }

    /// Lets everything through until nothing moves. False where it doesn't come to rest.
    bool settle() {
        for (auto& machine : m_machines)
            machine->isReachable = true;
        // What clocks that are apart kept from winning goes up with the next push, and a start is
        // one: the first sends the last deletions, the second answers with what outlives them.
        for (int round = 0; round < 2; ++round) {
            for (auto& machine : m_machines)
                machine->restart();
            if (!comeToRest())
                return false;
        }
        return comeToRest();
    }

    /// What the first machine has that another lacks or has otherwise; empty where all agree.
    QString difference() {
        const QString first = summary(*m_machines.front());
        for (auto& machine : m_machines) {
            const QString other = summary(*machine);
            if (other != first)
                return first + QStringLiteral("\n---\n") + other;
        }
        return {};
    }

    /// What was promised and isn't so, after the machines have settled; empty where all is well.
    QString brokenPromise() {
        QHash<QUuid, double> present;
        for (const Palette& palette : m_machines.front()->store().palettes())
            present.insert(palette.id(), palette.lastModified().seconds);
        for (auto edit = m_lastEdits.cbegin(); edit != m_lastEdits.cend(); ++edit) {
            const bool isDeleted =
                m_deletions.contains(edit.key()) && m_deletions.value(edit.key()) >= edit.value();
            if (isDeleted && present.contains(edit.key()))
                return QStringLiteral("back from the dead: ") + uuidText(edit.key());
            // A clock that is behind may date a deletion before the edit that it was made after.
            const bool mayBeGone = m_deletions.contains(edit.key());
            if (!mayBeGone && present.value(edit.key(), -1.0) < edit.value())
                return QStringLiteral("lost: ") + uuidText(edit.key());
        }
        return {};
    }

    [[nodiscard]] int paletteCount() { return int(m_machines.front()->store().palettes().size()); }
    [[nodiscard]] const SimulatedServer& server() const { return m_server; }

private:
    [[nodiscard]] unsigned below(unsigned end) { return unsigned(m_random() % end); }

    void edit(SimulatedMachine& machine) {
        for (auto& any : m_machines)
            any->advance(1);
        UserPaletteStore& store = machine.store();
        const QList<Palette> palettes = store.palettes();
        const unsigned what = below(10);
        if (palettes.isEmpty() || (what == 0 && palettes.size() < 8)) {
            const QUuid id(unsigned(m_random()), 0, 0x4000, 0x80, 0, 0, 0, 0, 0, 0, 1);
            Palette added(
                id, QStringLiteral("P%1").arg(m_steps),
                {PaletteScale(QStringLiteral("S"), {PaletteSwatch(QStringLiteral("red"))})},
                machine.scheduler().now());
            store.setPalettes(palettes + QList{added});
            store.scheduleSave(UserPaletteStore::PinValidation::Wanted);
        } else if (what == 1) {
            store.deletePalette(palettes.at(pick(palettes)).id());
        } else if (what == 2) {
            QList<QUuid> ids;
            for (const Palette& palette : palettes)
                ids.append(palette.id());
            std::shuffle(ids.begin(), ids.end(), m_random);
            store.reorderPalettes(ids);
        } else if (what == 3) {
            machine.defaults().setValue(keys::decimalPlaces, qint64(2 + below(3)));
        } else if (what == 4) {
            machine.defaults().setValue(keys::recentColors,
                                        "[" + QByteArray::number(below(1000)) + "]");
        } else {
            store.renamePalette(palettes.at(pick(palettes)).id(),
                                QStringLiteral("N%1").arg(m_steps));
        }
    }
    qsizetype pick(const QList<Palette>& palettes) {
        return qsizetype(below(unsigned(palettes.size())));
    }

    /// Time goes by on all machines alike, and what is under way may arrive.
    void pass(int milliseconds) {
        for (auto& machine : m_machines)
            machine->advance(milliseconds);
        for (auto& machine : m_machines) {
            if (below(3) > 0)
                machine->pump();
        }
        // Now and then, for it costs more than all the rest.
        if (below(8) == 0)
            observe(*m_machines[below(unsigned(m_machines.size()))]);
    }

    /// Notes what has reached a replica: from there on it is promised to last.
    void observe(SimulatedMachine& machine) {
        for (const auto& [key, value] : machine.kvs().dictionaryRepresentation()) {
            const auto id = cloudKeys::paletteId(key);
            const auto json = CloudPalettes::text(value);
            const auto palette = id && json ? decodedPalette(*json, ReferenceTime{}) : std::nullopt;
            if (palette)
                m_lastEdits[*id] =
                    std::max(m_lastEdits.value(*id, -1.0), palette->lastModified().seconds);
        }
        const auto json = CloudPalettes::text(machine.kvs().value(cloudKeys::tombstones));
        const auto tombstones = json ? decodedTombstones(*json) : std::nullopt;
        for (const Tombstone& tombstone : tombstones.value_or(QList<Tombstone>()))
            m_deletions[tombstone.id] =
                std::max(m_deletions.value(tombstone.id, -1.0), tombstone.deletedAt.seconds);
    }

    bool comeToRest() {
        constexpr int mostRounds = 60;
        int quietRounds = 0;
        for (int round = 0; round < mostRounds && quietRounds < 3; ++round) {
            const int before = m_server.writes;
            for (auto& machine : m_machines) {
                machine->advance(2000);
                while (machine->pump()) {
                }
                observe(*machine);
            }
            quietRounds = m_server.writes == before ? quietRounds + 1 : 0;
        }
        return quietRounds == 3;
    }

    static QString summary(SimulatedMachine& machine) {
        QString text;
        for (const Palette& palette : machine.store().palettes())
            text += QStringLiteral("%1 %2 %3\n")
                        .arg(uuidText(palette.id()), palette.name())
                        .arg(palette.lastModified().seconds, 0, 'g', 17);
        const QByteArray recents =
            machine.defaults().read<QByteArray>(keys::recentColors).value_or(QByteArray());
        return text + QString::fromLatin1(recents) +
               QString::number(decimalPlaces(machine.defaults()));
    }

    std::mt19937_64 m_random;
    SimulatedServer m_server;
    std::vector<std::unique_ptr<SimulatedMachine>> m_machines;
    int m_steps = 0;
    QHash<QUuid, double> m_lastEdits;
    QHash<QUuid, double> m_deletions;
};

} // namespace dropshade
