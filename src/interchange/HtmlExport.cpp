// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteTextExporter.h"

namespace dropshade {
namespace {

constexpr char styleBlock[] =
    R"html(<style>
  :root { color-scheme: light; }
  * { box-sizing: border-box; }
  body {
    margin: 0;
    padding: 40px;
    background: #ffffff;
    color: #1a1a1a;
    font-family: -apple-system, BlinkMacSystemFont, "Segoe UI", Roboto, "Helvetica Neue", Arial, sans-serif;
  }
  h1 {
    margin: 0 0 28px 0;
    font-size: 28px;
    font-weight: 700;
    letter-spacing: -0.01em;
  }
  .palette { display: flex; flex-direction: column; gap: 6px; }
  .scale { display: flex; align-items: stretch; }
  .scale-name {
    flex-shrink: 0;
    padding-right: 16px;
    align-self: center;
    text-align: right;
    font-size: 13px;
    font-weight: 500;
    color: #666666;
    min-width: 64px;
  }
  .swatches { display: flex; }
  .swatch {
    width: 112px;
    height: 76px;
    padding: 10px;
    display: flex;
    flex-direction: column;
    justify-content: center;
    gap: 2px;
    overflow: hidden;
  }
  .swatch.light { color: rgba(255, 255, 255, 0.95); }
  .swatch.light .label { color: rgba(255, 255, 255, 0.70); }
  .swatch.dark  { color: rgba(0, 0, 0, 0.85); }
  .swatch.dark  .label { color: rgba(0, 0, 0, 0.55); }
  .hex {
    font-family: ui-monospace, SFMono-Regular, Menlo, Consolas, monospace;
    font-size: 11px;
    font-weight: 600;
    white-space: nowrap;
    overflow: hidden;
    text-overflow: ellipsis;
  }
  .label {
    font-size: 10px;
    white-space: nowrap;
    overflow: hidden;
    text-overflow: ellipsis;
  }
</style>
)html";

/// `toHtmlEscaped` leaves the single quote.
QString escaped(const QString& text) {
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        switch (character.unicode()) {
        case u'&':
            result += QStringLiteral("&amp;");
            break;
        case u'<':
            result += QStringLiteral("&lt;");
            break;
        case u'>':
            result += QStringLiteral("&gt;");
            break;
        case u'"':
            result += QStringLiteral("&quot;");
            break;
        case u'\'':
            result += QStringLiteral("&#39;");
            break;
        default:
            result += character;
        }
    }
    return result;
}

void append(QString& page, const PaletteSwatch& swatch) {
    // The class is the tone of the text, not of the swatch.
    page += QStringLiteral("      <div class=\"swatch ");
    page += swatch.prefersLightText() ? QStringLiteral("light") : QStringLiteral("dark");
    page += QStringLiteral("\" style=\"background:") + escaped(swatch.value());
    page += QStringLiteral("\">\n        <div class=\"hex\">");
    page += escaped(swatch.value().toLower()) + QStringLiteral("</div>\n");
    if (const QString label = swatch.label().value_or(QString()).trimmed(); !label.isEmpty()) {
        page += QStringLiteral("        <div class=\"label\">");
        page += escaped(label) + QStringLiteral("</div>\n");
    }
    page += QStringLiteral("      </div>\n");
}

void append(QString& page, const PaletteScale& scale) {
    page += QStringLiteral("  <div class=\"scale\">\n    <div class=\"scale-name\">");
    page += escaped(scale.name());
    page += QStringLiteral("</div>\n    <div class=\"swatches\">\n");
    for (const PaletteSwatch& swatch : scale.swatches())
        append(page, swatch);
    page += QStringLiteral("    </div>\n  </div>\n");
}

} // namespace

QString PaletteTextExporter::html(const Palette& palette) {
    const QString title = escaped(palette.name().trimmed().isEmpty()
                                      ? tr("Palette", "Title of a palette without a name")
                                      : palette.name());
    QString page = QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n"
                                  "<meta charset=\"utf-8\">\n<title>");
    page += title + QStringLiteral("</title>\n");
    page += QLatin1String(styleBlock);
    page += QStringLiteral("</head>\n<body>\n<h1>") + title;
    page += QStringLiteral("</h1>\n<div class=\"palette\">\n");
    for (const PaletteScale& scale : palette.scales())
        append(page, scale);
    return page + QStringLiteral("</div>\n</body>\n</html>\n");
}

} // namespace dropshade
