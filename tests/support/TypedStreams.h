// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QtEndian>

#include <bit>
#include <cmath>
#include <initializer_list>

namespace dropshade {

/// A typed stream written as its own archiver does: strings, classes and objects once each and then
/// by reference, numbers as short as they can be.
class TypedStream {
public:
    enum class Order { little, big };

    explicit TypedStream(Order order) : m_order(order) {
        m_bytes = QByteArray("\x04\x0b") + (order == Order::little ? "streamtyped" : "typedstream");
        integer(1000);
    }

    [[nodiscard]] QByteArray bytes() const { return m_bytes; }

    void raw(const QByteArray& bytes) { m_bytes += bytes; }

    void integer(int number) {
        if (number >= -110 && number <= 127)
            m_bytes += static_cast<char>(number);
        else if (number == static_cast<qint16>(number))
            m_bytes += '\x81' + ordered(static_cast<quint16>(number));
        else
            m_bytes += '\x82' + ordered(static_cast<quint32>(number));
    }

    void real(float number) {
        if (number == std::floor(number) && std::abs(number) < 1e9F)
            integer(int(number));
        else
            m_bytes += '\x83' + ordered(std::bit_cast<quint32>(number));
    }

    void type(const QByteArray& text) { string(text); }

    /// The front of a list of so many colours.
    void begin(int count) {
        type("i");
        integer(1);
        type("@i");
        nil();
        integer(count);
    }

    void nil() { m_bytes += '\x85'; }
    void reference(qsizetype object) { integer(int(object) - 110); }

    /// The number of the new object, whose groups follow and then `end`.
    qsizetype object(const QByteArray& className, int version) {
        m_bytes += '\x84';
        const qsizetype number = m_objectCount++;
        if (const qsizetype known = m_classes.indexOf(className); known >= 0) {
            reference(m_classNumbers.at(known));
        } else {
            newClass(className, version);
            if (const qsizetype base = m_classes.indexOf("NSObject"); base >= 0) {
                reference(m_classNumbers.at(base));
            } else {
                newClass("NSObject", 0);
                nil();
            }
        }
        return number;
    }
    void end() { m_bytes += '\x86'; }

    qsizetype color(int kind, std::initializer_list<float> numbers) {
        const qsizetype number = object("NSColor", 0);
        type("c");
        m_bytes += static_cast<char>(kind);
        type(QByteArray(qsizetype(numbers.size()), 'f'));
        for (const float value : numbers)
            real(value);
        end();
        return number;
    }

    qsizetype text(const QByteArray& utf8) {
        const qsizetype number = object("NSString", 1);
        type("+");
        integer(int(utf8.size()));
        m_bytes += utf8;
        end();
        return number;
    }

    void entry(const QByteArray& key, int kind, std::initializer_list<float> numbers) {
        type("@@");
        color(kind, numbers);
        text(key);
    }

private:
    template <typename Number>
    [[nodiscard]] QByteArray ordered(Number number) const {
        QByteArray bytes(sizeof number, '\0');
        if (m_order == Order::little)
            qToLittleEndian(number, bytes.data());
        else
            qToBigEndian(number, bytes.data());
        return bytes;
    }

    void string(const QByteArray& text) {
        if (const qsizetype known = m_strings.indexOf(text); known >= 0) {
            integer(int(known) - 110);
            return;
        }
        m_strings.append(text);
        m_bytes += '\x84';
        integer(int(text.size()));
        m_bytes += text;
    }

    void newClass(const QByteArray& name, int version) {
        m_bytes += '\x84';
        m_classes.append(name);
        m_classNumbers.append(m_objectCount++);
        string(name);
        integer(version);
    }

    Order m_order;
    QByteArray m_bytes;
    QByteArrayList m_strings;
    QByteArrayList m_classes;
    QList<qsizetype> m_classNumbers;
    qsizetype m_objectCount = 0;
};

} // namespace dropshade
