// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/etcd/EtcdJson.h"

#include "json/JsonDocument.h"

#include <algorithm>

namespace dropshade {
namespace {

void bytes(JsonWriter& json, std::string_view key, const QByteArray& value) {
    json.key(key);
    json.string(QString::fromLatin1(value.toBase64()));
}

void integer(JsonWriter& json, std::string_view key, qint64 value) {
    json.key(key);
    json.string(QString::number(value));
}

void text(JsonWriter& json, std::string_view key, const char* value) {
    json.key(key);
    json.string(QLatin1String(value));
}

template <typename Write>
QByteArray object(Write write) {
    JsonWriter json;
    json.beginObject();
    write(json);
    json.endObject();
    return json.text();
}

void compare(JsonWriter& json, const EtcdWrite& write) {
    json.beginObject();
    bytes(json, "key", write.key);
    text(json, "target", "MOD");
    text(json, "result", "EQUAL");
    integer(json, "mod_revision", write.expectedRevision);
    json.endObject();
}

void put(JsonWriter& json, const EtcdWrite& write) {
    json.beginObject();
    json.key(write.value ? "request_put" : "request_delete_range");
    json.beginObject();
    bytes(json, "key", write.key);
    if (write.value)
        bytes(json, "value", *write.value);
    json.endObject();
    json.endObject();
}

void look(JsonWriter& json, const EtcdWrite& write) {
    json.beginObject();
    json.key("request_range");
    json.beginObject();
    bytes(json, "key", write.key);
    json.endObject();
    json.endObject();
}

QByteArray readBytes(JsonReader& json) {
    const auto decoded = QByteArray::fromBase64Encoding(json.string().toLatin1(),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        throw JsonError("no base64");
    return *decoded;
}

qint64 readInteger(JsonReader& json) {
    bool isGood = false;
    const qint64 value = json.string().toLongLong(&isGood);
    if (!isGood)
        throw JsonError("no integer");
    return value;
}

qint64 readRevision(JsonReader& json) {
    qint64 revision = 0;
    json.object([&](std::string_view key) {
        if (key == "revision")
            revision = readInteger(json);
        else
            json.skip();
    });
    return revision;
}

EtcdKeyValue readKeyValue(JsonReader& json) {
    EtcdKeyValue keyValue;
    json.object([&](std::string_view key) {
        if (key == "key")
            keyValue.key = readBytes(json);
        else if (key == "value")
            keyValue.value = readBytes(json);
        else if (key == "mod_revision")
            keyValue.modRevision = readInteger(json);
        else
            json.skip();
    });
    return keyValue;
}

EtcdRange readRange(JsonReader& json) {
    EtcdRange range;
    json.object([&](std::string_view key) {
        if (key == "header")
            range.revision = readRevision(json);
        else if (key == "kvs")
            json.array([&] { range.keyValues.append(readKeyValue(json)); });
        else if (key == "more")
            range.hasMore = json.boolean();
        else
            json.skip();
    });
    return range;
}

EtcdTransaction readTransaction(JsonReader& json) {
    EtcdTransaction transaction;
    const auto readResponse = [&] {
        json.object([&](std::string_view key) {
            if (key == "response_range")
                transaction.found += readRange(json).keyValues;
            else
                json.skip();
        });
    };
    json.object([&](std::string_view key) {
        if (key == "header")
            transaction.revision = readRevision(json);
        else if (key == "succeeded")
            transaction.hasSucceeded = json.boolean();
        else if (key == "responses")
            json.array(readResponse);
        else
            json.skip();
    });
    return transaction;
}

/// No error's number is near it, and an int holds it.
constexpr double mostCode = 1e6;

EtcdError readError(JsonReader& json) {
    EtcdError error;
    json.object([&](std::string_view key) {
        // A stream that breaks off has a "grpc_code" and an "http_code" instead.
        if (key == "code" || key == "grpc_code")
            error.code = int(std::clamp(json.number(), 0.0, mostCode));
        else if (key == "message")
            error.message = json.string();
        else
            json.skip();
    });
    return error;
}

EtcdEvent readEvent(JsonReader& json) {
    EtcdEvent event;
    json.object([&](std::string_view key) {
        if (key == "type")
            event.isRemoval = json.string() == QLatin1String("DELETE");
        else if (key == "kv")
            event.keyValue = readKeyValue(json);
        else
            json.skip();
    });
    return event;
}

void readWatchResult(JsonReader& json, EtcdWatchMessage& message) {
    json.object([&](std::string_view key) {
        if (key == "header")
            message.revision = readRevision(json);
        else if (key == "created")
            message.isCreated = json.boolean();
        else if (key == "canceled")
            message.isCanceled = json.boolean();
        else if (key == "events")
            json.array([&] { message.events.append(readEvent(json)); });
        else
            json.skip();
    });
}

} // namespace

namespace etcd {

QByteArray endOf(const QByteArray& prefix) {
    QByteArray end = prefix;
    while (!end.isEmpty() && end.back() == '\xff')
        end.chop(1);
    if (end.isEmpty())
        return QByteArray(1, '\0');
    end.back() = char(end.back() + 1);
    return end;
}

QByteArray loginRequest(const QString& user, const QString& password) {
    return object([&](JsonWriter& json) {
        json.key("name");
        json.string(user);
        json.key("password");
        json.string(password);
    });
}

QByteArray rangeRequest(const QByteArray& from, const QByteArray& end, int limit, qint64 revision) {
    return object([&](JsonWriter& json) {
        bytes(json, "key", from);
        if (!end.isEmpty())
            bytes(json, "range_end", end);
        integer(json, "limit", limit);
        if (revision > 0)
            integer(json, "revision", revision);
    });
}

QByteArray transactionRequest(const QList<EtcdWrite>& writes) {
    return object([&](JsonWriter& json) {
        const auto list = [&](std::string_view key, auto writeOne) {
            json.key(key);
            json.beginArray();
            for (const EtcdWrite& write : writes)
                writeOne(json, write);
            json.endArray();
        };
        list("compare", compare);
        list("success", put);
        list("failure", look);
    });
}

QByteArray watchRequest(const QByteArray& prefix, qint64 firstRevision) {
    return object([&](JsonWriter& json) {
        json.key("create_request");
        json.beginObject();
        bytes(json, "key", prefix);
        bytes(json, "range_end", endOf(prefix));
        integer(json, "start_revision", firstRevision);
        json.endObject();
    });
}

std::optional<EtcdError> errorIn(const QByteArray& json) {
    return decodedJson(json, readError);
}

std::optional<QByteArray> tokenIn(const QByteArray& json) {
    const auto token = decodedJson(json, [](JsonReader& reader) {
        QString found;
        reader.object([&](std::string_view key) {
            if (key == "token")
                found = reader.string();
            else
                reader.skip();
        });
        return found.toLatin1();
    });
    return token && !token->isEmpty() ? token : std::nullopt;
}

std::optional<EtcdRange> rangeIn(const QByteArray& json) {
    return decodedJson(json, readRange);
}

std::optional<EtcdTransaction> transactionIn(const QByteArray& json) {
    return decodedJson(json, readTransaction);
}

std::optional<EtcdWatchMessage> watchMessageIn(const QByteArray& json) {
    return decodedJson(json, [](JsonReader& reader) {
        EtcdWatchMessage message;
        reader.object([&](std::string_view key) {
            if (key == "result")
                readWatchResult(reader, message);
            else if (key == "error")
                message.error = readError(reader);
            else
                reader.skip();
        });
        return message;
    });
}

} // namespace etcd

} // namespace dropshade
