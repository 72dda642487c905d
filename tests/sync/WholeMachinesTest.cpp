// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// Two whole machines in real time: settings and palettes by way of a real folder and a real etcd.

#include "app/SettingsReaders.h"
#include "platform/linux/PoolBackgroundQueue.h"
#include "support/CloudMember.h"
#include "support/EtcdServer.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"
#include "sync/CloudSyncEngine.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

/// All that a machine is made of but its windows.
class WholeMachine {
public:
    WholeMachine(CloudMember::MakeTransport makeTransport, const QString& replica)
        : m_kvs(m_defaults, m_scheduler,
                {std::move(makeTransport), [replica](const CloudAccount&) { return replica; }}) {
        engine.start();
    }

private:
    /// Without the presets that a new machine begins with.
    struct EmptyLibrary : MemoryDefaults {
        EmptyLibrary() { setValue(keys::userPalettes, QByteArray("[]")); }
    };

    EmptyLibrary m_defaults;
    QtScheduler m_scheduler;
    PalettePresets m_presets{m_scheduler};
    PoolBackgroundQueue m_backgroundQueue;
    ReplicatedKeyValueStore m_kvs;

public:
    UserDefaults& defaults() { return m_defaults; }

    AppSettings settings{m_defaults, m_scheduler};
    UserPaletteStore palettes{m_defaults, m_scheduler, settings, m_presets};
    CloudSyncEngine engine{{m_kvs, m_defaults, m_scheduler, settings, palettes, m_backgroundQueue}};
};

class WholeMachines : public testing::Test {
protected:
    [[nodiscard]] QString path(const char* name) const {
        return m_base.filePath(QString::fromLatin1(name));
    }

    void followOneAnother(const CloudMember::MakeTransport& makeTransport) {
        WholeMachine here(makeTransport, path("here.sqlite"));
        WholeMachine there(makeTransport, path("there.sqlite"));
        const auto comesTrue = [](const auto& condition) {
            return QTest::qWaitFor(condition, CloudMember::patience);
        };
        const Palette added =
            here.palettes.addPalette(makePalette("Sea", {makeScale("Deep", {"#000080"})}));
        here.settings.setMenuBarIconStyle(MenuBarIconStyle::Swatch);
        EXPECT_TRUE(comesTrue([&] {
            return there.palettes.palettes().size() == 1 &&
                   there.settings.menuBarIconStyle() == MenuBarIconStyle::Swatch;
        }));
        there.palettes.renamePalette(added.id(), QStringLiteral("Ocean"));
        EXPECT_TRUE(comesTrue(
            [&] { return here.palettes.palettes().first().name() == QStringLiteral("Ocean"); }));
        // A pull takes back a deletion that hasn't been pushed yet: let the rest of the push
        // arrive.
        QTest::qWait(1000);
        here.palettes.deletePalette(added.id());
        EXPECT_TRUE(comesTrue([&] { return there.palettes.palettes().isEmpty(); }));
        EXPECT_EQ(here.engine.status().kind, CloudSyncEngine::Status::Kind::Idle);
        EXPECT_EQ(there.engine.status().kind, CloudSyncEngine::Status::Kind::Idle);
    }

    QTemporaryDir m_base;
};

TEST_F(WholeMachines, FollowOneAnotherThroughAFolder) {
    followOneAnother([folder = path("shared")](const CloudAccount&) {
        return std::make_unique<FolderTransport>(folder);
    });
}

TEST_F(WholeMachines, FollowOneAnotherThroughEtcd) {
    EtcdServer server;
    ASSERT_TRUE(server.isUp()) << server.log().constData();
    followOneAnother(etcdTransport(accountAt(server.address())));
}

TEST_F(WholeMachines, SayInTheirStatusWhyNothingGetsThrough) {
    const CloudAccount nobody = accountAt(QStringLiteral("http://127.0.0.1:%1").arg(freePort()));
    WholeMachine machine(etcdTransport(nobody), path("here.sqlite"));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return machine.engine.status().kind == CloudSyncEngine::Status::Kind::Error; },
        CloudMember::patience));
    EXPECT_TRUE(machine.engine.status().message.contains(QLatin1String("can't be reached")));
}

} // namespace
} // namespace dropshade
