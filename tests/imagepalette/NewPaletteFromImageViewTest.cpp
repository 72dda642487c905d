// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/NewPaletteFromImageView.h"

#include "imagepalette/NewPaletteFromImageWindowController.h"
#include "imagepalette/PreviewStrip.h"
#include "imagepalette/SampleFiles.h"
#include "imagepalette/StripSwatch.h"
#include "support/FakeAppearance.h"
#include "support/FakeFilePanels.h"
#include "support/FakePasteboard.h"
#include "support/Machine.h"
#include "support/ManualBackgroundQueue.h"
#include "support/QtPrinters.h"
#include "widgets/Picker.h"
#include "widgets/Slider.h"
#include "widgets/TextField.h"

#include <QAccessible>
#include <QLabel>
#include <QMimeData>
#include <QTest>
#include <QTranslator>

#include <gtest/gtest.h>

#include <array>
#include <functional>

namespace dropshade {
namespace {

class NewPaletteFromImageSheet : public testing::Test {
protected:
    void present(std::optional<LoadedImage> image = std::nullopt, const QString& name = QString()) {
        m_controller.present(&m_host, std::move(image),
                             name.isEmpty() ? std::nullopt : std::optional(name));
        QApplication::setActiveWindow(m_controller.window());
    }
    static LoadedImage photo(int width = 60, int height = 40) {
        return {SampleFiles::picture(width, height), QSize(width, height)};
    }
    NewPaletteFromImageView& sheet() { return *m_controller.window(); }
    void finish() {
        m_machine.scheduler().advance(QuantizationTask::delay);
        m_queue.workAndLand();
    }
    template <typename Control>
    Control* named(const QString& name) {
        for (Control* control : sheet().findChildren<Control*>()) {
            if (control->accessibleName() == name || control->property("text") == name)
                return control;
        }
        ADD_FAILURE() << name.toStdString();
        return nullptr;
    }
    QList<StripSwatch*> shownSwatches() {
        QList<StripSwatch*> shown;
        for (StripSwatch* swatch : sheet().findChildren<StripSwatch*>()) {
            if (swatch->isVisible())
                shown.append(swatch);
        }
        return shown;
    }
    bool shows(const QString& words) {
        for (const QLabel* label : sheet().findChildren<QLabel*>()) {
            if (label->text() == words && label->isVisible())
                return true;
        }
        return false;
    }
    static void turnEventLoop() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    Machine m_machine;
    FakeAppearance m_appearance;
    Look m_look{m_appearance};
    FakeFilePanels m_panels;
    FakePasteboard m_pasteboard;
    ManualBackgroundQueue m_queue;
    QList<SRGBColor> m_copied;
    QWidget m_host;
    NewPaletteFromImageWindowController m_controller{
        {m_look,
         m_machine.defaults(),
         m_machine.store(),
         m_panels,
         {m_machine.scheduler(), m_queue, m_pasteboard},
         [this](const SRGBColor& color) { m_copied.append(color); }}};
};

/// A language of twice as many letters.
class LongWords : public QTranslator {
public:
    LongWords() { QCoreApplication::installTranslator(this); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char*, const char* text, const char*,
                                    int) const override {
        return QString::fromUtf8(text).repeated(2);
    }
};

TEST_F(NewPaletteFromImageSheet, LongLabelsPushAllControlsToOneEdge) {
    const LongWords words;
    present();
    auto* order = named<Picker>(QStringLiteral("Sort by").repeated(2));
    auto* name = named<TextField>(QStringLiteral("Name").repeated(2));
    auto* label = named<QLabel>(QStringLiteral("Algorithm").repeated(2));
    ASSERT_TRUE(order && name && label);
    QApplication::processEvents();
    const auto leftOf = [this](const QWidget* part) { return part->mapTo(&sheet(), QPoint()).x(); };
    EXPECT_EQ(leftOf(name), leftOf(order));
    EXPECT_GE(leftOf(order), leftOf(label) + label->sizeHint().width() + 8);
}

TEST_F(NewPaletteFromImageSheet, IsOfItsSizeAndNoSmallerThanItsLeast) {
    present();
    EXPECT_EQ(sheet().windowTitle(), QStringLiteral("New Palette from Image"));
    EXPECT_EQ(sheet().size(), QSize(460, 600));
    EXPECT_EQ(sheet().minimumSize(), QSize(440, 560));
    EXPECT_EQ(sheet().windowModality(), Qt::WindowModal);
}

TEST_F(NewPaletteFromImageSheet, SaysWhatItWantsInTheseWords) {
    present();
    for (const char* words : {"Colors", "Algorithm", "Sort by", "Name", "8"})
        EXPECT_TRUE(shows(QString::fromLatin1(words))) << words;
    EXPECT_EQ(named<TextField>(QStringLiteral("Name"))->placeholderText(),
              QStringLiteral("Untitled Palette"));
    EXPECT_EQ(named<QAbstractButton>(QStringLiteral("Drop an image, paste, or click to browse"))
                  ->accessibleDescription(),
              QStringLiteral("PNG, JPEG, HEIC, TIFF, GIF, BMP, or WebP"));
    EXPECT_EQ(sheet().findChild<PreviewStrip*>()->accessibleName(),
              QStringLiteral("Load an image to generate a palette."));
    EXPECT_EQ(named<QAbstractButton>(QStringLiteral("Remove image"))->toolTip(),
              QStringLiteral("Remove image"));
    const auto* slider = named<Slider>(QStringLiteral("Colors"));
    EXPECT_EQ(slider->minimum(), 2);
    EXPECT_EQ(slider->maximum(), 24);
    EXPECT_EQ(slider->singleStep(), 1);
}

TEST_F(NewPaletteFromImageSheet, WithoutAHostItStandsAlone) {
    m_controller.present(nullptr, photo(), QStringLiteral("photo"));
    EXPECT_EQ(sheet().windowModality(), Qt::NonModal);
    finish();
    QTest::mouseClick(named<QAbstractButton>(QStringLiteral("Create Palette")), Qt::LeftButton);
    EXPECT_EQ(m_controller.window(), nullptr);
    EXPECT_EQ(m_machine.store().palettes().last().name(), QStringLiteral("Photo"));
}

TEST_F(NewPaletteFromImageSheet, CancelEscapeAndControlWCloseItWithoutAPalette) {
    const auto before = m_machine.store().palettes().size();
    const std::array<std::function<void()>, 3> ways = {
        [this] {
            QTest::mouseClick(named<QAbstractButton>(QStringLiteral("Cancel")), Qt::LeftButton);
        },
        [this] { QTest::keyClick(&sheet(), Qt::Key_Escape); },
        [this] { QTest::keyClick(&sheet(), Qt::Key_W, Qt::ControlModifier); }};
    for (const auto& close : ways) {
        present(photo(), QStringLiteral("photo"));
        finish();
        close();
        EXPECT_EQ(m_controller.window(), nullptr);
        turnEventLoop();
    }
    EXPECT_EQ(m_machine.store().palettes().size(), before);
}

TEST_F(NewPaletteFromImageSheet, OneThatIsUpStaysAndTheNewImageIsLost) {
    present(photo(), QStringLiteral("first"));
    const NewPaletteFromImageView* before = &sheet();
    present(photo(), QStringLiteral("second"));
    EXPECT_EQ(&sheet(), before);
    EXPECT_EQ(named<TextField>(QStringLiteral("Name"))->text(), QStringLiteral("First"));
}

TEST_F(NewPaletteFromImageSheet, TheNextOneRemembersNothing) {
    present(photo(), QStringLiteral("first"));
    named<Slider>(QStringLiteral("Colors"))->setValue(20);
    sheet().close();
    EXPECT_EQ(m_controller.window(), nullptr);
    turnEventLoop();
    present();
    EXPECT_EQ(named<Slider>(QStringLiteral("Colors"))->value(), 8);
    EXPECT_EQ(named<TextField>(QStringLiteral("Name"))->text(), QString());
}

TEST_F(NewPaletteFromImageSheet, GoesWithItsHost) {
    m_host.show();
    present();
    m_host.hide();
    EXPECT_EQ(m_controller.window(), nullptr);
}

TEST_F(NewPaletteFromImageSheet, CreatePutsThePaletteLastUnderItsNameAsItIs) {
    const auto before = m_machine.store().palettes().size();
    for (int time = 0; time < 2; ++time) {
        present(photo(), QStringLiteral("tailwind"));
        finish();
        QTest::mouseClick(named<QAbstractButton>(QStringLiteral("Create Palette")), Qt::LeftButton);
        EXPECT_EQ(m_controller.window(), nullptr);
    }
    ASSERT_EQ(m_machine.store().palettes().size(), before + 2);
    EXPECT_EQ(m_machine.store().palettes().last().name(), QStringLiteral("Tailwind"));
    EXPECT_EQ(m_machine.store().palettes().at(before).name(), QStringLiteral("Tailwind"));
    EXPECT_TRUE(m_machine.store().hasPendingSave());
}

TEST_F(NewPaletteFromImageSheet, CreateWithoutColorsLeavesTheSheetOpenAndItsButtonEnabled) {
    present();
    auto* create = named<QAbstractButton>(QStringLiteral("Create Palette"));
    EXPECT_TRUE(create->isEnabled());
    QTest::mouseClick(create, Qt::LeftButton);
    EXPECT_NE(m_controller.window(), nullptr);
}

TEST_F(NewPaletteFromImageSheet, ReturnInTheNameAndControlSCreate) {
    for (const bool isByReturn : {true, false}) {
        present(photo(), QStringLiteral("photo"));
        finish();
        auto* name = named<TextField>(QStringLiteral("Name"));
        name->setFocus();
        if (isByReturn)
            QTest::keyClick(name, Qt::Key_Return);
        else
            QTest::keyClick(name, Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(m_controller.window(), nullptr) << isByReturn;
        turnEventLoop();
    }
}

TEST_F(NewPaletteFromImageSheet, ReturnPressesTheButtonThatHasTheKeyboard) {
    present(photo(), QStringLiteral("photo"));
    finish();
    const auto before = m_machine.store().palettes().size();
    auto* cancel = named<QAbstractButton>(QStringLiteral("Cancel"));
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
    EXPECT_EQ(m_controller.window(), nullptr);
    EXPECT_EQ(m_machine.store().palettes().size(), before);
}

TEST_F(NewPaletteFromImageSheet, AClickInTheEmptyZoneBrowsesAndOneInTheImageDoesNot) {
    present();
    auto* zone = named<QAbstractButton>(QStringLiteral("Drop an image, paste, or click to browse"));
    QTest::mouseClick(zone, Qt::LeftButton);
    ASSERT_EQ(m_panels.panels().size(), 1);
    for (const char* extension :
         {"png", "jpg", "jpeg", "tif", "tiff", "gif", "bmp", "heic", "webp"})
        EXPECT_TRUE(m_panels.panels().first().kind.extensions.contains(QLatin1String(extension)))
            << extension;
    m_panels.choose(QStringLiteral("/no/such/file.png"));
    m_queue.workAndLand();
    EXPECT_TRUE(shows(QStringLiteral("Unsupported image format.")));
    sheet().close();
    present(photo(), QStringLiteral("photo"));
    QTest::mouseClick(named<QAbstractButton>(QStringLiteral("Image photo")), Qt::LeftButton);
    EXPECT_TRUE(m_panels.panels().isEmpty());
}

TEST_F(NewPaletteFromImageSheet, AnAnswerOfThePanelAfterTheSheetHasGoneDoesNothing) {
    present();
    QTest::mouseClick(
        named<QAbstractButton>(QStringLiteral("Drop an image, paste, or click to browse")),
        Qt::LeftButton);
    sheet().close();
    turnEventLoop();
    m_panels.choose(QStringLiteral("/no/such/file.png"));
    EXPECT_EQ(m_queue.waiting(), 0);
    EXPECT_EQ(m_controller.window(), nullptr);
    present();
    EXPECT_FALSE(shows(QStringLiteral("Unsupported image format.")));
}

TEST_F(NewPaletteFromImageSheet, TheStripGrowsToTwoRowsFromThirteenColorsOn) {
    present(photo());
    finish();
    EXPECT_EQ(shownSwatches().size(), 8);
    EXPECT_EQ(shownSwatches().first()->height(), 28);
    for (const int count : {12, 13}) {
        named<Slider>(QStringLiteral("Colors"))->setValue(count);
        finish();
        ASSERT_EQ(shownSwatches().size(), count);
        const int height =
            shownSwatches().last()->geometry().bottom() + 1 - shownSwatches().first()->y();
        EXPECT_EQ(height, count == 12 ? 28 : 60);
    }
}

/// Counts how often a widget is drawn.
class PaintCounter : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

TEST_F(NewPaletteFromImageSheet, ColorsAreDrawnForTheirRingAndThenNoMore) {
    present(photo());
    finish();
    StripSwatch* swatch = shownSwatches().first();
    PaintCounter paints;
    const auto comesToRest = [&] {
        return QTest::qWaitFor([&] {
            paints.count = 0;
            QTest::qWait(100);
            return paints.count == 0;
        });
    };
    swatch->parentWidget()->installEventFilter(&paints);
    EXPECT_TRUE(comesToRest());
    QHoverEvent hover(QEvent::HoverEnter, QPointF(2, 2), QPointF(2, 2), QPointF(-1, -1));
    QCoreApplication::sendEvent(swatch, &hover);
    EXPECT_TRUE(QTest::qWaitFor([&] { return swatch->ringOpacity() == 1.0 && paints.count > 0; }));
    EXPECT_TRUE(comesToRest());
}

TEST_F(NewPaletteFromImageSheet, AClickOnAColorCopiesItAndItsToolTipIsInTheUsersFormat) {
    QImage red(1, 1, QImage::Format_RGB32);
    red.fill(Qt::red);
    m_machine.defaults().setValue(QStringLiteral("colorFormat"), QStringLiteral("cssRGB"));
    present(LoadedImage{red, red.size()});
    finish();
    ASSERT_EQ(shownSwatches().size(), 1);
    StripSwatch* swatch = shownSwatches().first();
    EXPECT_EQ(swatch->accessibleName(), QStringLiteral("rgb(255 0 0)"));
    QHoverEvent hover(QEvent::HoverEnter, QPointF(2, 2), QPointF(2, 2), QPointF(-1, -1));
    QCoreApplication::sendEvent(swatch, &hover);
    EXPECT_EQ(swatch->toolTip(), QStringLiteral("rgb(255 0 0)"));
    QTest::mouseClick(swatch, Qt::LeftButton);
    ASSERT_EQ(m_copied.size(), 1);
    EXPECT_EQ(m_copied.first(), SRGBColor(1, 0, 0));
    EXPECT_NE(m_controller.window(), nullptr);
}

TEST_F(NewPaletteFromImageSheet, ArrowKeysMoveAmongTheColorsAndTabReachesThemOnce) {
    present(photo());
    finish();
    const auto swatches = shownSwatches();
    int stops = 0;
    for (const StripSwatch* swatch : swatches)
        stops += swatch->focusPolicy() != Qt::NoFocus ? 1 : 0;
    EXPECT_EQ(stops, 1);
    swatches.first()->setFocus();
    QTest::keyClick(swatches.first(), Qt::Key_Right);
    EXPECT_TRUE(swatches.at(1)->hasFocus());
    QTest::keyClick(swatches.at(1), Qt::Key_Left);
    QTest::keyClick(swatches.at(0), Qt::Key_Left);
    EXPECT_TRUE(swatches.first()->hasFocus());
    QTest::keyClick(swatches.first(), Qt::Key_Return);
    EXPECT_EQ(m_copied.size(), 1);
}

TEST_F(NewPaletteFromImageSheet, APasteInTheNameTakesATextForTheFieldAndAnImageForTheSheet) {
    present();
    auto* name = named<TextField>(QStringLiteral("Name"));
    name->setFocus();
    const auto isForField = [&] {
        QKeyEvent key(QEvent::ShortcutOverride, Qt::Key_V, Qt::ControlModifier);
        key.ignore();
        QCoreApplication::sendEvent(name, &key);
        return key.isAccepted();
    };
    m_pasteboard.setTextFromAnotherProgram(QStringLiteral("Trip"));
    EXPECT_TRUE(isForField());
    auto content = std::make_unique<QMimeData>();
    content->setText(QStringLiteral("Trip"));
    content->setData(QStringLiteral("image/png"), "x");
    m_pasteboard.setContent(std::move(content));
    EXPECT_FALSE(isForField());
    m_pasteboard.setContent(nullptr);
    EXPECT_FALSE(isForField());
}

TEST_F(NewPaletteFromImageSheet, RemoveEmptiesTheZoneAndTheStrip) {
    present(photo(), QStringLiteral("photo"));
    finish();
    QTest::mouseClick(named<QAbstractButton>(QStringLiteral("Remove image")), Qt::LeftButton);
    EXPECT_TRUE(shownSwatches().isEmpty());
    EXPECT_NE(named<QAbstractButton>(QStringLiteral("Drop an image, paste, or click to browse")),
              nullptr);
}

TEST_F(NewPaletteFromImageSheet, EveryControlHasANameForScreenReaders) {
    present(photo(), QStringLiteral("photo"));
    finish();
    for (QWidget* widget : sheet().findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus)
            continue;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(face, nullptr);
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty()) << widget->metaObject()->className();
    }
}

TEST_F(NewPaletteFromImageSheet, AHundredSheetsLeaveNothingBehind) {
    for (int time = 0; time < 100; ++time) {
        present(photo(), QStringLiteral("photo"));
        finish();
        sheet().close();
        turnEventLoop();
    }
    EXPECT_EQ(m_machine.scheduler().pendingCount(), 0);
    EXPECT_EQ(QApplication::topLevelWidgets().size(), 1);
}

} // namespace
} // namespace dropshade
