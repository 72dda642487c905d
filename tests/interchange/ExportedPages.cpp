// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorConversions.h"
#include "interchange/PaletteTextExporter.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace dropshade {
namespace {

/// Exports palettes for a browser to open, and writes down what it should find there.
class ExportedPages {
public:
    explicit ExportedPages(const QString& folder) : m_folder(folder) {}

    void add(const QString& file, const QString& name, const QStringList& values) {
        QList<PaletteSwatch> swatches;
        QJsonArray expected;
        for (const QString& value : values) {
            swatches.append(PaletteSwatch(value, name));
            swatches.append(PaletteSwatch(value));
            expected += QJsonArray{colorOf(swatches.constLast()), name};
            expected += QJsonArray{colorOf(swatches.constLast()), QJsonValue()};
        }
        const Palette palette(name, {PaletteScale(name, swatches)}, ReferenceTime{});
        write(file + QStringLiteral(".html"), PaletteTextExporter::html(palette).toUtf8());
        write(file + QStringLiteral(".css"), PaletteTextExporter::css(palette).toUtf8());
        m_expected.insert(file, QJsonObject{{QStringLiteral("name"), name},
                                            {QStringLiteral("swatches"), expected}});
    }

    bool finish() {
        write(QStringLiteral("expected.json"), QJsonDocument(m_expected).toJson());
        return m_isWritten;
    }

private:
    static QJsonArray colorOf(const PaletteSwatch& swatch) {
        const RGBA8 bytes = rgba255(swatch.color());
        return {int(bytes.red), int(bytes.green), int(bytes.blue), swatch.color().alpha()};
    }

    void write(const QString& name, const QByteArray& content) {
        QFile file(m_folder.filePath(name));
        m_isWritten =
            file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && m_isWritten;
    }

    QDir m_folder;
    QJsonObject m_expected;
    bool m_isWritten = true;
};

} // namespace
} // namespace dropshade

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    dropshade::ExportedPages pages(QString::fromLocal8Bit(argv[1]));
    const QStringList values = {
        QStringLiteral("#FF8000"),    QStringLiteral("#0af"),
        QStringLiteral("navy"),       QStringLiteral("rgba(255, 0, 0, 0.5)"),
        QStringLiteral("rgb(1,2,3)"), QStringLiteral("hsl(120, 100%, 25%)"),
    };
    pages.add(QStringLiteral("colours"), QStringLiteral("Brand"), values);
    pages.add(QStringLiteral("hostile"),
              QStringLiteral(u"</title></style></div>\"'><script>document.body.remove()</script>"
                             u"<!-- &amp; \u202E\u2066\u200F ]]>"),
              values);
    pages.add(QStringLiteral("long"), QString(10'000, u'x'), values);
    return pages.finish() ? 0 : 1;
}
