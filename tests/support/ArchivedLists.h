// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

#include <plist/plist.h>

#include <cstdlib>

namespace dropshade::archives {

/// A reference of a keyed archive in XML.
inline QByteArray reference(qsizetype object) {
    return "<dict><key>CF$UID</key><integer>" + QByteArray::number(object) + "</integer></dict>";
}

inline QByteArray field(const QByteArray& key, const QByteArray& value) {
    return "<key>" + key + "</key>" + value;
}

inline QByteArray integerField(const QByteArray& key, int number) {
    return field(key, "<integer>" + QByteArray::number(number) + "</integer>");
}

inline QByteArray dataField(const QByteArray& key, const QByteArray& bytes) {
    return field(key, "<data>\n\t" + bytes.toBase64() + "\n</data>");
}

inline QByteArray dict(const QByteArray& fields) {
    return "<dict>" + fields + "</dict>";
}

inline QByteArray document(const QByteArray& root) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD "
           "PLIST "
           "1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist "
           "version=\"1.0\">" +
           root + "</plist>\n";
}

/// A colour list as a keyed archive in XML, with whatever objects a test puts in it.
class List {
public:
    /// The number of the new object.
    qsizetype add(const QByteArray& object) {
        m_objects.append(object);
        return m_objects.size() + firstObject - 1;
    }

    void addKey(const QByteArray& key, qsizetype color) {
        m_keys += reference(add("<string>" + key + "</string>"));
        m_colors += reference(color);
    }

    void addColor(const QByteArray& key, const QByteArray& fields) {
        addKey(key, add(dict(fields)));
    }

    [[nodiscard]] QByteArray xml() const {
        return document(dict(
            field("$archiver", "<string>NSKeyedArchiver</string>") +
            integerField("$version", 100000) +
            field("$top", dict(field("NSKeys", reference(1)) + field("NSColors", reference(2)))) +
            field("$objects", "<array>" + objects() + "</array>")));
    }

    /// The same with the list as one object below "root".
    [[nodiscard]] QByteArray xmlOfOneObject() {
        const qsizetype list =
            add(dict(field("NSKeys", reference(1)) + field("NSColors", reference(2))));
        return document(dict(field("$top", dict(field("root", reference(list)))) +
                             field("$objects", "<array>" + objects() + "</array>")));
    }

private:
    static constexpr qsizetype firstObject = 3;

    [[nodiscard]] QByteArray objects() const {
        return "<string>$null</string>" +
               dict(field("NS.objects", "<array>" + m_keys + "</array>")) +
               dict(field("NS.objects", "<array>" + m_colors + "</array>")) + m_objects.join();
    }

    QByteArrayList m_objects;
    QByteArray m_keys;
    QByteArray m_colors;
};

/// The same with each spelt reference as a true one.
inline plist_t withReferences(plist_t node) {
    if (const plist_t number = plist_get_node_type(node) == PLIST_DICT
                                   ? plist_dict_get_item(node, "CF$UID")
                                   : nullptr) {
        uint64_t object = 0;
        plist_get_uint_val(number, &object);
        return plist_new_uid(object);
    }
    if (plist_get_node_type(node) == PLIST_ARRAY) {
        const plist_t copy = plist_new_array();
        for (uint32_t place = 0; place < plist_array_get_size(node); ++place)
            plist_array_append_item(copy, withReferences(plist_array_get_item(node, place)));
        return copy;
    }
    if (plist_get_node_type(node) != PLIST_DICT)
        return plist_copy(node);
    const plist_t copy = plist_new_dict();
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    for (;;) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(node, iterator, &key, &value);
        if (!value)
            break;
        plist_dict_set_item(copy, key, withReferences(value));
        std::free(key);
    }
    std::free(iterator);
    return copy;
}

enum class References { spelt, real };

/// The same property list in binary, as another library writes it.
inline QByteArray binary(const QByteArray& xml, References references = References::real) {
    plist_t root = nullptr;
    plist_from_xml(xml.constData(), uint32_t(xml.size()), &root);
    if (references == References::real) {
        const plist_t copy = withReferences(root);
        plist_free(root);
        root = copy;
    }
    char* bytes = nullptr;
    uint32_t size = 0;
    plist_to_bin(root, &bytes, &size);
    const QByteArray result(bytes, qsizetype(size));
    std::free(bytes);
    plist_free(root);
    return result;
}

} // namespace dropshade::archives
