// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/NewPaletteFromImageModel.h"

#include "imagepalette/ImageOffer.h"
#include "imagepalette/PaletteNaming.h"
#include "interchange/HexText.h"

#include <QMimeData>

#include <algorithm>
#include <utility>

namespace dropshade {
namespace {

PaletteSwatch swatchOf(const QuantizedColor& color) {
    return PaletteSwatch(hexText(colorOf(color)));
}

} // namespace

NewPaletteFromImageModel::NewPaletteFromImageModel(const Surroundings& surroundings,
                                                   std::optional<LoadedImage> initialImage,
                                                   std::optional<QString> initialFilename)
    : m_surroundings(surroundings), m_initialImage(std::move(initialImage)),
      m_initialFilename(std::move(initialFilename)), m_lastAutoName(tidiedName(m_initialFilename)) {
    m_paletteName = m_lastAutoName.value_or(QString());
}

NewPaletteFromImageModel::~NewPaletteFromImageModel() = default;

void NewPaletteFromImageModel::appear() {
    if (auto image = std::exchange(m_initialImage, std::nullopt))
        load(*std::move(image), m_initialFilename);
}

std::vector<QuantizedColor> NewPaletteFromImageModel::sortedSwatches() const {
    return ImageQuantizer::sorted(m_swatches, m_sortOrder);
}

void NewPaletteFromImageModel::setColorCount(double count) {
    const double legal = std::clamp(count, fewestColors, mostColors);
    if (std::exchange(m_colorCount, legal) != legal)
        recompute();
}

void NewPaletteFromImageModel::setAlgorithm(QuantizationAlgorithm algorithm) {
    if (std::exchange(m_algorithm, algorithm) != algorithm)
        recompute();
}

void NewPaletteFromImageModel::setSortOrder(SwatchSortOrder order) {
    if (std::exchange(m_sortOrder, order) != order)
        Q_EMIT swatchesDidChange();
}

void NewPaletteFromImageModel::setPaletteName(const QString& name) {
    if (std::exchange(m_paletteName, name) != name)
        Q_EMIT paletteNameDidChange();
}

void NewPaletteFromImageModel::setDropTargeted(bool targeted) {
    if (std::exchange(m_isDropTargeted, targeted) != targeted)
        Q_EMIT isDropTargetedDidChange();
}

void NewPaletteFromImageModel::load(LoadedImage image, const std::optional<QString>& filename) {
    setErrorMessage(std::nullopt);
    m_image = std::move(image);
    m_sourceFilename = filename;
    const bool isReplaceable = m_paletteName.trimmed().isEmpty() || m_lastAutoName == m_paletteName;
    const auto autoName = tidiedName(filename);
    // A file that is called like the placeholder fills in nothing, as if it had no name.
    if (isReplaceable && autoName && *autoName != untitledPaletteName()) {
        m_lastAutoName = autoName;
        setPaletteName(*autoName);
    }
    buildPixels();
    Q_EMIT imageDidChange();
    recompute();
}

void NewPaletteFromImageModel::loadFile(const QString& path) {
    if (auto image = ImageLoader::loadFile(path))
        load(*std::move(image), nameWithoutExtension(path));
    else
        //: Shown where a file that was chosen, pasted or dropped is not an image.
        setErrorMessage(tr("Unsupported image format."));
}

void NewPaletteFromImageModel::paste() {
    const QMimeData* content = m_surroundings.pasteboard.content();
    if (content) {
        const ImageOffer offer(*content);
        if (auto image = ImageLoader::loadData(offer.imageData()))
            return load(*std::move(image), std::nullopt);
        if (const auto file = offer.file())
            return loadFile(*file);
    }
    //: Shown after a paste.
    setErrorMessage(tr("No image on the clipboard."));
}

bool NewPaletteFromImageModel::accepts(const QMimeData& content) {
    const ImageOffer offer(content);
    return offer.file() || offer.imageType();
}

void NewPaletteFromImageModel::drop(const QMimeData& content) {
    const ImageOffer offer(content);
    if (const auto file = offer.file())
        return loadFile(*file);
    auto image = ImageLoader::loadData(offer.imageData());
    if (!image)
        return;
    const auto name = offer.suggestedName();
    load(*std::move(image), name ? std::optional(nameWithoutExtension(*name)) : std::nullopt);
}

void NewPaletteFromImageModel::removeImage() {
    m_quantizationTask.reset();
    m_image.reset();
    m_sourceFilename.reset();
    m_pixelBuffer.reset();
    setSwatches({});
    setErrorMessage(std::nullopt);
    Q_EMIT imageDidChange();
}

void NewPaletteFromImageModel::createPalette() {
    if (!m_image || m_swatches.empty())
        return;
    const QString typed = m_paletteName.trimmed();
    QList<PaletteSwatch> swatches;
    for (const QuantizedColor& color : sortedSwatches())
        swatches.append(swatchOf(color));
    //: The name of the one scale of a palette that was made from an image
    const PaletteScale scale(tr("Colors"), swatches);
    Q_EMIT paletteMade(Palette(typed.isEmpty() ? untitledPaletteName() : typed, {scale},
                               m_surroundings.scheduler.now()));
}

QString NewPaletteFromImageModel::untitledPaletteName() {
    //: The name of a palette that was made from an image and given no other
    return tr("Untitled Palette");
}

void NewPaletteFromImageModel::buildPixels() {
    m_pixelBuffer = m_image ? pixelBufferOf(*m_image) : std::nullopt;
    if (m_image && !m_pixelBuffer)
        //: Shown where an image is one, but has no pixels to take colours from.
        setErrorMessage(tr("Couldn't read this image."));
}

void NewPaletteFromImageModel::recompute() {
    m_quantizationTask.reset();
    setProcessing(m_pixelBuffer.has_value());
    if (!m_pixelBuffer)
        return setSwatches({});
    m_quantizationTask = std::make_unique<QuantizationTask>(
        m_surroundings.scheduler, m_surroundings.backgroundQueue,
        QuantizationJob{*m_pixelBuffer, static_cast<int>(m_colorCount), m_algorithm,
                        m_surroundings.makeRandomBits},
        [this](std::vector<QuantizedColor> result) {
            setSwatches(std::move(result));
            setProcessing(false);
        });
}

void NewPaletteFromImageModel::setSwatches(std::vector<QuantizedColor> swatches) {
    m_swatches = std::move(swatches);
    Q_EMIT swatchesDidChange();
}

void NewPaletteFromImageModel::setProcessing(bool processing) {
    if (std::exchange(m_isProcessing, processing) != processing)
        Q_EMIT isProcessingDidChange();
}

void NewPaletteFromImageModel::setErrorMessage(const std::optional<QString>& message) {
    m_errorMessage = message;
    Q_EMIT errorMessageDidChange();
}

} // namespace dropshade
