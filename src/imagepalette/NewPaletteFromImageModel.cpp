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
      m_initialFilename(std::move(initialFilename)), m_lastAutoName(tidiedName(m_initialFilename)),
      m_loads(std::in_place, surroundings.backgroundQueue) {
    m_paletteName = m_lastAutoName.value_or(QString());
}

NewPaletteFromImageModel::~NewPaletteFromImageModel() = default;

void NewPaletteFromImageModel::appear() {
    if (const auto image = std::exchange(m_initialImage, std::nullopt))
        load(*image, m_initialFilename);
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

void NewPaletteFromImageModel::load(const LoadedImage& image,
                                    const std::optional<QString>& filename) {
    take(image, pixelBufferOf(image), filename);
}

void NewPaletteFromImageModel::take(const LoadedImage& image, std::optional<PixelBuffer> pixels,
                                    const std::optional<QString>& filename) {
    m_image = image;
    m_pixelBuffer = std::move(pixels);
    m_sourceFilename = filename;
    const bool isReplaceable = m_paletteName.trimmed().isEmpty() || m_lastAutoName == m_paletteName;
    const auto autoName = tidiedName(filename);
    // A file that is called like the placeholder fills in nothing, as if it had no name.
    if (isReplaceable && autoName && *autoName != untitledPaletteName()) {
        m_lastAutoName = autoName;
        setPaletteName(*autoName);
    }
    if (m_pixelBuffer)
        setErrorMessage(std::nullopt);
    else
        //: Shown where an image is one, but has no pixels to take colours from.
        setErrorMessage(tr("Couldn't read this image."));
    Q_EMIT imageDidChange();
    recompute();
}

void NewPaletteFromImageModel::decode(const Source& source) {
    m_loads->append([this, source](const std::stop_token&) -> BackgroundQueue::Landing {
        auto image = ImageLoader::loadData(source.data);
        auto name = source.nameOfData;
        if (!image && source.file) {
            image = ImageLoader::loadFile(*source.file);
            name = nameWithoutExtension(*source.file);
        }
        if (image)
            return [this, image = *image, pixels = pixelBufferOf(*image), name]() mutable {
                take(image, std::move(pixels), name);
            };
        return [this, complaint = source.complaint] {
            if (complaint)
                setErrorMessage(complaint);
        };
    });
}

void NewPaletteFromImageModel::loadFile(const QString& path) {
    decode({{}, {}, path, unsupportedFormat()});
}

void NewPaletteFromImageModel::paste() {
    //: Shown after a paste.
    const QString nothing = tr("No image on the clipboard.");
    const QMimeData* content = m_surroundings.pasteboard.content();
    if (!content)
        return decode({{}, {}, {}, nothing});
    const ImageOffer offer(*content);
    const auto file = offer.file();
    decode({offer.imageData(), {}, file, file ? unsupportedFormat() : nothing});
}

bool NewPaletteFromImageModel::accepts(const QMimeData& content) {
    const ImageOffer offer(content);
    return offer.file() || offer.imageType();
}

void NewPaletteFromImageModel::drop(const QMimeData& content) {
    const ImageOffer offer(content);
    if (const auto file = offer.file())
        return loadFile(*file);
    const auto name = offer.suggestedName();
    decode({offer.imageData(),
            name ? std::optional(nameWithoutExtension(*name)) : std::nullopt,
            {},
            {}});
}

void NewPaletteFromImageModel::removeImage() {
    m_loads.emplace(m_surroundings.backgroundQueue);
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

QString NewPaletteFromImageModel::unsupportedFormat() {
    //: Shown where a file that was chosen, pasted or dropped is not an image.
    return tr("Unsupported image format.");
}

QString NewPaletteFromImageModel::untitledPaletteName() {
    //: The name of a palette that was made from an image and given no other
    return tr("Untitled Palette");
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
