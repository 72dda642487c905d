// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/replica/ReplicaRecord.h"

#include "json/JsonDocument.h"

#include <QCryptographicHash>

#include <array>
#include <cmath>

namespace dropshade {
namespace {

constexpr double formVersion = 1.0;

/// In the order of the alternatives of `CloudValue`. These words are in people's files.
constexpr std::array<const char*, 6> typeNames = {"bool",   "integer", "real",
                                                  "string", "data",    "strings"};
static_assert(typeNames.size() == std::variant_size_v<CloudValue>);

struct ToBytes {
    QByteArray operator()(bool value) const { return value ? "true" : "false"; }
    QByteArray operator()(qint64 value) const { return QByteArray::number(value); }
    QByteArray operator()(double value) const { return QByteArray::number(value, 'g', 17); }
    QByteArray operator()(const QString& value) const { return value.toUtf8(); }
    QByteArray operator()(const QByteArray& value) const { return value; }
    QByteArray operator()(const QStringList& value) const {
        return *encodedJsonList(
            value, [](JsonWriter& writer, const QString& text) { writer.string(text); });
    }
};

template <typename Value>
std::optional<CloudValue> checked(Value value, bool isGood) {
    return isGood ? std::optional<CloudValue>(std::move(value)) : std::nullopt;
}

std::optional<CloudValue> valueOf(const QString& type, const QByteArray& bytes) {
    const auto isType = [&type](std::size_t index) {
        return type == QLatin1String(typeNames.at(index));
    };
    bool isGood = false;
    if (isType(0))
        return checked(bytes == "true", bytes == "true" || bytes == "false");
    if (isType(1)) {
        const qint64 value = bytes.toLongLong(&isGood);
        return checked(value, isGood);
    }
    if (isType(2)) {
        const double value = bytes.toDouble(&isGood);
        return checked(value, isGood || std::isinf(value));
    }
    if (isType(3))
        return QString::fromUtf8(bytes);
    if (isType(4))
        return bytes;
    const auto list = decodedJsonList(bytes, [](JsonReader& reader) { return reader.string(); });
    return isType(5) && list ? std::optional<CloudValue>(QStringList(*list)) : std::nullopt;
}

/// Of all that a reader takes from a record but the moment.
QByteArray sumOf(const QString& key, const QString& type, const QByteArray& bytes) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(key.toUtf8() + '\0' + type.toUtf8() + '\0');
    hash.addData(bytes);
    return hash.result().toHex();
}

struct Head {
    std::optional<double> form;
    std::optional<QString> key;
    std::optional<QString> type;
    std::optional<double> writtenAt;
    std::optional<QString> sum;
};

std::optional<Head> readHead(const QByteArray& line) {
    return decodedJson(line, [](JsonReader& json) {
        Head head;
        json.object([&](std::string_view key) {
            if (key == "dropshade")
                head.form = json.number();
            else if (key == "key")
                head.key = json.string();
            else if (key == "type")
                head.type = json.string();
            else if (key == "writtenAt")
                head.writtenAt = json.number();
            else if (key == "sum")
                head.sum = json.string();
            else
                json.skip();
        });
        return head;
    });
}

} // namespace

QByteArray ReplicaRecord::encoded() const {
    const QByteArray bytes = std::visit(ToBytes{}, value);
    const QString type = QLatin1String(typeNames.at(value.index()));
    JsonWriter head;
    head.beginObject();
    head.key("dropshade");
    head.number(formVersion);
    head.key("key");
    head.string(key);
    head.key("type");
    head.string(type);
    head.key("writtenAt");
    head.number(std::isfinite(writtenAt.seconds) ? writtenAt.seconds : 0.0);
    head.key("sum");
    head.string(QLatin1String(sumOf(key, type, bytes)));
    head.endObject();
    return head.text() + '\n' + bytes;
}

std::optional<ReplicaRecord> ReplicaRecord::decoded(const QByteArray& bytes) {
    const qsizetype end = bytes.indexOf('\n');
    const auto head =
        end < 0 || bytes.size() > mostBytes ? std::nullopt : readHead(bytes.left(end));
    if (!head || head->form != formVersion || !head->key || !head->type || !head->writtenAt)
        return std::nullopt;
    const QByteArray payload = bytes.mid(end + 1);
    if (!head->sum || head->sum->toLatin1() != sumOf(*head->key, *head->type, payload))
        return std::nullopt;
    auto value = valueOf(*head->type, payload);
    if (!value)
        return std::nullopt;
    return ReplicaRecord{*head->key, std::move(*value), ReferenceTime{*head->writtenAt}};
}

} // namespace dropshade
