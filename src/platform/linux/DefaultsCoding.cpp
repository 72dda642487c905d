// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/DefaultsCoding.h"

#include <QtEndian>

#include <bit>
#include <cmath>

namespace dropshade {
namespace {

/// These numbers are in people's files: never change one.
enum class StoredType { Boolean = 1, Integer = 2, Real = 3, String = 4, Data = 5, StringList = 6 };

QByteArray unitsOf(const QString& text) {
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    qToLittleEndian<char16_t>(text.utf16(), text.size(), bytes.data());
    return bytes;
}

QString textOfUnits(QByteArrayView bytes) {
    QString text(bytes.size() / 2, Qt::Uninitialized);
    qFromLittleEndian<char16_t>(bytes.data(), text.size(), text.data());
    return text;
}

template <typename Number>
QByteArray bytesOf(Number number) {
    QByteArray bytes(sizeof(Number), Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

/// Each string as the number of its units and the units.
QByteArray packed(const QStringList& list) {
    QByteArray bytes;
    for (const QString& text : list) {
        bytes += bytesOf(static_cast<quint32>(text.size())) + unitsOf(text);
    }
    return bytes;
}

std::optional<QStringList> unpacked(QByteArrayView bytes) {
    QStringList list;
    while (!bytes.isEmpty()) {
        constexpr qsizetype head = sizeof(quint32);
        const qsizetype size =
            bytes.size() < head ? 0 : 2 * qsizetype(qFromLittleEndian<quint32>(bytes.data()));
        if (bytes.size() < head + size) {
            return std::nullopt;
        }
        list.append(textOfUnits(bytes.sliced(head, size)));
        bytes = bytes.sliced(head + size);
    }
    return list;
}

/// Binds a value of each type; the call gives the code of binding and keeps the type.
struct Binder {
    sqlite3_stmt* statement;
    int parameter;
    StoredType type = StoredType::Boolean;

    int operator()(bool value) {
        type = StoredType::Boolean;
        return sqlite3_bind_int(statement, parameter, value ? 1 : 0);
    }
    int operator()(qint64 value) {
        type = StoredType::Integer;
        return sqlite3_bind_int64(statement, parameter, value);
    }
    int operator()(double value) {
        type = StoredType::Real;
        return std::isnan(value)
                   ? bindBytes(statement, parameter, bytesOf(std::bit_cast<quint64>(value)))
                   : sqlite3_bind_double(statement, parameter, value);
    }
    int operator()(const QString& value) {
        type = StoredType::String;
        return bindText(statement, parameter, value);
    }
    int operator()(const QByteArray& value) {
        type = StoredType::Data;
        // A library is large: SQLite reads it where it lies.
        return sqlite3_bind_blob64(statement, parameter, value.constData(),
                                   static_cast<sqlite3_uint64>(value.size()), SQLITE_STATIC);
    }
    int operator()(const QStringList& value) {
        type = StoredType::StringList;
        return bindBytes(statement, parameter, packed(value));
    }
};

std::optional<double> realOfBytes(QByteArrayView bytes) {
    if (bytes.size() != sizeof(double)) {
        return std::nullopt;
    }
    return std::bit_cast<double>(qFromLittleEndian<quint64>(bytes.data()));
}

} // namespace

int bindBytes(sqlite3_stmt* statement, int parameter, const QByteArray& bytes) {
    // constData() is never null, which would make an empty value an absent one.
    return sqlite3_bind_blob64(statement, parameter, bytes.constData(),
                               static_cast<sqlite3_uint64>(bytes.size()), SQLITE_TRANSIENT);
}

QByteArray bytesIn(sqlite3_stmt* statement, int column) {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
    return QByteArray(bytes, sqlite3_column_bytes(statement, column));
}

int bindText(sqlite3_stmt* statement, int parameter, const QString& text) {
    if (!text.isValidUtf16() || text.startsWith(QChar(QChar::ByteOrderMark))) {
        return bindBytes(statement, parameter, unitsOf(text));
    }
    const QByteArray encoded = text.toUtf8();
    return sqlite3_bind_text64(statement, parameter, encoded.constData(),
                               static_cast<sqlite3_uint64>(encoded.size()), SQLITE_TRANSIENT,
                               SQLITE_UTF8);
}

QString textIn(sqlite3_stmt* statement, int column) {
    const bool isUnits = sqlite3_column_type(statement, column) == SQLITE_BLOB;
    const QByteArray bytes = bytesIn(statement, column);
    return isUnits ? textOfUnits(bytes) : QString::fromUtf8(bytes);
}

int bindValue(sqlite3_stmt* statement, int parameter, const DefaultsValue& value) {
    Binder binder{statement, parameter + 1};
    const int result = std::visit(binder, value);
    return result == SQLITE_OK
               ? sqlite3_bind_int(statement, parameter, static_cast<int>(binder.type))
               : result;
}

std::optional<DefaultsValue> valueIn(sqlite3_stmt* statement, int column) {
    const int valueColumn = column + 1;
    const int form = sqlite3_column_type(statement, valueColumn);
    const auto type = static_cast<StoredType>(sqlite3_column_int(statement, column));
    if (type == StoredType::Boolean && form == SQLITE_INTEGER) {
        return sqlite3_column_int(statement, valueColumn) != 0;
    }
    if (type == StoredType::Integer && form == SQLITE_INTEGER) {
        return qint64(sqlite3_column_int64(statement, valueColumn));
    }
    if (type == StoredType::Real && form == SQLITE_FLOAT) {
        return sqlite3_column_double(statement, valueColumn);
    }
    if (type == StoredType::Real && form == SQLITE_BLOB) {
        return realOfBytes(bytesIn(statement, valueColumn));
    }
    if (type == StoredType::String && (form == SQLITE_TEXT || form == SQLITE_BLOB)) {
        return textIn(statement, valueColumn);
    }
    if (type == StoredType::Data && form == SQLITE_BLOB) {
        return bytesIn(statement, valueColumn);
    }
    if (type == StoredType::StringList && form == SQLITE_BLOB) {
        return unpacked(bytesIn(statement, valueColumn));
    }
    return std::nullopt;
}

} // namespace dropshade
