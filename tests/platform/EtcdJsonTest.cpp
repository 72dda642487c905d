// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/etcd/EtcdJson.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

TEST(EtcdJson, TheEndOfAPrefixIsTheNextOne) {
    EXPECT_EQ(etcd::endOf("a/"), QByteArray("a0"));
    EXPECT_EQ(etcd::endOf("a\xff\xff"), QByteArray("b"));
    EXPECT_EQ(etcd::endOf("\xff"), QByteArray(1, '\0'));
}

TEST(EtcdJson, WritesRequests) {
    EXPECT_EQ(etcd::rangeRequest("k", "l", 16, 7),
              QByteArray(R"({"key":"aw==","range_end":"bA==","limit":"16","revision":"7"})"));
    EXPECT_EQ(etcd::rangeRequest("k", {}, 1, 0), QByteArray(R"({"key":"aw==","limit":"1"})"));
    EXPECT_EQ(etcd::transactionRequest({{"k", QByteArray("v"), 5}, {"l", std::nullopt, 0}}),
              QByteArray(R"({"compare":[{"key":"aw==","target":"MOD","result":"EQUAL",)"
                         R"("mod_revision":"5"},{"key":"bA==","target":"MOD","result":"EQUAL",)"
                         R"("mod_revision":"0"}],"success":[{"request_put":{"key":"aw==",)"
                         R"("value":"dg=="}},{"request_delete_range":{"key":"bA=="}}],)"
                         R"("failure":[{"request_range":{"key":"aw=="}},)"
                         R"({"request_range":{"key":"bA=="}}]})"));
    EXPECT_EQ(etcd::watchRequest("k", 9),
              QByteArray(R"({"create_request":{"key":"aw==","range_end":"bA==",)"
                         R"("start_revision":"9"}})"));
    EXPECT_EQ(etcd::loginRequest(QStringLiteral("a\""), QStringLiteral("b")),
              QByteArray(R"({"name":"a\"","password":"b"})"));
}

TEST(EtcdJson, ReadsARangeWhereZeroIsAbsent) {
    const auto range = etcd::rangeIn(
        R"({"header":{"cluster_id":"1","revision":"12"},"kvs":[{"key":"aw==","create_revision":"2",)"
        R"("mod_revision":"9007199254740993","version":"1","value":"dg=="},{"key":"bA=="}],)"
        R"("more":true,"count":"3"})");
    ASSERT_TRUE(range);
    EXPECT_EQ(range->revision, 12);
    EXPECT_TRUE(range->hasMore);
    EXPECT_EQ(range->keyValues, (QList<EtcdKeyValue>{{"k", "v", 9007199254740993}, {"l", {}, 0}}));
    EXPECT_TRUE(etcd::rangeIn("{}")->keyValues.isEmpty());
}

TEST(EtcdJson, ReadsATransaction) {
    const auto transaction = etcd::transactionIn(
        R"({"header":{"revision":"4"},"responses":[{"response_range":{"header":{"revision":"4"},)"
        R"("kvs":[{"key":"aw==","mod_revision":"3","value":"dg=="}],"count":"1"}},)"
        R"({"response_range":{}}]})");
    ASSERT_TRUE(transaction);
    EXPECT_FALSE(transaction->hasSucceeded);
    EXPECT_EQ(transaction->revision, 4);
    EXPECT_EQ(transaction->found, (QList<EtcdKeyValue>{{"k", "v", 3}}));
    EXPECT_TRUE(etcd::transactionIn(R"({"succeeded":true,"responses":[{"response_put":{}}]})")
                    ->hasSucceeded);
}

TEST(EtcdJson, ReadsWhatAWatchSays) {
    const auto message = etcd::watchMessageIn(
        R"({"result":{"header":{"revision":"8"},"events":[{"kv":{"key":"aw==","mod_revision":"8",)"
        R"("value":"dg=="}},{"type":"DELETE","kv":{"key":"bA==","mod_revision":"8"}}]}})");
    ASSERT_TRUE(message);
    ASSERT_EQ(message->events.size(), 2);
    EXPECT_FALSE(message->events.at(0).isRemoval);
    EXPECT_TRUE(message->events.at(1).isRemoval);
    EXPECT_TRUE(etcd::watchMessageIn(R"({"result":{"created":true}})")->isCreated);
    EXPECT_TRUE(
        etcd::watchMessageIn(R"({"result":{"canceled":true,"compact_revision":"5"}})")->isCanceled);
    const auto broken = etcd::watchMessageIn(
        R"({"error":{"grpc_code":14,"http_code":503,"message":"shutting down"}})");
    ASSERT_TRUE(broken && broken->error);
    EXPECT_EQ(broken->error->code, 14);
}

TEST(EtcdJson, ReadsErrorsAndTokens) {
    const auto error = etcd::errorIn(
        R"({"error":"etcdserver: request is too large","code":3,"message":"too large"})");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, 3);
    EXPECT_EQ(error->message, QStringLiteral("too large"));
    EXPECT_EQ(etcd::tokenIn(R"({"header":{},"token":"abc.12"})"), QByteArray("abc.12"));
    EXPECT_EQ(etcd::tokenIn("{}"), std::nullopt);
}

TEST(EtcdJson, WhatIsNotUnderstoodIsNothing) {
    for (const char* text : {"", "<html>", "[]", R"({"kvs":[{"key":"!"}]})",
                             R"({"header":{"revision":12}})", R"({"more":1})", R"({"kvs":{}})"})
        EXPECT_FALSE(etcd::rangeIn(text)) << text;
    EXPECT_FALSE(etcd::watchMessageIn(R"({"result":{"events":[{"kv":[]}]}})"));
}

} // namespace
} // namespace dropshade
