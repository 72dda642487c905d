// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SyncAccountModel.h"

#include "support/FakeCloudAccounts.h"
#include "support/ManualScheduler.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <QDir>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

using Kind = SyncAccountModel::Result::Kind;

class SyncAccountModelTest : public testing::Test {
protected:
    [[nodiscard]] CloudAccount stored() const { return CloudAccount::read(defaults); }

    MemoryDefaults defaults;
    ManualScheduler scheduler;
    FakeCloudAccounts accounts;
    int restarts = 0;
    SyncAccountModel model{
        SyncAccountModel::Surroundings{defaults, scheduler, accounts, [this] { ++restarts; }}};
};

TEST_F(SyncAccountModelTest, AFreshInstallKeepsItsDataInTheProgramsOwnFolder) {
    EXPECT_EQ(model.account(), CloudAccount());
    EXPECT_EQ(model.result().kind, Kind::None);
}

TEST_F(SyncAccountModelTest, EachFinishedEditIsStoredAndSyncGoesOnFromThere) {
    model.setKind(CloudAccount::Kind::Etcd);
    model.setAddress(QStringLiteral("https://etcd.home.arpa:2379"));
    model.setUser(QStringLiteral(" dropshade "));
    model.setAuthority(QStringLiteral("/etc/ca.pem"));
    EXPECT_EQ(restarts, 4);
    EXPECT_EQ(stored().kind, CloudAccount::Kind::Etcd);
    EXPECT_EQ(stored().address, QStringLiteral("https://etcd.home.arpa:2379"));
    EXPECT_EQ(stored().user, QStringLiteral("dropshade"));
    EXPECT_EQ(stored().authority, QStringLiteral("/etc/ca.pem"));
}

TEST_F(SyncAccountModelTest, AnEditThatChangesNothingRestartsNothing) {
    model.setUser(QStringLiteral("u"));
    model.setUser(QStringLiteral("u "));
    model.setKind(CloudAccount::Kind::Folder);
    EXPECT_EQ(restarts, 1);
}

TEST_F(SyncAccountModelTest, AnAddressWithoutASchemeIsTakenAsTheSafeOne) {
    model.setAddress(QStringLiteral("etcd.home.arpa:2379"));
    EXPECT_EQ(stored().address, QStringLiteral("https://etcd.home.arpa:2379"));
    model.setAddress(QStringLiteral("http://127.0.0.1:2379"));
    EXPECT_EQ(stored().address, QStringLiteral("http://127.0.0.1:2379"));
    model.setAddress(QString());
    EXPECT_EQ(stored().address, QString());
}

TEST_F(SyncAccountModelTest, PathsAreStoredWholeAndShownFromTheHomeFolder) {
    model.setFolder(QStringLiteral("~/Nextcloud/Dropshade"));
    EXPECT_EQ(stored().folder, QDir::homePath() + QStringLiteral("/Nextcloud/Dropshade"));
    EXPECT_EQ(SyncAccountModel::shownPath(stored().folder),
              QStringLiteral("~/Nextcloud/Dropshade"));
    EXPECT_EQ(SyncAccountModel::shownPath(QDir::homePath()), QStringLiteral("~"));
    EXPECT_EQ(SyncAccountModel::shownPath(QDir::homePath() + QStringLiteral("x/y")),
              QDir::homePath() + QStringLiteral("x/y"));
}

TEST_F(SyncAccountModelTest, APasswordIsKeptForItsAddressAndUserAndNeverInTheSettings) {
    model.setKind(CloudAccount::Kind::Etcd);
    model.setAddress(QStringLiteral("https://a:1"));
    model.setUser(QStringLiteral("u"));
    model.setPassword(QStringLiteral("geheim"));
    EXPECT_EQ(accounts.keptPassword, QStringLiteral("geheim"));
    EXPECT_EQ(accounts.keptAccount, stored());
    for (const QString& key : defaults.keys())
        EXPECT_NE(defaults.read<QString>(key), QStringLiteral("geheim"));
    const int before = restarts;
    accounts.answerKeeping(QString());
    EXPECT_EQ(restarts, before + 1) << "sync logs in with it";
}

TEST_F(SyncAccountModelTest, APasswordTypedBeforeTheAddressIsKeptOnceThereIsOne) {
    model.setPassword(QStringLiteral("geheim"));
    EXPECT_EQ(accounts.keptPassword, QString());
    model.setAddress(QStringLiteral("https://a:1"));
    EXPECT_EQ(accounts.keptPassword, QStringLiteral("geheim"));
    EXPECT_EQ(accounts.keptAccount.address, QStringLiteral("https://a:1"));
}

TEST_F(SyncAccountModelTest, APasswordThatCannotBeKeptIsSaid) {
    model.setAddress(QStringLiteral("https://a:1"));
    model.setPassword(QStringLiteral("geheim"));
    accounts.answerKeeping(QStringLiteral("The disk is full."));
    EXPECT_EQ(model.result(),
              (SyncAccountModel::Result{Kind::Failed, QStringLiteral("The disk is full.")}));
}

TEST_F(SyncAccountModelTest, ATestSaysHowFastOrWhyNot) {
    const SignalCount results(model, &SyncAccountModel::resultDidChange);
    model.setPassword(QStringLiteral("geheim"));
    model.testConnection();
    EXPECT_EQ(model.result().kind, Kind::Working);
    EXPECT_EQ(accounts.checkedAccount, model.account());
    EXPECT_EQ(accounts.checkedPassword, QStringLiteral("geheim"));
    scheduler.advance(14);
    accounts.answerCheck(QString());
    EXPECT_EQ(model.result(),
              (SyncAccountModel::Result{Kind::Well, QStringLiteral("Connected in 14 ms")}));
    model.testConnection();
    accounts.answerCheck(QStringLiteral("The password is wrong."));
    EXPECT_EQ(model.result(),
              (SyncAccountModel::Result{Kind::Failed, QStringLiteral("The password is wrong.")}));
    EXPECT_EQ(results.count(), 4);
}

TEST_F(SyncAccountModelTest, AResultGoesWithTheNextEdit) {
    model.testConnection();
    accounts.answerCheck(QString());
    model.setUser(QStringLiteral("other"));
    EXPECT_EQ(model.result().kind, Kind::None);
}

} // namespace
} // namespace dropshade
