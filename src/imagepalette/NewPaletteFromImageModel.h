// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/ImageLoader.h"
#include "imagepalette/ImageQuantizer.h"
#include "imagepalette/QuantizationTask.h"
#include "palettes/Palette.h"
#include "platform/BackgroundLine.h"
#include "platform/Pasteboard.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QMimeData;

namespace dropshade {

/// The making of one palette from one image: what is chosen, what comes of it, and the commands.
/// Every change of the image, the count or the algorithm starts a computation of its own, and only
/// the newest one's result ever lands.
class NewPaletteFromImageModel : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        Scheduler& scheduler;
        BackgroundQueue& backgroundQueue;
        const Pasteboard& pasteboard;
        /// Makes a source of chance for one computation, which has it on its own thread.
        std::function<RandomBits()> makeRandomBits = ImageQuantizer::systemRandomBits;
    };

    static constexpr double fewestColors = 2.0;
    static constexpr double mostColors = 24.0;

    /// `initialFilename` is without its extension.
    explicit NewPaletteFromImageModel(const Surroundings& surroundings,
                                      std::optional<LoadedImage> initialImage = std::nullopt,
                                      std::optional<QString> initialFilename = std::nullopt);
    ~NewPaletteFromImageModel() override;

    /// The view has come on screen: the initial image is loaded.
    void appear();

    [[nodiscard]] const std::optional<LoadedImage>& image() const { return m_image; }
    /// Without its extension.
    [[nodiscard]] const std::optional<QString>& sourceFilename() const { return m_sourceFilename; }
    [[nodiscard]] double colorCount() const { return m_colorCount; }
    [[nodiscard]] QuantizationAlgorithm algorithm() const { return m_algorithm; }
    [[nodiscard]] SwatchSortOrder sortOrder() const { return m_sortOrder; }
    /// The last result as the algorithm gave it.
    [[nodiscard]] const std::vector<QuantizedColor>& swatches() const { return m_swatches; }
    /// The same in the chosen order.
    [[nodiscard]] std::vector<QuantizedColor> sortedSwatches() const;
    [[nodiscard]] const QString& paletteName() const { return m_paletteName; }
    /// Stands in for a name that is blank.
    [[nodiscard]] static QString untitledPaletteName();
    /// A computation is under way, or was when the image was removed.
    [[nodiscard]] bool isProcessing() const { return m_isProcessing; }
    [[nodiscard]] const std::optional<QString>& errorMessage() const { return m_errorMessage; }
    [[nodiscard]] bool isDropTargeted() const { return m_isDropTargeted; }

    void setColorCount(double count);
    void setAlgorithm(QuantizationAlgorithm algorithm);
    void setSortOrder(SwatchSortOrder order);
    void setPaletteName(const QString& name);
    void setDropTargeted(bool targeted);

    /// Takes the image, and its name for the palette's unless the user has typed one.
    void load(const LoadedImage& image, const std::optional<QString>& filename);

    // These decode beside the main thread, one image after another, and return at once. An image
    // that is removed takes with it those that have not come yet.

    /// Loads the file's image, or says that it is none and leaves all as it was.
    void loadFile(const QString& path);
    /// The same with what is on the clipboard.
    void paste();
    /// Whether the drag has something that `drop` would take.
    [[nodiscard]] static bool accepts(const QMimeData& content);
    /// Takes the file or the image that was dropped. Bytes that are no image are dropped without a
    /// word.
    void drop(const QMimeData& content);
    void removeImage();
    /// Hands the palette over by `paletteMade`; does nothing where there are no colours.
    void createPalette();

Q_SIGNALS:
    void imageDidChange();
    /// Another result, or another order of it.
    void swatchesDidChange();
    void paletteNameDidChange();
    void isProcessingDidChange();
    void errorMessageDidChange();
    void isDropTargetedDidChange();
    void paletteMade(const Palette& palette);

private:
    /// Where an image may be, in the order in which it is looked for.
    struct Source {
        QByteArray data;
        /// Without its extension.
        std::optional<QString> nameOfData;
        std::optional<QString> file;
        /// Where it is nowhere.
        std::optional<QString> complaint;
    };

    [[nodiscard]] static QString unsupportedFormat();
    void decode(const Source& source);
    void take(const LoadedImage& image, std::optional<PixelBuffer> pixels,
              const std::optional<QString>& filename);
    void recompute();
    void setSwatches(std::vector<QuantizedColor> swatches);
    void setProcessing(bool processing);
    void setErrorMessage(const std::optional<QString>& message);

    Surroundings m_surroundings;
    std::optional<LoadedImage> m_initialImage;
    std::optional<QString> m_initialFilename;
    std::optional<LoadedImage> m_image;
    std::optional<QString> m_sourceFilename;
    std::optional<PixelBuffer> m_pixelBuffer;
    double m_colorCount = 8.0;
    QuantizationAlgorithm m_algorithm = QuantizationAlgorithm::kMeans;
    SwatchSortOrder m_sortOrder = SwatchSortOrder::frequency;
    std::vector<QuantizedColor> m_swatches;
    QString m_paletteName;
    /// What the name was last filled in with.
    std::optional<QString> m_lastAutoName;
    bool m_isProcessing = false;
    std::optional<QString> m_errorMessage;
    bool m_isDropTargeted = false;
    std::unique_ptr<QuantizationTask> m_quantizationTask;
    std::optional<BackgroundLine> m_loads;
};

} // namespace dropshade
